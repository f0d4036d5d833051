// How a caret becomes a word: the selection is widened to the word's bounds and filtered.
#pragma once

#include "surface/State.h"
#include "surface/Surface.h"

namespace talvora {

class WordPick {
 public:
  WordPick(const CurrentText& text, CurrentWord& word) : text_(text), word_(word) {}

  /// Selects the word at the caret of a reading surface and takes it into `TuHienTai`.
  void ChonTu(Surface& surface);
  /// Takes the letters of the selection into `TuHienTai`; with no selection that stays.
  void LayTuChon(const Surface& surface);
  /// Narrows the selection to what stands behind its first blank; what stands ahead of it, in small
  /// letters, goes into `TuHienTai`.
  void LayCumTu(Surface& surface);

 private:
  /// Steps the caret off a mark or a point at its left; true when the word also reaches to the left.
  bool settleCaret(Surface& surface);

  const CurrentText& text_;
  CurrentWord& word_;
};

} // namespace talvora
