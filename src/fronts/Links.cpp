#include "fronts/Links.h"

#include "surface/Button.h"
#include "text/Contains.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace talvora {

namespace {

constexpr std::string_view Blanks = " \t\r\n\xA0";

/// Lists of titles and panels of choices: each of their lines answers.
constexpr std::array<std::string_view, 6> Lists = {"R1", "RVP1", "RN1", "RW1", "RTD", "RAmthanh"};

/// The word around a caret, up to the blanks at its sides.
std::string wordAt(const Surface& surface, int caret) {
  constexpr int Longest = 40;
  const std::string around = surface.TextBetween(std::max(0, caret - Longest), caret + Longest);
  const auto here = static_cast<std::size_t>(std::min(caret, Longest));
  if (here >= around.size() || Blanks.find(around[here]) != std::string_view::npos) return {};
  const std::size_t from = around.find_last_of(Blanks, here);
  const std::size_t to = std::min(around.find_first_of(Blanks, here), around.size());
  const std::size_t first = from == std::string::npos ? 0 : from + 1;
  return around.substr(first, to - first);
}

bool isOptionMark(std::string_view word) {
  return word.size() == 3 && word.front() == '(' && word.back() == ')';
}

bool isItalic(const Surface& surface, int caret) {
  const int number = surface.paragraphOf(caret);
  const ParagraphRef content = surface.paragraph(number);
  const int offset = caret - surface.paragraphStart(number);
  bool italic = false;
  for (const StyleRun& run : content.view().runs) {
    if (run.from <= offset) italic = run.style->italic;
  }
  return italic;
}

/// A title line of a list, not a heading and not the empty place below the text.
bool isLineOfList(const Surface& surface, SurfacePoint at, int caret) {
  const SurfacePoint middle = surface.pointOf(caret);
  constexpr int HalfLine = 300; // twips
  return std::abs(middle.y - at.y) <= HalfLine && surface.TextLength() > 0;
}

bool linkBegins(const Surface& surface, int caret) {
  return isItalic(surface, caret) && (caret == 0 || !isItalic(surface, caret - 1));
}

} // namespace

int nextLessonLink(const Surface& explanation, int caret) {
  const int length = explanation.TextLength();
  for (int step = 1; step <= length; ++step) {
    const int at = (caret + step) % length;
    if (linkBegins(explanation, at)) return at;
  }
  return -1;
}

bool isLink(const Surface& surface, SurfacePoint at) {
  const int caret = surface.caretAt(at);
  const std::string& name = surface.Name();
  if (contains(Lists, name)) return isLineOfList(surface, at, caret);
  const std::string word = wordAt(surface, caret);
  if (word.empty()) return false;
  if (word.starts_with("<Back>") || word.starts_with("<Next>")) return true;
  if (name == "RABCD") return isOptionMark(word);
  if (name == "RN2") return true;
  // The explanation names its lessons in italics.
  if (name == "RHDBT") return isItalic(surface, caret);
  return false;
}

PointerShape pointerShape(const FormInput& input) {
  const Control* const under = input.hovered();
  if (as<Button>(under) != nullptr) return PointerShape::Hand;
  const auto* const surface = as<Surface>(under);
  if (surface == nullptr) return PointerShape::Arrow;
  const SurfacePoint at = input.pointer();
  if (isLink(*surface, {at.x - surface->Left(), at.y - surface->Top()})) return PointerShape::Hand;
  return surface->Locked() ? PointerShape::Arrow : PointerShape::Text;
}

} // namespace talvora
