#include "fronts/ScrollBar.h"

#include <algorithm>
#include <cmath>

namespace talvora {

namespace {

constexpr int MostMeasured = 60;   // paragraphs
constexpr double LeastThumb = 480; // twips
constexpr double PagePart = 0.9;   // of what is in view
// From here on the end of the text is meant, however its last lines are made.
constexpr double AtTheEnd = 0.9995;

} // namespace

bool ScrollBar::isMeasured() const {
  return surface_.paragraphCount() <= MostMeasured;
}

int ScrollBar::heightOf(int paragraph) const {
  return layout_.heightOf(surface_.paragraph(paragraph).view());
}

ScrollBar::Extent ScrollBar::extent() const {
  const ScrollPlace scroll = surface_.scroll();
  const int count = surface_.paragraphCount();
  int bottom = -scroll.offset;
  int end = scroll.paragraph; // of what is in view
  while (end < count && bottom < surface_.Height())
    bottom += heightOf(end++);
  if (end == count && bottom <= surface_.Height() && scroll == ScrollPlace{}) return {};
  Extent extent{static_cast<double>(scroll.paragraph), static_cast<double>(end - scroll.paragraph),
                static_cast<double>(count), true};
  if (!isMeasured()) return extent;
  extent.above = scroll.offset;
  extent.inView = surface_.Height();
  extent.all = 0;
  for (int each = 0; each < count; ++each) {
    if (each == scroll.paragraph) extent.above += extent.all;
    extent.all += heightOf(each);
  }
  return extent;
}

ScrollBar::Thumb ScrollBar::thumb(const Extent& extent) const {
  const double height = surface_.Height();
  const double part = extent.all > 0 ? std::clamp(extent.inView / extent.all, 0.0, 1.0) : 1.0;
  const double length = std::min(std::max(part * height, LeastThumb), height);
  const double below = extent.all - extent.inView;
  const double place = below > 0 ? std::clamp(extent.above / below, 0.0, 1.0) : 0;
  return {place * (height - length), length};
}

ScrollPlace ScrollBar::placeAt(double above) const {
  const int last = surface_.paragraphCount() - 1;
  if (!isMeasured()) {
    const int paragraph = std::clamp(static_cast<int>(above), 0, last);
    return {paragraph, static_cast<int>((above - paragraph) * heightOf(paragraph))};
  }
  double rest = above;
  int paragraph = 0;
  while (paragraph < last && rest >= heightOf(paragraph))
    rest -= heightOf(paragraph++);
  return {paragraph, static_cast<int>(rest)};
}

void ScrollBar::bringThumbTo(double top, const Extent& extent) {
  const double way = surface_.Height() - thumb(extent).length;
  if (way <= 0) return;
  const double place = std::clamp(top / way, 0.0, 1.0);
  if (place < AtTheEnd) {
    surface_.scroll(placeAt(place * std::max(0.0, extent.all - extent.inView)));
    return;
  }
  surface_.scroll({surface_.paragraphCount() - 1, 0});
  // A turn of the wheel stops where the last line is at the lower edge.
  surface_.scrollBy(1);
}

void ScrollBar::page(int direction) {
  surface_.scrollBy(static_cast<int>(std::lround(direction * PagePart * surface_.Height())));
}

} // namespace talvora
