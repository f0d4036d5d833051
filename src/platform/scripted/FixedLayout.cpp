#include "platform/scripted/FixedLayout.h"

#include "platform/scripted/FixedMetrics.h"
#include "text/Rounding.h"

#include <algorithm>
#include <cstddef>

namespace talvora {

namespace {

constexpr int marginChars = 2;
constexpr int tabChars = 4;

/// Walks over the characters of a paragraph in rising order and knows the run of each.
class RunWalker {
 public:
  explicit RunWalker(const ParagraphView& paragraph) : paragraph_(paragraph) {}

  const FontSpec& fontAt(int offset) {
    const auto& runs = paragraph_.runs;
    while (run_ + 1 < runs.size() && runs[run_ + 1].from <= offset)
      ++run_;
    return runs[run_].style->font;
  }
  int widthAt(int offset) {
    const int width = fixedCharWidth(fontAt(offset));
    return paragraph_.text[static_cast<std::size_t>(offset)] == '\t' ? tabChars * width : width;
  }

 private:
  const ParagraphView& paragraph_;
  std::size_t run_ = 0;
};

int length(const ParagraphView& paragraph) {
  return static_cast<int>(paragraph.text.size());
}

int indentOf(const ParagraphView& paragraph) {
  return Round(paragraph.style.indent);
}

/// Twips that a line may take.
int roomOf(const ParagraphView& paragraph) {
  const int margins = 2 * marginChars * fixedCharWidth(paragraph.defaultFont);
  return paragraph.width - margins - indentOf(paragraph);
}

/// Breaks one paragraph, character by character.
class LineBreaker {
 public:
  explicit LineBreaker(int room) : room_(room) {}

  void add(int offset, int width, char character) {
    const bool blank = character == ' ';
    if (!blank) breakAhead(offset, width);
    taken_ += width;
    if (blank) {
      word_ = offset + 1;
      takenAtWord_ = taken_;
    }
  }
  [[nodiscard]] const std::vector<int>& starts() const noexcept { return starts_; }

 private:
  void breakAhead(int offset, int width) {
    if (overflows(offset, width) && word_ > starts_.back()) startLine(word_, taken_ - takenAtWord_);
    // A word that does not fit by itself is broken.
    if (overflows(offset, width)) startLine(offset, 0);
  }
  [[nodiscard]] bool overflows(int offset, int width) const noexcept {
    return taken_ + width > room_ && offset > starts_.back();
  }
  void startLine(int offset, int taken) {
    starts_.push_back(offset);
    taken_ = taken;
  }

  int room_;
  std::vector<int> starts_ = {0};
  int taken_ = 0;       ///< by the line so far
  int word_ = 0;        ///< where the word at hand begins
  int takenAtWord_ = 0; ///< by the line up to there
};

std::vector<int> lineStarts(const ParagraphView& paragraph) {
  RunWalker walker(paragraph);
  LineBreaker breaker(roomOf(paragraph));
  for (int offset = 0; offset < length(paragraph); ++offset) {
    breaker.add(offset, walker.widthAt(offset), paragraph.text[static_cast<std::size_t>(offset)]);
  }
  return breaker.starts();
}

int heightOfLine(RunWalker& walker, int from, int to) {
  int height = fixedLineHeight(walker.fontAt(from));
  for (int offset = from + 1; offset < to; ++offset) {
    height = std::max(height, fixedLineHeight(walker.fontAt(offset)));
  }
  return height;
}

/// Offset behind the last character of a line.
int lineEnd(const ParagraphView& paragraph, const ParagraphShape& shape, std::size_t line) {
  return line + 1 < shape.lines.size() ? shape.lines[line + 1].from : length(paragraph);
}

int widthBetween(const ParagraphView& paragraph, int from, int to) {
  RunWalker walker(paragraph);
  int width = 0;
  for (int offset = from; offset < to; ++offset)
    width += walker.widthAt(offset);
  return width;
}

/// Where a line's first character stands. Blanks that hang over the edge do not count for it.
int lineLeft(const ParagraphView& paragraph, int from, int to) {
  const int left = marginChars * fixedCharWidth(paragraph.defaultFont) + indentOf(paragraph);
  if (paragraph.style.align == Alignment::Left) return left;
  while (to > from && paragraph.text[static_cast<std::size_t>(to - 1)] == ' ')
    --to;
  const int spare = std::max(0, roomOf(paragraph) - widthBetween(paragraph, from, to));
  return left + (paragraph.style.align == Alignment::Right ? spare : spare / 2);
}

std::size_t lineOfOffset(const ParagraphShape& shape, int offset) {
  const auto behind =
      std::upper_bound(shape.lines.begin(), shape.lines.end(), offset,
                       [](int value, const LineShape& line) { return value < line.from; });
  return static_cast<std::size_t>(behind - shape.lines.begin()) - 1;
}

std::size_t lineAtHeight(const ParagraphShape& shape, int y) {
  std::size_t line = 0;
  while (line + 1 < shape.lines.size() && shape.lines[line + 1].top <= y)
    ++line;
  return line;
}

} // namespace

ParagraphShape FixedLayout::layOut(const ParagraphView& paragraph) const {
  ParagraphShape shape;
  for (const int start : lineStarts(paragraph))
    shape.lines.push_back({start, 0, 0});
  RunWalker walker(paragraph);
  for (std::size_t line = 0; line < shape.lines.size(); ++line) {
    LineShape& each = shape.lines[line];
    each.top = shape.height;
    each.height = heightOfLine(walker, each.from, lineEnd(paragraph, shape, line));
    shape.height += each.height;
  }
  return shape;
}

CaretPlace FixedLayout::placeOf(const ParagraphView& paragraph, int offset) const {
  const ParagraphShape shape = layOut(paragraph);
  offset = std::clamp(offset, 0, length(paragraph));
  const std::size_t line = lineOfOffset(shape, offset);
  const LineShape& place = shape.lines[line];
  const int left = lineLeft(paragraph, place.from, lineEnd(paragraph, shape, line));
  return {left + widthBetween(paragraph, place.from, offset), place.top, place.height};
}

int FixedLayout::offsetAt(const ParagraphView& paragraph, int x, int y) const {
  const ParagraphShape shape = layOut(paragraph);
  const std::size_t line = lineAtHeight(shape, y);
  const int from = shape.lines[line].from;
  const int end = lineEnd(paragraph, shape, line);
  // The caret behind a broken line's last character stands on the next line already.
  const int last = line + 1 < shape.lines.size() ? end - 1 : end;
  RunWalker walker(paragraph);
  int left = lineLeft(paragraph, from, end);
  int offset = from;
  while (offset < last) {
    const int width = walker.widthAt(offset);
    if (2 * (x - left) <= width) break;
    left += width;
    ++offset;
  }
  return offset;
}

} // namespace talvora
