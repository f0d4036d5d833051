#include "surface/Viewport.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <utility>

namespace talvora {

namespace {

/// Turns to and fro that are kept while nobody looks.
constexpr std::size_t MostUnshownCarets = 16;

bool liesBetween(int value, int first, int last) {
  return std::min(first, last) <= value && value <= std::max(first, last);
}

} // namespace

int Viewport::heightOf(int index) const {
  return layout_.heightOf(paragraph(index).view());
}

// -- Lines and places.

LinePlace Viewport::lineAt(int caret) const {
  const int index = document_.paragraphOf(caret);
  const int offset = caret - document_.paragraphStart(index);
  const ParagraphRef content = paragraph(index);
  const ParagraphShape shape = layout_.layOut(content.view());
  std::size_t line = 0;
  while (line + 1 < shape.lines.size() && shape.lines[line + 1].from <= offset)
    ++line;
  const bool goesOn = line + 1 < shape.lines.size();
  const int to = goesOn ? shape.lines[line + 1].from : static_cast<int>(content.view().text.size());
  const LineShape& found = shape.lines[line];
  return {index, found.from, to, found.top, found.height, static_cast<int>(line), goesOn};
}

std::optional<LinePlace> Viewport::neighbourLine(const LinePlace& line, int step) const {
  const int start = document_.paragraphStart(line.paragraph);
  if (step < 0) {
    const int caret = start + line.from - 1;
    return caret < 0 ? std::nullopt : std::optional(lineAt(caret));
  }
  if (line.goesOn) return lineAt(start + line.to);
  if (line.paragraph + 1 == document_.paragraphCount()) return std::nullopt;
  return lineAt(document_.paragraphStart(line.paragraph + 1));
}

// The same height told from the paragraph that it lies in; beyond the text from its nearest one.
Viewport::ParagraphSpot Viewport::spotAt(int paragraph, long long y) const {
  while (y < 0 && paragraph > 0)
    y += heightOf(--paragraph);
  while (paragraph + 1 < document_.paragraphCount()) {
    const int height = heightOf(paragraph);
    if (y < height) break;
    y -= height;
    ++paragraph;
  }
  return {paragraph, std::clamp<long long>(y, 0, heightOf(paragraph))};
}

int Viewport::lineNumberOf(int caret) {
  const LinePlace place = lineAt(caret);
  return place.number + lineCounts_.ahead(place.paragraph, [this](int each) {
    return layout_.lineCount(paragraph(each).view());
  });
}

int Viewport::caretAt(SurfacePoint point) {
  settle();
  const ParagraphSpot spot =
      spotAt(scroll_.paragraph, static_cast<long long>(scroll_.offset) + point.y);
  const int offset =
      layout_.offsetAt(paragraph(spot.paragraph).view(), point.x, static_cast<int>(spot.y));
  return document_.paragraphStart(spot.paragraph) + offset;
}

SurfacePoint Viewport::pointOf(int caret) {
  settle();
  const int index = document_.paragraphOf(caret);
  int top = -scroll_.offset;
  for (int each = scroll_.paragraph; each < index; ++each)
    top += heightOf(each);
  for (int each = index; each < scroll_.paragraph; ++each)
    top -= heightOf(each);
  const int offset = caret - document_.paragraphStart(index);
  const ParagraphRef content = paragraph(index);
  const CaretPlace left = layout_.placeOf(content.view(), offset);
  const CaretPlace right = layout_.placeOf(content.view(), offset + 1);
  const bool sameLine = right.top == left.top && right.x >= left.x;
  return {sameLine ? (left.x + right.x) / 2 : left.x, top + left.top + left.height / 2};
}

int Viewport::caretInLine(const LinePlace& line, int x) const {
  const int offset =
      layout_.offsetAt(paragraph(line.paragraph).view(), x, line.top + line.height / 2);
  // The caret behind the last character of a line that goes on stands on the next line.
  const int last = line.goesOn ? std::max(line.from, line.to - 1) : line.to;
  return document_.paragraphStart(line.paragraph) + std::clamp(offset, line.from, last);
}

int Viewport::columnOf(int caret) const {
  const int index = document_.paragraphOf(caret);
  return layout_.placeOf(paragraph(index).view(), caret - document_.paragraphStart(index)).x;
}

// -- Scrolling.

void Viewport::bringIntoView(int caret) {
  std::vector<int>& carets = unshownCarets_;
  // Of several steps in one direction only the first and the last decide what is seen.
  const std::size_t count = carets.size();
  if (count >= 2 && liesBetween(carets[count - 1], carets[count - 2], caret)) carets.pop_back();
  carets.push_back(caret);
  if (carets.size() <= MostUnshownCarets) return;
  settle();
  // A surface without a size shows nothing that an old caret could have moved.
  if (!carets.empty()) carets.erase(carets.begin());
}

void Viewport::settle() {
  if (frame_.Height() <= 0 || frame_.Width() <= 0) return;
  if (std::exchange(scrollMayBeOff_, false) && scroll_.offset > 0) {
    const ParagraphShape shape = layout_.layOut(paragraph(scroll_.paragraph).view());
    if (scroll_.offset >= shape.height) scroll_.offset = shape.lines.back().top;
  }
  for (const int caret : unshownCarets_)
    showCaret(document_.clamped(caret));
  unshownCarets_.clear();
}

void Viewport::showCaret(int caret) {
  const LinePlace line = lineAt(caret);
  const bool above = line.paragraph < scroll_.paragraph ||
                     (line.paragraph == scroll_.paragraph && line.top < scroll_.offset);
  if (above) {
    scroll_ = {line.paragraph, line.top};
    return;
  }
  const int height = frame_.Height();
  int bottom = line.top + line.height - scroll_.offset;
  for (int each = scroll_.paragraph; each < line.paragraph && bottom <= height; ++each) {
    bottom += heightOf(each);
  }
  if (bottom > height) showAsLastLine(line);
}

void Viewport::showAsLastLine(const LinePlace& line) {
  int room = frame_.Height() - line.top - line.height;
  int index = line.paragraph;
  while (room > 0 && index > 0) {
    --index;
    room -= heightOf(index);
  }
  scroll_ = {index, std::max(-room, 0)};
  // A line higher than the surface shows its upper part.
  if (index == line.paragraph) scroll_.offset = std::min(scroll_.offset, line.top);
}

bool Viewport::scrollTo(ScrollPlace place) {
  settle();
  const ScrollPlace before = scroll_;
  scroll_.paragraph = std::clamp(place.paragraph, 0, document_.paragraphCount() - 1);
  scroll_.offset = std::clamp(place.offset, 0, heightOf(scroll_.paragraph));
  return scroll_ != before;
}

bool Viewport::scrollBy(int twips) {
  settle();
  const ScrollPlace before = scroll_;
  const ParagraphSpot spot =
      spotAt(scroll_.paragraph, static_cast<long long>(scroll_.offset) + twips);
  scroll_ = {spot.paragraph, static_cast<int>(spot.y)};
  // The last line stays at the lower edge, unless all of the text is shorter than the surface.
  const int height = frame_.Height();
  long long below = -scroll_.offset;
  for (int each = scroll_.paragraph; each < document_.paragraphCount() && below < height; ++each) {
    below += heightOf(each);
  }
  if (twips > 0 && below < height) showAsLastLine(lineAt(document_.length()));
  return scroll_ != before;
}

// -- What has become of the document.

void Viewport::reset() {
  lineCounts_.forget();
  unshownCarets_.clear();
  scroll_ = {};
}

void Viewport::edited(const DocumentEdit& edit) {
  lineCounts_.changed(edit.first, edit.last, edit.paragraphsAdded);
  followEdit(edit);
  for (int& caret : unshownCarets_)
    caret = edit.moved(caret);
}

// What is in view stays there when the text ahead of it grows or shrinks.
void Viewport::followEdit(const DocumentEdit& edit) {
  if (scroll_.paragraph < edit.first) return;
  if (scroll_.paragraph > edit.last) {
    scroll_.paragraph += edit.paragraphsAdded;
    return;
  }
  const int now = std::min(scroll_.paragraph, edit.last + edit.paragraphsAdded);
  if (now != scroll_.paragraph) scroll_ = {now, 0};
  scrollMayBeOff_ = true;
}

void Viewport::restyled(TextRange range) {
  const int first = document_.paragraphOf(range.from);
  const int last = document_.paragraphOf(range.to);
  lineCounts_.changed(first, last, 0);
  if (first <= scroll_.paragraph && scroll_.paragraph <= last) scrollMayBeOff_ = true;
}

void Viewport::refonted() {
  lineCounts_.forget();
  scrollMayBeOff_ = true;
}

void Viewport::resized() {
  if (std::exchange(width_, frame_.Width()) != frame_.Width()) lineCounts_.forget();
  scrollMayBeOff_ = true;
}

void Viewport::Check() const {
  const bool inside = scroll_.paragraph >= 0 && scroll_.paragraph < document_.paragraphCount();
  if (!inside || scroll_.offset < 0) {
    throw std::logic_error("the surface is scrolled to no paragraph");
  }
}

} // namespace talvora
