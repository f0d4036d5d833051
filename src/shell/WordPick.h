// How a caret becomes a word: the selection is widened to the word's bounds and filtered.
#pragma once

#include "surface/State.h"
#include "surface/Surface.h"

#include <string>
#include <string_view>

namespace talvora {

class WordPick {
 public:
  WordPick(const CurrentText& text, CurrentWord& word) : text_(text), word_(word) {}

  /// Selects the word at the caret of a reading surface and takes it into `TuHienTai`.
  void ChonTu(Surface& surface);
  /// The word pick of all lesson and exercise surfaces. Where the caret stands by a point or a line
  /// end of `CauHoi`, the word reaches only to the right; that the surface may show another text
  /// does not matter there.
  void ChonTuBT(Surface& surface);
  /// The word pick of a page that shows another text than `CauHoi`: by what stands on it alone.
  void takeShownWord(Surface& surface);
  /// Takes the letters of the selection into `TuHienTai`; with no selection that stays.
  void LayTuChon(const Surface& surface);
  /// The letters, digits, blanks, commas, apostrophes and hyphens of a text, trimmed.
  [[nodiscard]] static std::string lettersOf(std::string_view text);
  /// Narrows the selection to what stands behind its first blank; what stands ahead of it, in small
  /// letters, goes into `TuHienTai`.
  void LayCumTu(Surface& surface);

 private:
  /// Steps the caret off a mark or a point at its left; true when the word also reaches to the
  /// left.
  bool settleCaret(Surface& surface);
  bool settleCaretBT(Surface& surface);
  /// The character of `CauHoi` at a position, from 1; 0 outside.
  [[nodiscard]] char questionAt(int position) const noexcept;

  const CurrentText& text_;
  CurrentWord& word_;
};

} // namespace talvora
