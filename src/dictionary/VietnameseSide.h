// The second dictionary, for surfaces with Vietnamese beside the English: while Ctrl is held, the
// word at the caret is looked up here and its entry stands in the hint bar.
#pragma once

#include "dictionary/DictionaryControls.h"
#include "dictionary/LookUp.h"
#include "formats/Limits.h"
#include "platform/EventLoop.h"
#include "platform/Files.h"
#include "shell/Shell.h"
#include "sound/Speech.h"
#include "stores/Stores.h"
#include "surface/State.h"
#include "surface/Variables.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora {

class VietnameseSide {
 public:
  static constexpr int EntryCount = limit::SideEntries;

  VietnameseSide(DictionaryControls& controls, SharedState& state, const Stores& stores,
                 Shell& shell, Speech& speech, LookUp& lookUp)
      : controls_(controls), state_(state), stores_(stores), shell_(shell), speech_(speech),
        lookUp_(lookUp) {}

  /// Loads the list. Errors are ignored and the list is left as far as it came.
  void NapTuD(EventLoop& events);
  /// The entry of a word in any case of letters, or "?". Nothing changes.
  [[nodiscard]] std::string entryOf(std::string_view key) const { return ask(key).entry; }
  /// Searches a word, in any case of letters, and fills `NghiaD`; "?" means that nothing was found,
  /// and `ViTriGan` is then the line ahead of which the word would stand.
  void TimTuD(std::string_view key);
  /// Looks up the word at the caret of a surface and shows its entry.
  void HienTuD(Surface& surface);
  /// Takes the entry down and gives the focus back to the surface.
  void DongTuD(Surface& surface);

  /// What Ctrl does on a surface: shows the entry once, as long as it is held.
  void showOnCtrl(int keyCode, int shift, Surface& surface);
  /// What a key release does on a surface: without Ctrl the entry goes.
  void closeWithoutCtrl(int shift, Surface& surface);

  void declare(Variables& variables) const;

 private:
  /// Elements of the table, from 0; a few at its end are never used.
  static constexpr int TableSize = 12241;

  /// A line of the list and what a search has passed on its way there.
  struct Place {
    int index = 0;              ///< of the line that equals the key, or 0
    std::optional<int> nearest; ///< a line that the key does not stand behind
  };
  struct Answer {
    std::string entry;
    std::optional<int> nearest;
  };

  [[nodiscard]] std::string_view wordAt(int index) const;
  [[nodiscard]] Answer ask(std::string_view key) const;
  [[nodiscard]] Place find(const std::string& key) const;
  /// Looks at two neighbours, between which the key lies if it is no line of the list.
  [[nodiscard]] Place findBetween(int low, int high, const std::string& key) const;
  [[nodiscard]] std::string entryAt(int index) const;
  void writeEntry();

  DictionaryControls& controls_;
  SharedState& state_;
  const Stores& stores_;
  Shell& shell_;
  Speech& speech_;
  LookUp& lookUp_;
  std::shared_ptr<const MappedFile> file_;                ///< of the list
  std::vector<std::string_view> Chu_{std::string_view()}; ///< its words, from 1
  std::vector<std::int32_t> ViTriNghia_{0}; ///< record of each entry's first byte in file 8
};

} // namespace talvora
