#include "shell/WordPick.h"

#include "text/CharClass.h"
#include "text/Text.h"

namespace talvora {

namespace {

constexpr CharClass Kept("[A-Z,a-z,0-9, ,',-]");
constexpr CharClass FirstLetter("[A-Za-z0-9]");
constexpr char Mark = chr(160);
// The two sets differ on purpose: "<" bounds a word only on its left, ">" only on its right, and so
// do line ends and tabs.
constexpr std::string_view LeftBounds = "< ,;:.?!\r\t\x93";
constexpr std::string_view RightBounds = " ,;:.?>!\x94";
constexpr std::string_view LeftBoundsBT = "(/\\< ,;:.?!-\r\t\x93";
constexpr std::string_view RightBoundsBT = " ,;:.?>/\\)!\x94\r\t";

/// From where a word is picked.
struct Settled {
  int caret;
  bool reachesLeft; ///< the word also reaches to the left of the caret
};

// Both step off a mark or a point at the caret's left, by what the surface itself shows there.

Settled settledCaret(const Surface& surface) {
  const int p = surface.SelStart();
  if (p < 2) return {p, true};
  const char behind = surface.CharAt(p);
  switch (surface.CharAt(p - 1)) {
  case '\r':
    // A page without sentence marks has nothing to step over ahead of a line's first word.
    return {FirstLetter.has(behind) ? p : p + 1, false};
  case ',':
    return {p + 1, false};
  case Mark:
    return {behind == '\t' ? p + 1 : p, false};
  case '\t':
    return {p, false};
  case '.':
  case '"':
  case '?':
  case '!':
  case ':':
    // Behind the last point of a line the line's last word is meant.
    return behind == '\r' ? Settled{p - 2, true} : Settled{p, false};
  default:
    return {p, true};
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

Settled settledCaretBT(const Surface& surface) {
  const int p = surface.SelStart();
  if (p < 2) return {p, true};
  switch (surface.CharAt(p - 1)) {
  case '\r':
    return {startOfFirstWord(surface, p), false};
  case ',':
    return {p + 1, false};
  case '\t':
  case '.':
  case '"':
  case '?':
  case '!':
  case ':':
    return {p, false};
  default:
    return {p, true};
  }
}

struct WordBounds {
  std::string_view left;
  std::string_view right;
};

/// Selects the word around a place, in one step: a page that listens is told of the word and not
/// of the way to it.
void selectWord(Surface& surface, Settled place, WordBounds bounds) {
  if (place.caret != surface.SelStart()) surface.SelStart(place.caret);
  TextRange word{surface.SelStart(), surface.SelStart() + surface.SelLength()};
  if (place.reachesLeft) {
    word = surface.spanned(word, bounds.left, SpanDirection::Backward, SpanUntil::InSet);
  }
  surface.select(surface.spanned(word, bounds.right, SpanDirection::Forward, SpanUntil::InSet));
}

constexpr WordBounds Bounds{LeftBounds, RightBounds};
constexpr WordBounds BoundsBT{LeftBoundsBT, RightBoundsBT};

} // namespace

void WordPick::ChonTu(Surface& surface) {
  selectWord(surface, settledCaret(surface), Bounds);
  LayTuChon(surface);
}

void WordPick::ChonTuBT(Surface& surface) {
  selectWord(surface, settledCaretBT(surface), BoundsBT);
  atHand_.take(lettersOf(surface.SelText()));
}

void WordPick::takeShownWord(Surface& surface) {
  selectWord(surface, {surface.SelStart(), true}, BoundsBT);
  atHand_.take(lettersOf(surface.SelText()));
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
  atHand_.take(lettersOf(surface.SelText()));
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
  atHand_.take(selected.substr(0, blank));
}

} // namespace talvora
