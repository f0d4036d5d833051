#include "desktop/StateTrace.h"

#include "text/GlyphMap.h"
#include "text/Text.h"

#include <algorithm>
#include <utility>

namespace talvora {

namespace {

// A sentence mark looks like a blank.
constexpr std::string_view Blanks = " \t\r\n\xA0";
constexpr int LongestWord = 40;

bool inWord(const Surface& surface, int caret) {
  return caret >= 0 && caret < surface.TextLength() &&
         Blanks.find(surface.CharAt(caret)) == std::string_view::npos;
}

std::string lettersOf(const Surface& surface, const std::string& bytes) {
  std::string letters;
  for (const char16_t unit : toUnicode(bytes, encodingOf(surface.Font().name)))
    appendUtf8(letters, unit);
  return letters;
}

/// The caret and the word that it stands in: "12,word".
std::string caretOf(const Surface& surface) {
  const int caret = surface.SelStart();
  int from = caret;
  int to = caret;
  while (inWord(surface, from - 1) && caret - from < LongestWord)
    --from;
  while (inWord(surface, to) && to - caret < LongestWord)
    ++to;
  return std::to_string(caret) + "," + lettersOf(surface, surface.TextBetween(from, to));
}

} // namespace

std::string StateTrace::present() {
  const Control* const focus = program_.form().ActiveControl();
  std::string line = "focus=" + (focus == nullptr ? std::string("-") : focus->Name());
  line += " visible=,";
  for (const Control* control : program_.form().controls()) {
    const bool counts =
        control->kind() == ControlKind::Surface || control->kind() == ControlKind::Frame;
    if (counts && control->Visible()) line += control->Name() + ",";
  }
  line += " section=" + std::to_string(program_.section());
  if (const auto* page = dynamic_cast<const Surface*>(focus)) line += " caret=" + caretOf(*page);
  line += " caption=" + std::string(trim(program_.form().Caption()));
  if (!program_.running()) line += " ended";
  return line;
}

void StateTrace::note() {
  std::string line = present();
  if (line != last_) {
    file_ << line << '\n';
    last_ = std::move(line);
  }
  for (const Control* control : program_.form().controls()) {
    if (const auto* surface = as<Surface>(control)) noteWords(*surface);
  }
  file_ << std::flush;
}

void StateTrace::noteWords(const Surface& surface) {
  if (!surface.Visible()) {
    shown_.erase(&surface);
    return;
  }
  const Picture now{surface.revision(), surface.scroll(), surface.Left(),
                    surface.Top(),      surface.Width(),  surface.Height()};
  const auto [entry, isNew] = shown_.try_emplace(&surface, now);
  if (!isNew && std::exchange(entry->second, now) == now) return;
  writeWords(surface);
}

void StateTrace::writeWords(const Surface& surface) {
  file_ << "words " << surface.Name();
  const int first = surface.scroll().paragraph;
  for (int number = first; number < surface.paragraphCount(); ++number) {
    const int start = surface.paragraphStart(number);
    if (surface.pointOf(start).y >= surface.Height()) break;
    const std::string text =
        surface.TextBetween(start, std::max(start, surface.paragraphStart(number + 1)));
    std::size_t from = 0;
    while ((from = text.find_first_not_of(Blanks, from)) != std::string::npos) {
      const std::size_t to = std::min(text.find_first_of(Blanks, from), text.size());
      writeWord(surface, start + static_cast<int>(from), text.substr(from, to - from));
      from = to;
    }
  }
  file_ << '\n';
}

void StateTrace::writeWord(const Surface& surface, int from, const std::string& word) {
  const SurfacePoint middle = surface.pointOf(from + static_cast<int>(word.size()) / 2);
  if (middle.y < 0 || middle.y >= surface.Height()) return;
  const PixelPoint at = onScreen({surface.Left() + middle.x, surface.Top() + middle.y});
  file_ << ' ' << at.x << ',' << at.y << ',' << lettersOf(surface, word);
}

} // namespace talvora
