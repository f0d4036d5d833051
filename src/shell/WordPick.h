// How a caret becomes a word: the selection is widened to the word's bounds and filtered.
#pragma once

#include "surface/State.h"
#include "surface/Surface.h"

#include <string>
#include <string_view>

namespace talvora {

class WordPick {
 public:
  explicit WordPick(WordAtHand& atHand) : atHand_(atHand) {}

  /// Selects the word at the caret of a reading surface and takes it into `TuHienTai`.
  void ChonTu(Surface& surface);
  /// The word pick of all lesson and exercise surfaces. Where the caret stands behind a point or a
  /// line end, the word reaches only to the right.
  void ChonTuBT(Surface& surface);
  /// The word pick of a drill's line, on which every caret is one in a word.
  void takeShownWord(Surface& surface);
  /// Takes the letters of the selection into `TuHienTai`; with no selection that stays.
  void LayTuChon(const Surface& surface);
  /// The letters, digits, blanks, commas, apostrophes and hyphens of a text, trimmed.
  [[nodiscard]] static std::string lettersOf(std::string_view text);
  /// Narrows the selection to what stands behind its first blank; what stands ahead of it, in small
  /// letters, goes into `TuHienTai`.
  void LayCumTu(Surface& surface);

 private:
  WordAtHand& atHand_;
};

} // namespace talvora
