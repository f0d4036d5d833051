// How a caret becomes a sentence, and how the caret steps by word over a text with sentence marks.
#pragma once

#include "reading/ReadingText.h"
#include "shell/WordPick.h"
#include "surface/State.h"
#include "surface/Surface.h"

namespace talvora {

class SentencePick {
 public:
  SentencePick(ReadingText& text, SharedState& state, WordPick& words)
      : text_(text), state_(state), words_(words) {}

  /// Selects the sentence at a caret, takes it into `TuHienTai` and its translation into
  /// `NghiaHienTai`; its number goes into `CauChon`.
  void ChonCau(Surface& surface, int caret);
  /// The caret that a sentence is asked for at: one directly ahead of a sentence's mark stands for
  /// that sentence.
  [[nodiscard]] static int askedCaret(const Surface& surface);
  /// Number of the sentence at a caret, from 1; its translation goes into `ThongBaoHD`.
  int takeTranslationAt(int caret);
  /// Position, from 1, of the mark that opens sentence k.
  [[nodiscard]] int markOf(int k) const noexcept { return text_.markOf(k); }
  /// The caret goes to the end of the word at its right; at the text's end nothing moves.
  static void seekPhaiR2(Surface& surface);
  /// The caret goes to the start of the word at its left.
  static void seekTraiR2(Surface& surface);

 private:
  ReadingText& text_;
  SharedState& state_;
  WordPick& words_;
};

} // namespace talvora
