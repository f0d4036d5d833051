// The second dictionary, for surfaces with Vietnamese beside the English: while Ctrl is held, the
// word at the caret is looked up here and its entry stands in the hint bar.
#pragma once

#include "platform/EventLoop.h"
#include "platform/Files.h"
#include "shell/Shell.h"
#include "sound/Speech.h"
#include "stores/Stores.h"
#include "surface/Controls.h"
#include "surface/State.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace talvora {

class VietnameseSide {
 public:
  static constexpr int EntryCount = 12238;

  VietnameseSide(Controls& controls, SharedState& state, const Stores& stores, Shell& shell,
                 Speech& speech)
      : controls_(controls), state_(state), stores_(stores), shell_(shell), speech_(speech) {}

  /// Loads the list. Errors are ignored and the list is left as far as it came.
  void NapTuD(EventLoop& events);
  /// Searches a word, in any case of letters, and fills `NghiaD`; "?" means that nothing was found.
  void TimTuD(std::string_view key);
  /// Looks up the word at the caret of a surface and shows its entry.
  void HienTuD(Surface& surface);
  /// Takes the entry down and gives the focus back to the surface.
  void DongTuD(Surface& surface);

  /// What Ctrl does on a surface: shows the entry once, as long as it is held.
  void showOnCtrl(int keyCode, int shift, Surface& surface);
  /// What a key release does on a surface: without Ctrl the entry goes.
  void closeWithoutCtrl(int shift, Surface& surface);

 private:
  [[nodiscard]] std::string_view wordAt(int index) const;
  /// Index of the line that equals the key, or 0.
  [[nodiscard]] int find(const std::string& key) const;
  void readEntry(int index);
  void capitaliseI(const std::string& word);
  void writeEntry();

  Controls& controls_;
  SharedState& state_;
  const Stores& stores_;
  Shell& shell_;
  Speech& speech_;
  std::vector<std::string> Chu_{std::string()}; ///< the words, from 1
  std::vector<std::int32_t> ViTriNghia_{0};     ///< record of each entry's first byte in file 8
};

} // namespace talvora
