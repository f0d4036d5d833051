#include "core/WebLayout.h"

#include <cmath>
#include <cstring>
#include <vector>

namespace talvora::web {

namespace {

constexpr std::size_t MostParagraphs = 1000;

template <class Value>
void append(std::string& key, const Value& value) {
  char bytes[sizeof(Value)];
  std::memcpy(bytes, &value, sizeof(Value));
  key.append(bytes, sizeof(Value));
}

void append(std::string& key, const FontSpec& font) {
  key += font.name;
  key += '\0';
  append(key, font.size);
  append(key, font.bold);
}

/// All that a paragraph's look depends on.
std::string keyOf(const ParagraphView& paragraph) {
  std::string key;
  key.reserve(64 + paragraph.text.size() + paragraph.runs.size() * 24);
  append(key, paragraph.width);
  append(key, paragraph.style.align);
  append(key, paragraph.style.indent);
  append(key, paragraph.style.bullet);
  append(key, paragraph.defaultFont);
  append(key, paragraph.runs.size());
  for (const StyleRun& run : paragraph.runs) {
    append(key, run.from);
    append(key, run.style->font);
    append(key, run.style->italic);
    append(key, run.style->underline);
    append(key, run.style->color);
  }
  key += paragraph.text;
  return key;
}

} // namespace

double WebTextMetrics::widthOf(std::string_view text, const FontSpec& font) const {
  constexpr int Endless = 1 << 24;
  CharStyle style;
  style.font = font;
  const StyleRun run{0, &style};
  ParagraphView view{text, {&run, 1}, {}, font, Endless};
  const Paragraph line(faces_, view, 0);
  const std::vector<Box> boxes = line.rectsOf(0, static_cast<int>(text.size()));
  return boxes.empty() ? 0 : boxes.front().width;
}

int WebTextMetrics::TextWidth(std::string_view text, const FontSpec& font) const {
  return static_cast<int>(std::ceil(widthOf(text, font)));
}

int WebTextMetrics::TextHeight(std::string_view, const FontSpec& font) const {
  return static_cast<int>(std::ceil(faces_.lineHeight(faceOf(font, false), sizeOf(font))));
}

ParagraphShape WebLineLayout::layOut(const ParagraphView& paragraph) const {
  return shaped(paragraph).shape();
}

CaretPlace WebLineLayout::placeOf(const ParagraphView& paragraph, int offset) const {
  return shaped(paragraph).placeOf(offset);
}

int WebLineLayout::offsetAt(const ParagraphView& paragraph, int x, int y) const {
  return shaped(paragraph).offsetAt(x, y);
}

const Paragraph& WebLineLayout::shaped(const ParagraphView& paragraph) const {
  std::string key = keyOf(paragraph);
  if (const auto found = places_.find(key); found != places_.end()) {
    entries_.splice(entries_.begin(), entries_, found->second);
    return entries_.front().paragraph;
  }
  if (entries_.size() == MostParagraphs) {
    places_.erase(entries_.back().key);
    entries_.pop_back();
  }
  entries_.emplace_front(std::move(key), faces_, paragraph, ++lastSerial_);
  places_.emplace(entries_.front().key, entries_.begin());
  return entries_.front().paragraph;
}

} // namespace talvora::web
