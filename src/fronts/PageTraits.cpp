#include "fronts/PageTraits.h"

#include "text/Contains.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace talvora {

namespace {

bool isList(std::string_view name) {
  constexpr std::array lists = {"R1", "RVP1", "RN1", "RW1", "RTD", "Rchon"};
  return contains(lists, name);
}

} // namespace

PageTraits traitsOf(const Surface& surface) {
  const std::string& name = surface.Name();
  PageTraits traits;
  traits.isList = isList(name);
  // The guide takes no key but Esc; a list shows its line.
  traits.showsCaret = !traits.isList && name != "Rcachhoc";
  if (name == "RVP1") traits.blueSign = PageTraits::BlueSign::Tick;
  if (name == "Rxep") traits.blueSign = PageTraits::BlueSign::Underline;
  return traits;
}

ParagraphMarks marksOf(const Surface& surface, const Form& form, int paragraph) {
  const PageTraits traits = traitsOf(surface);
  const int start = surface.paragraphStart(paragraph);
  const int length = surface.paragraphStart(paragraph + 1) - start;
  const int from = surface.SelStart();
  const bool holdsCaret = surface.paragraphOf(from) == paragraph;
  ParagraphMarks marks;
  marks.current = traits.isList && holdsCaret;
  // The whole line of a list says what is selected in it.
  if (marks.current) return marks;
  marks.from = std::clamp(from - start, 0, length);
  marks.to = std::clamp(from + surface.SelLength() - start, 0, length);
  const bool shows = traits.showsCaret && surface.SelLength() == 0 && form.hasFocus(surface);
  if (holdsCaret && shows) marks.caret = from - start;
  return marks;
}

int cutOf(const ParagraphShape& shape, int top, int lowerEdge) {
  for (const LineShape& line : shape.lines) {
    const int upper = top + line.top;
    if (upper < lowerEdge && upper + line.height > lowerEdge) return upper;
  }
  return lowerEdge;
}

} // namespace talvora
