#include "desktop/QtLineLayout.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <string_view>

namespace talvora {

namespace {

constexpr std::size_t MostParagraphs = 1000;

std::size_t mixed(std::size_t hash, std::size_t value) {
  return (hash ^ value) * 0x9E3779B97F4A7C15U;
}

/// Paragraphs of one text that look different in another way still lie together; few do.
std::size_t hashOf(const ParagraphView& paragraph) {
  std::size_t hash = std::hash<std::string_view>{}(paragraph.text);
  hash = mixed(hash, static_cast<std::size_t>(paragraph.width));
  hash = mixed(hash, std::hash<double>{}(paragraph.style.indent));
  for (const StyleRun& run : paragraph.runs) {
    hash = mixed(hash, static_cast<std::size_t>(run.from));
    hash = mixed(hash, run.style->color);
    hash = mixed(hash, std::hash<double>{}(run.style->font.size));
  }
  return hash;
}

} // namespace

QtLineLayout::Entry::Entry(const ParagraphView& view, std::size_t itsHash, std::uint64_t serial)
    : hash(itsHash), text(view.text), style(view.style), defaultFont(view.defaultFont),
      width(view.width), paragraph(view, serial) {
  for (const StyleRun& run : view.runs) {
    runStarts.push_back(run.from);
    styles.push_back(*run.style);
  }
}

bool QtLineLayout::Entry::isOf(const ParagraphView& view) const {
  if (text != view.text || width != view.width || style != view.style ||
      defaultFont != view.defaultFont || styles.size() != view.runs.size()) {
    return false;
  }
  for (std::size_t run = 0; run < styles.size(); ++run) {
    if (runStarts[run] != view.runs[run].from || styles[run] != *view.runs[run].style) return false;
  }
  return true;
}

QtLineLayout::Places::iterator QtLineLayout::found(const ParagraphView& paragraph,
                                                   std::size_t hash) const {
  const auto [first, last] = places_.equal_range(hash);
  const auto place =
      std::find_if(first, last, [&](const auto& each) { return each.second->isOf(paragraph); });
  return place == last ? places_.end() : place;
}

void QtLineLayout::dropOldest() const {
  const auto oldest = std::prev(entries_.end());
  const auto [first, last] = places_.equal_range(oldest->hash);
  places_.erase(std::find_if(first, last, [&](const auto& each) { return each.second == oldest; }));
  entries_.erase(oldest);
}

const ShapedParagraph& QtLineLayout::shaped(const ParagraphView& paragraph) const {
  const std::size_t hash = hashOf(paragraph);
  if (const auto place = found(paragraph, hash); place != places_.end()) {
    entries_.splice(entries_.begin(), entries_, place->second);
    return entries_.front().paragraph;
  }
  if (entries_.size() == MostParagraphs) dropOldest();
  entries_.emplace_front(paragraph, hash, ++lastSerial_);
  places_.emplace(hash, entries_.begin());
  return entries_.front().paragraph;
}

ParagraphShape QtLineLayout::layOut(const ParagraphView& paragraph) const {
  return shaped(paragraph).shape();
}

int QtLineLayout::heightOf(const ParagraphView& paragraph) const {
  return shaped(paragraph).shape().height;
}

int QtLineLayout::lineCount(const ParagraphView& paragraph) const {
  if (widths_.fitsOneLine(paragraph)) return 1;
  return static_cast<int>(shaped(paragraph).shape().lines.size());
}

CaretPlace QtLineLayout::placeOf(const ParagraphView& paragraph, int offset) const {
  return shaped(paragraph).placeOf(offset);
}

int QtLineLayout::offsetAt(const ParagraphView& paragraph, int x, int y) const {
  return shaped(paragraph).offsetAt(x, y);
}

} // namespace talvora
