#include "shell/WordPick.h"

#include "text/CharClass.h"
#include "text/Text.h"

namespace talvora {

namespace {

constexpr CharClass Kept("[A-Z,a-z,0-9, ,',-]");
constexpr char Mark = chr(160);
// The two sets differ on purpose: "<" bounds a word only on its left, ">" only on its right, and so
// do line ends and tabs.
constexpr std::string_view LeftBounds = "< ,;:.?!\r\t\x93";
constexpr std::string_view RightBounds = " ,;:.?>!\x94";
constexpr std::string_view LeftBoundsBT = "(/\\< ,;:.?!-\r\t\x93";
constexpr std::string_view RightBoundsBT = " ,;:.?>/\\)!\x94\r\t";

// Both step the caret off a mark or a point at its left, by what the surface itself shows there;
// true when the word also reaches to the left.

bool settleCaret(Surface& surface) {
  const int p = surface.SelStart();
  if (p < 2) return true;
  switch (surface.CharAt(p - 1)) {
  case '\r':
  case ',':
    surface.SelStart(p + 1);
    return false;
  case Mark:
    if (surface.CharAt(p) == '\t') surface.SelStart(p + 1);
    return false;
  case '\t':
    return false;
  case '.':
  case '"':
  case '?':
  case '!':
  case ':':
    if (surface.CharAt(p) != '\r') return false;
    // Behind the last point of a line the line's last word is meant.
    surface.SelStart(p - 2);
    return true;
  default:
    return true;
  }
}

/// What a line opens with ahead of its first word: a mark and a tab at most. A caret at the very
/// start of a word stays, so that the word is taken whole.
int startOfFirstWord(const Surface& surface, int lineStart) {
  constexpr std::string_view aheadOfWord = "\xA0\t -";
  constexpr int longest = 2;
  int at = lineStart;
  while (at < lineStart + longest && aheadOfWord.find(surface.CharAt(at)) != std::string_view::npos)
    ++at;
  return at;
}

bool settleCaretBT(Surface& surface) {
  const int p = surface.SelStart();
  if (p < 2) return true;
  switch (surface.CharAt(p - 1)) {
  case '\r':
    surface.SelStart(startOfFirstWord(surface, p));
    return false;
  case ',':
    surface.SelStart(p + 1);
    return false;
  case '\t':
  case '.':
  case '"':
  case '?':
  case '!':
  case ':':
    return false;
  default:
    return true;
  }
}

} // namespace

void WordPick::ChonTu(Surface& surface) {
  if (settleCaret(surface)) {
    surface.Span(LeftBounds, SpanDirection::Backward, SpanUntil::InSet);
  }
  surface.Span(RightBounds, SpanDirection::Forward, SpanUntil::InSet);
  LayTuChon(surface);
}

void WordPick::ChonTuBT(Surface& surface) {
  if (settleCaretBT(surface)) {
    surface.Span(LeftBoundsBT, SpanDirection::Backward, SpanUntil::InSet);
  }
  surface.Span(RightBoundsBT, SpanDirection::Forward, SpanUntil::InSet);
  word_.TuHienTai = lettersOf(surface.SelText());
}

void WordPick::takeShownWord(Surface& surface) {
  surface.Span(LeftBoundsBT, SpanDirection::Backward, SpanUntil::InSet);
  surface.Span(RightBoundsBT, SpanDirection::Forward, SpanUntil::InSet);
  word_.TuHienTai = lettersOf(surface.SelText());
}

std::string WordPick::lettersOf(std::string_view text) {
  std::string kept;
  for (const char character : text) {
    if (Kept.has(character)) kept += character;
  }
  return std::string(trim(kept));
}

void WordPick::LayTuChon(const Surface& surface) {
  if (surface.SelLength() == 0) return;
  word_.TuHienTai = lettersOf(surface.SelText());
}

void WordPick::LayCumTu(Surface& surface) {
  const std::string selected = lower(surface.SelText());
  const auto blank = selected.find(' ');
  if (blank == std::string::npos) return;
  const int from = surface.SelStart() + static_cast<int>(blank) + 1;
  const int length = surface.SelLength() - static_cast<int>(blank) - 1;
  surface.SelStart(from);
  surface.SelLength(length);
  // Last, since a surface may clear the word at hand when its selection ends.
  word_.TuHienTai = selected.substr(0, blank);
}

} // namespace talvora
