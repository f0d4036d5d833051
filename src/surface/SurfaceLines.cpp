// Lines of a surface as the layout breaks them, and its scrolling.
#include "surface/Surface.h"

#include <algorithm>

namespace talvora {

namespace {

/// More jumps than this before anybody looks change nothing about what is seen.
constexpr std::size_t MostUnshownCarets = 4;

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
  while (line + 1 < shape.lines.size() && shape.lines[line + 1].from <= offset) ++line;
  const bool last = line + 1 == shape.lines.size();
  const int to = last ? static_cast<int>(paragraph(index).text.size()) : shape.lines[line + 1].from;
  const LineShape& found = shape.lines[line];
  return {index, found.from, to, found.top, found.height, static_cast<int>(line)};
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
  int index = scroll_.paragraph;
  int y = point.y + scroll_.offset;
  while (index + 1 < paragraphs_.count()) {
    const int height = heightOf(index);
    if (y < height) break;
    y -= height;
    ++index;
  }
  const int offset = withView(index, [&](const ParagraphView& view) {
    return layout_.offsetAt(view, point.x, y);
  });
  return paragraphStart(index) + offset;
}

SurfacePoint Surface::pointOf(int caret) const {
  settleScroll();
  const int place = clampCaret(caret);
  const int index = paragraphOf(place);
  int top = -scroll_.offset;
  for (int each = scroll_.paragraph; each < index; ++each) top += heightOf(each);
  for (int each = index; each < scroll_.paragraph; ++each) top -= heightOf(each);
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
  return paragraphStart(line.paragraph) + offset;
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
  if (unshownCarets_.size() == MostUnshownCarets) unshownCarets_.erase(unshownCarets_.begin());
  unshownCarets_.push_back(caret);
}

void Surface::settleScroll() const {
  if (unshownCarets_.empty() || Height() <= 0 || Width() <= 0) return;
  for (const int caret : unshownCarets_) showCaret(clampCaret(caret));
  unshownCarets_.clear();
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

void Surface::scrollBy(int twips) {
  settleScroll();
  const ScrollPlace before = scroll_;
  long long offset = static_cast<long long>(scroll_.offset) + twips;
  while (offset < 0 && scroll_.paragraph > 0) offset += heightOf(--scroll_.paragraph);
  offset = std::max<long long>(offset, 0);
  while (scroll_.paragraph + 1 < paragraphs_.count()) {
    const int height = heightOf(scroll_.paragraph);
    if (offset < height) break;
    offset -= height;
    ++scroll_.paragraph;
  }
  scroll_.offset = static_cast<int>(std::min<long long>(offset, heightOf(scroll_.paragraph)));
  // The last line stays at the lower edge, unless all of the text is shorter than the surface.
  long long below = -scroll_.offset;
  for (int each = scroll_.paragraph; each < paragraphs_.count() && below < Height(); ++each) {
    below += heightOf(each);
  }
  if (twips > 0 && below < Height()) showAsLastLine(lineAt(text_.length()));
  if (scroll_ != before) changed(ControlChange::Scroll);
}

} // namespace talvora
