// Lines of a surface as the layout breaks them, and its scrolling.
#include "surface/Surface.h"

#include <algorithm>
#include <utility>

namespace talvora {

namespace {

/// Turns to and fro that are kept while nobody looks.
constexpr std::size_t MostUnshownCarets = 16;

bool liesBetween(int value, int first, int last) {
  return std::min(first, last) <= value && value <= std::max(first, last);
}

} // namespace

template <class Use>
auto Surface::withView(int index, Use use) const {
  const ParagraphContent content = paragraph(index);
  std::vector<StyleRun> styleRuns;
  styleRuns.reserve(content.styles.size());
  for (std::size_t run = 0; run < content.styles.size(); ++run) {
    styleRuns.push_back({content.runStarts[run], &content.styles[run]});
  }
  return use(ParagraphView{content.text, styleRuns, content.style, Font(), Width()});
}

ParagraphShape Surface::shapeOf(int index) const {
  return withView(index, [this](const ParagraphView& view) { return layout_.layOut(view); });
}

Surface::LinePlace Surface::lineAt(int caret) const {
  const int index = paragraphOf(caret);
  const int offset = caret - paragraphStart(index);
  const ParagraphShape shape = shapeOf(index);
  std::size_t line = 0;
  while (line + 1 < shape.lines.size() && shape.lines[line + 1].from <= offset)
    ++line;
  const bool goesOn = line + 1 < shape.lines.size();
  const int to =
      goesOn ? shape.lines[line + 1].from : static_cast<int>(paragraph(index).text.size());
  const LineShape& found = shape.lines[line];
  return {index, found.from, to, found.top, found.height, static_cast<int>(line), goesOn};
}

// The line below with a step of 1, the one above with -1.
std::optional<Surface::LinePlace> Surface::neighbourLine(const LinePlace& line, int step) const {
  const int start = paragraphStart(line.paragraph);
  if (step < 0) {
    const int caret = start + line.from - 1;
    return caret < 0 ? std::nullopt : std::optional(lineAt(caret));
  }
  if (line.goesOn) return lineAt(start + line.to);
  if (line.paragraph + 1 == paragraphs_.count()) return std::nullopt;
  return lineAt(paragraphStart(line.paragraph + 1));
}

// The same height told from the paragraph that it lies in; beyond the text from its nearest one.
Surface::ParagraphSpot Surface::spotAt(int paragraph, long long y) const {
  while (y < 0 && paragraph > 0)
    y += heightOf(--paragraph);
  while (paragraph + 1 < paragraphs_.count()) {
    const int height = heightOf(paragraph);
    if (y < height) break;
    y -= height;
    ++paragraph;
  }
  return {paragraph, std::clamp<long long>(y, 0, heightOf(paragraph))};
}

int Surface::GetLineFromChar(int caret) const {
  const LinePlace place = lineAt(clampCaret(caret));
  int line = place.number;
  for (int each = 0; each < place.paragraph; ++each) {
    line += static_cast<int>(shapeOf(each).lines.size());
  }
  return line;
}

int Surface::caretAt(SurfacePoint point) const {
  settleScroll();
  const ParagraphSpot spot =
      spotAt(scroll_.paragraph, static_cast<long long>(scroll_.offset) + point.y);
  const int offset = withView(spot.paragraph, [&](const ParagraphView& view) {
    return layout_.offsetAt(view, point.x, static_cast<int>(spot.y));
  });
  return paragraphStart(spot.paragraph) + offset;
}

SurfacePoint Surface::pointOf(int caret) const {
  settleScroll();
  const int place = clampCaret(caret);
  const int index = paragraphOf(place);
  int top = -scroll_.offset;
  for (int each = scroll_.paragraph; each < index; ++each)
    top += heightOf(each);
  for (int each = index; each < scroll_.paragraph; ++each)
    top -= heightOf(each);
  const int offset = place - paragraphStart(index);
  return withView(index, [&](const ParagraphView& view) {
    const CaretPlace left = layout_.placeOf(view, offset);
    const CaretPlace right = layout_.placeOf(view, offset + 1);
    const bool sameLine = right.top == left.top && right.x >= left.x;
    return SurfacePoint{sameLine ? (left.x + right.x) / 2 : left.x,
                        top + left.top + left.height / 2};
  });
}

int Surface::caretInLine(const LinePlace& line, int x) const {
  const int offset = withView(line.paragraph, [&](const ParagraphView& view) {
    return layout_.offsetAt(view, x, line.top + line.height / 2);
  });
  // The caret behind the last character of a line that goes on stands on the next line.
  const int last = line.goesOn ? std::max(line.from, line.to - 1) : line.to;
  return paragraphStart(line.paragraph) + std::clamp(offset, line.from, last);
}

int Surface::columnOf(int caret) const {
  const int index = paragraphOf(caret);
  return withView(index, [&](const ParagraphView& view) {
    return layout_.placeOf(view, caret - paragraphStart(index)).x;
  });
}

// -- Scrolling. A caret that was placed is brought into view when somebody looks, since most
//    placements only lead to the next one.

void Surface::bringIntoView(int caret) {
  std::vector<int>& carets = unshownCarets_;
  // Of several steps in one direction only the first and the last decide what is seen.
  const std::size_t count = carets.size();
  if (count >= 2 && liesBetween(carets[count - 1], carets[count - 2], caret)) carets.pop_back();
  carets.push_back(caret);
  if (carets.size() <= MostUnshownCarets) return;
  settleScroll();
  // A surface without a size shows nothing that an old caret could have moved.
  if (!carets.empty()) carets.erase(carets.begin());
}

void Surface::settleScroll() const {
  if (Height() <= 0 || Width() <= 0) return;
  if (std::exchange(scrollMayBeOff_, false) && scroll_.offset > 0) {
    scroll_.offset = std::min(scroll_.offset, shapeOf(scroll_.paragraph).lines.back().top);
  }
  for (const int caret : unshownCarets_)
    showCaret(clampCaret(caret));
  unshownCarets_.clear();
}

// Keeps the same text in view when paragraphs come or go: the edit touched those from `first` to
// `last` and added some.
void Surface::scrollWithEdit(int first, int last, int added) {
  if (scroll_.paragraph < first) return;
  if (scroll_.paragraph > last) {
    scroll_.paragraph += added;
    return;
  }
  const int now = std::min(scroll_.paragraph, last + added);
  if (now != scroll_.paragraph) scroll_ = {now, 0};
  scrollMayBeOff_ = true;
}

void Surface::showCaret(int caret) const {
  const LinePlace line = lineAt(caret);
  const bool above = line.paragraph < scroll_.paragraph ||
                     (line.paragraph == scroll_.paragraph && line.top < scroll_.offset);
  if (above) {
    scroll_ = {line.paragraph, line.top};
    return;
  }
  int bottom = line.top + line.height - scroll_.offset;
  for (int each = scroll_.paragraph; each < line.paragraph && bottom <= Height(); ++each) {
    bottom += heightOf(each);
  }
  if (bottom > Height()) showAsLastLine(line);
}

void Surface::showAsLastLine(const LinePlace& line) const {
  int room = Height() - line.top - line.height;
  int index = line.paragraph;
  while (room > 0 && index > 0) {
    --index;
    room -= heightOf(index);
  }
  scroll_ = {index, std::max(-room, 0)};
  // A line higher than the surface shows its upper part.
  if (index == line.paragraph) scroll_.offset = std::min(scroll_.offset, line.top);
}

void Surface::scroll(ScrollPlace place) {
  settleScroll();
  const ScrollPlace before = scroll_;
  scroll_.paragraph = std::clamp(place.paragraph, 0, paragraphs_.count() - 1);
  scroll_.offset = std::clamp(place.offset, 0, heightOf(scroll_.paragraph));
  if (scroll_ != before) changed(ControlChange::Scroll);
}

void Surface::scrollBy(int twips) {
  settleScroll();
  const ScrollPlace before = scroll_;
  const ParagraphSpot spot =
      spotAt(scroll_.paragraph, static_cast<long long>(scroll_.offset) + twips);
  scroll_ = {spot.paragraph, static_cast<int>(spot.y)};
  // The last line stays at the lower edge, unless all of the text is shorter than the surface.
  long long below = -scroll_.offset;
  for (int each = scroll_.paragraph; each < paragraphs_.count() && below < Height(); ++each) {
    below += heightOf(each);
  }
  if (twips > 0 && below < Height()) showAsLastLine(lineAt(text_.length()));
  if (scroll_ != before) changed(ControlChange::Scroll);
}

} // namespace talvora
