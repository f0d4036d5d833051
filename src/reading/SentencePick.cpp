#include "reading/SentencePick.h"

#include "text/CharClass.h"

namespace talvora {

namespace {

constexpr CharClass WordEnds("[.,? !]");
constexpr CharClass Points("[,.?!]");

} // namespace

int SentencePick::askedCaret(const Surface& surface) {
  const int caret = surface.SelStart();
  // The mark at the text's end opens no sentence.
  const bool opens = surface.CharAt(caret) == SentenceMark && caret + 1 < surface.TextLength();
  return opens ? caret + 1 : caret;
}

int SentencePick::takeTranslationAt(int caret) {
  const int k = text_.CauTaiViTri(caret);
  state_.atHand.showInstead(text_.translationOf(k));
  return k;
}

void SentencePick::ChonCau(Surface& surface, int caret) {
  const int k = takeTranslationAt(caret);
  state_.text.CauChon = k;
  int s = text_.markOf(k);
  int n = text_.markOf(k + 1) - s - 1;
  // Positions count from 1: the character at position s + 1 stands behind the caret s.
  if (surface.CharAt(s) == '\t') {
    ++s;
    --n;
  }
  if (n > 0 && surface.CharAt(s + n - 1) == '\r') --n;
  surface.SelStart(s);
  surface.SelLength(n);
  words_.LayTuChon(surface);
  state_.atHand.takeMessageAsEntry();
}

void SentencePick::seekPhaiR2(Surface& surface) {
  const int length = surface.TextLength();
  for (int position = surface.SelStart() + 1; position <= length; ++position) {
    const char character = surface.CharAt(position - 1);
    if (!WordEnds.has(character) && character != '\r') continue;
    int caret = position - 1;
    if (Points.has(character)) {
      caret = position;
      if (surface.CharAt(caret + 1) == SentenceMark) caret = position + 1;
    }
    surface.SelStart(caret);
    return;
  }
}

void SentencePick::seekTraiR2(Surface& surface) {
  int caret = surface.SelStart() - 1;
  if (caret < 0) return;
  // At a paragraph's first word: past its mark, the line end and the point ahead of them.
  if (caret >= 4 && surface.CharAt(caret - 1) == SentenceMark) caret -= 3;
  while (caret > 0) {
    const char before = surface.CharAt(caret - 1);
    if (before == ' ' || before == SentenceMark || before == '\t' || before == '\r') break;
    --caret;
  }
  surface.SelStart(caret);
}

} // namespace talvora
