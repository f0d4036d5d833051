// Any bytes as a lesson and as a coloured line: the page never fails, and what the compiler accepts
// is shown exactly as it was written.
#include "exercises/ExplanationMarkup.h"
#include "lessons/LessonMarkup.h"
#include "pack/MarkedLine.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace talvora;
using namespace talvora::pack;

constexpr Colour Red = 255;
constexpr Colour Blue = 0xFF0000;

void require(bool holds) {
  if (!holds) std::abort();
}

void checkPieces(std::string_view text) {
  const auto pieces = layOutLesson(text);
  std::size_t shown = 0;
  for (std::size_t at = 0; at < pieces.size(); ++at) {
    require(!pieces[at].text.empty());
    require(at == 0 || pieces[at].color != pieces[at - 1].color);
    shown += pieces[at].text.size();
  }
  require(shown <= text.size());
}

/// What the page shows must be the line as written; blanks have no colour to see.
void checkColours(const MarkedLine& line, const std::vector<Colour>& colours,
                  std::string_view uncoloured) {
  for (std::size_t at = 0; at < line.text.size(); ++at) {
    if (uncoloured.find(line.text[at]) != std::string_view::npos) continue;
    const bool blue = line.blueFrom && at >= *line.blueFrom;
    const bool shownRed = colours[at] == Red;
    require(shownRed == line.red[at]);
    require(line.red[at] || (colours[at] == Blue) == blue);
  }
}

void checkLessonLine(std::string_view utf8) {
  Problems problems;
  const MarkedLine line = parseMarkedLine(utf8, {"line", 1, 1}, LineKind::Lesson, problems);
  if (!problems.none()) return;
  const std::string stored = encodeMarkedLine(line, LineKind::Lesson);
  std::string text;
  std::vector<Colour> colours;
  for (const ColouredPiece& piece : layOutLesson("\r" + stored)) {
    text += piece.text;
    colours.insert(colours.end(), piece.text.size(), piece.color);
  }
  require(text == "\r" + line.text);
  colours.erase(colours.begin());
  checkColours(line, colours, " ,.:");
  const MarkedLine back = decodeMarkedLine(stored, LineKind::Lesson);
  require(encodeMarkedLine(back, LineKind::Lesson) == stored);
}

void checkExplanationLine(std::string_view utf8) {
  Problems problems;
  const MarkedLine line = parseMarkedLine(utf8, {"line", 1, 1}, LineKind::Explanation, problems);
  if (!problems.none() || std::count(line.red.begin(), line.red.end(), true) > 100) return;
  const std::string stored = encodeMarkedLine(line, LineKind::Explanation);
  // Each colour keeps 300 spans; no written line comes near.
  if (std::count(stored.begin(), stored.end(), '&') > 300) return;
  const ExplanationText shown = layOutExplanation("\r" + stored);
  require(shown.text == line.text);
  std::vector<Colour> colours(line.text.size(), 0);
  const auto paint = [&](const std::vector<ExplanationSpan>& spans, Colour colour) {
    for (const ExplanationSpan& span : spans) {
      require(span.start >= 0 && span.length > 0);
      require(static_cast<std::size_t>(span.start + span.length) <= colours.size());
      std::fill_n(colours.begin() + span.start, span.length, colour);
    }
  };
  paint(shown.blue, Blue);
  paint(shown.red, Red);
  checkColours(line, colours, " ,.:");
  const MarkedLine back = decodeMarkedLine(stored, LineKind::Explanation);
  require(encodeMarkedLine(back, LineKind::Explanation) == stored);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  checkPieces(text);
  const std::string_view line = text.substr(0, text.find('\n'));
  checkLessonLine(line);
  checkExplanationLine(line);
  for (const LineKind kind : {LineKind::Lesson, LineKind::Explanation}) {
    static_cast<void>(writeMarkedLine(decodeMarkedLine(text, kind)));
  }
  return 0;
}
