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

} // namespace

bool WordPick::settleCaret(Surface& surface) {
  const std::string& text = text_.CauHoi;
  const int p = surface.SelStart();
  const auto at = [&](int position) {
    return position >= 1 && position <= static_cast<int>(text.size())
               ? text[static_cast<std::size_t>(position - 1)]
               : '\0';
  };
  if (p < 2 || text.empty()) return true;
  switch (at(p)) {
  case '\r':
  case ',':
    surface.SelStart(p + 1);
    return false;
  case Mark:
    if (at(p + 1) == '\t') surface.SelStart(p + 1);
    return false;
  case '\t':
    return false;
  case '.':
  case '"':
  case '?':
  case '!':
  case ':':
    if (at(p + 1) != '\r') return false;
    // Behind the last point of a line the line's last word is meant.
    surface.SelStart(p - 2);
    return true;
  default:
    return true;
  }
}

void WordPick::ChonTu(Surface& surface) {
  if (settleCaret(surface)) {
    surface.Span(LeftBounds, SpanDirection::Backward, SpanUntil::InSet);
  }
  surface.Span(RightBounds, SpanDirection::Forward, SpanUntil::InSet);
  LayTuChon(surface);
}

void WordPick::LayTuChon(const Surface& surface) {
  if (surface.SelLength() == 0) return;
  std::string kept;
  for (const char character : surface.SelText()) {
    if (Kept.has(character)) kept += character;
  }
  word_.TuHienTai = trim(kept);
}

void WordPick::LayCumTu(Surface& surface) {
  const std::string selected = lower(surface.SelText());
  const auto blank = selected.find(' ');
  if (blank == std::string::npos) return;
  word_.TuHienTai = selected.substr(0, blank);
  const int from = surface.SelStart() + static_cast<int>(blank) + 1;
  const int length = surface.SelLength() - static_cast<int>(blank) - 1;
  surface.SelStart(from);
  surface.SelLength(length);
}

} // namespace talvora
