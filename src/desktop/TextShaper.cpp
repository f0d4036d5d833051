#include "desktop/TextShaper.h"

#include "desktop/Fonts.h"
#include "desktop/Palette.h"
#include "desktop/Shown.h"
#include "fronts/TextMeasures.h"
#include "fronts/Units.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace talvora {

namespace {

QTextLayout::FormatRange formatOf(int from, int to, const CharStyle& style) {
  QTextLayout::FormatRange range;
  range.start = from;
  range.length = to - from;
  range.format.setFont(fontFor(style));
  range.format.setForeground(colourOf(style.color));
  return range;
}

Qt::Alignment alignmentOf(Alignment alignment) {
  switch (alignment) {
  case Alignment::Right:
    return Qt::AlignRight;
  case Alignment::Centred:
    return Qt::AlignHCenter;
  case Alignment::Left:
    break;
  }
  return Qt::AlignLeft;
}

/// Where the lines of a paragraph begin, in twips.
double leftOf(const ParagraphView& paragraph) {
  return TextMargin + paragraph.style.indent + (paragraph.style.bullet ? BulletIndent : 0);
}

} // namespace

// -- A paragraph.

double ShapedParagraph::tabDistance(const FontSpec& font) {
  return std::max(1.0, TabCharacters * QFontMetricsF(fontFor(font)).averageCharWidth());
}

double ShapedParagraph::roomOf(const ParagraphView& paragraph) {
  const bool centred = paragraph.style.align == Alignment::Centred;
  const double right = centred ? TextMargin : TextMargin + ScrollMarkRoom;
  return std::max(1.0, paragraph.width - right - leftOf(paragraph));
}

ShapedParagraph::ShapedParagraph(const ParagraphView& paragraph, std::uint64_t serial)
    : serial_(serial), length_(static_cast<int>(paragraph.text.size())),
      bullet_(paragraph.style.bullet) {
  setText(paragraph);
  breakLines(paragraph);
}

void ShapedParagraph::setText(const ParagraphView& paragraph) {
  std::u16string text;
  QList<QTextLayout::FormatRange> formats;
  for (std::size_t run = 0; run < paragraph.runs.size(); ++run) {
    const int from = paragraph.runs[run].from;
    const int to = run + 1 < paragraph.runs.size() ? paragraph.runs[run + 1].from : length_;
    const CharStyle& style = *paragraph.runs[run].style;
    const auto bytes = paragraph.text.substr(static_cast<std::size_t>(from),
                                             static_cast<std::size_t>(std::max(0, to - from)));
    text += unitsOf(bytes, style.font.name);
    formats.append(formatOf(from, to, style));
    largest_ = std::max(largest_, formats.back().format.font().pixelSize());
  }
  hideSentenceMarks(text);
  layout_.setText(shown(text));
  layout_.setFont(fontFor(*paragraph.runs.front().style));
  layout_.setFormats(formats);
  layout_.setCacheEnabled(true);
}

void ShapedParagraph::breakLines(const ParagraphView& paragraph) {
  const double tab = tabDistance(paragraph.defaultFont);
  QTextOption option(alignmentOf(paragraph.style.align));
  option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  option.setTextDirection(Qt::LeftToRight);
  option.setTabStopDistance(tab);
  layout_.setTextOption(option);
  placeLines(paragraph);
  if (widenTabs(paragraph.text, tab / TabCharacters)) placeLines(paragraph);
}

void ShapedParagraph::placeLines(const ParagraphView& paragraph) {
  const double left = leftOf(paragraph);
  const double room = roomOf(paragraph);
  bulletX_ = TextMargin + paragraph.style.indent + BulletIndent / 2.0;
  shape_ = {};
  layout_.beginLayout();
  for (QTextLine line = layout_.createLine(); line.isValid(); line = layout_.createLine()) {
    line.setLineWidth(room);
    const int height = pitchOf(line);
    line.setPosition({left, shape_.height + (height - line.height()) / 2});
    shape_.lines.push_back({line.textStart(), shape_.height, height});
    shape_.height += height;
  }
  layout_.endLayout();
}

int ShapedParagraph::pitchOf(const QTextLine& line) const {
  double height = line.height();
  const int end = line.textStart() + std::max(1, line.textLength());
  for (const QTextLayout::FormatRange& range : layout_.formats()) {
    const bool inLine = range.start < end && range.start + range.length > line.textStart();
    if (inLine && range.format.hasProperty(QTextFormat::FontPixelSize)) {
      height = std::max(height, lineHeightOf(range.format.font()));
    }
  }
  if (length_ == 0) height = std::max(height, lineHeightOf(layout_.font()));
  return static_cast<int>(std::ceil(height));
}

bool ShapedParagraph::widenTabs(std::string_view text, double least) {
  QList<QTextLayout::FormatRange> formats = layout_.formats();
  const auto before = formats.size();
  for (auto at = text.find('\t', 1); at < text.size(); at = text.find('\t', at + 1)) {
    const int tab = static_cast<int>(at);
    const QTextLine line = layout_.lineForTextPosition(tab);
    if (line.cursorToX(tab + 1) - line.cursorToX(tab) >= least) continue;
    // Room behind the character ahead of it pushes the tab past its stop, on to the next one.
    QTextLayout::FormatRange range;
    range.start = tab - 1;
    range.length = 1;
    range.format.setFontLetterSpacingType(QFont::AbsoluteSpacing);
    range.format.setFontLetterSpacing(least);
    formats.append(range);
  }
  if (formats.size() == before) return false;
  layout_.setFormats(formats);
  return true;
}

std::size_t ShapedParagraph::lineOf(int offset) const {
  std::size_t line = 0;
  while (line + 1 < shape_.lines.size() && shape_.lines[line + 1].from <= offset)
    ++line;
  return line;
}

CaretPlace ShapedParagraph::placeOf(int offset) const {
  const int inside = std::clamp(offset, 0, length_);
  const std::size_t number = lineOf(inside);
  const LineShape& line = shape_.lines[number];
  const double x = layout_.lineAt(static_cast<int>(number)).cursorToX(inside);
  return {static_cast<int>(std::lround(x)), line.top, line.height};
}

int ShapedParagraph::offsetAt(int x, int y) const {
  std::size_t number = 0;
  while (number + 1 < shape_.lines.size() && shape_.lines[number + 1].top <= y)
    ++number;
  const bool lastLine = number + 1 == shape_.lines.size();
  // The caret behind a broken line's last character stands on the next line already.
  const int from = shape_.lines[number].from;
  const int last = lastLine ? length_ : std::max(from, shape_.lines[number + 1].from - 1);
  return std::clamp(layout_.lineAt(static_cast<int>(number)).xToCursor(x), from, last);
}

double ShapedParagraph::width() const {
  double width = 0;
  for (const QRectF& line : rectsOf(0, length_))
    width = std::max(width, line.width());
  return width;
}

std::vector<QRectF> ShapedParagraph::rectsOf(int from, int to) const {
  std::vector<QRectF> rects;
  for (std::size_t number = 0; number < shape_.lines.size(); ++number) {
    const LineShape& shape = shape_.lines[number];
    const QTextLine line = layout_.lineAt(static_cast<int>(number));
    const int first = std::max(from, shape.from);
    const int last = std::min(to, shape.from + line.textLength());
    if (first >= last) continue;
    const double left = line.cursorToX(first);
    const double right = line.cursorToX(last);
    rects.emplace_back(left, shape.top, right - left, shape.height);
  }
  return rects;
}

std::vector<std::pair<int, int>> ShapedParagraph::rangesIn(const QColor& colour) const {
  std::vector<std::pair<int, int>> ranges;
  for (const QTextLayout::FormatRange& range : layout_.formats()) {
    const bool coloured = range.format.hasProperty(QTextFormat::ForegroundBrush);
    if (!coloured || range.format.foreground().color() != colour) continue;
    int end = range.start + range.length;
    while (end > range.start && layout_.text()[end - 1].isSpace())
      --end;
    if (end > range.start) ranges.emplace_back(range.start, end);
  }
  return ranges;
}

void ShapedParagraph::paint(QPainter& painter, const QRectF& clip, const QColor& back,
                            LetterAtlas& letters) const {
  if (bullet_ && length_ > 0) paintBullet(painter, back);
  if (LetterAtlas::serves(painter, largest_)) {
    paintLarge(painter, clip, back, letters);
  } else {
    paintByQt(painter, clip, back);
  }
}

void ShapedParagraph::paintByQt(QPainter& painter, const QRectF& clip, const QColor& back) const {
  QList<QTextLayout::FormatRange> toned;
  for (const QTextLayout::FormatRange& range : layout_.formats()) {
    if (!range.format.hasProperty(QTextFormat::ForegroundBrush)) continue;
    const QColor own = range.format.foreground().color();
    const QColor tone = readableOn(own, back);
    if (tone == own) continue;
    QTextLayout::FormatRange other = range;
    other.format = {};
    other.format.setForeground(tone);
    toned.append(other);
  }
  layout_.draw(&painter, {0, 0}, toned, clip);
}

void ShapedParagraph::paintLarge(QPainter& painter, const QRectF& clip, const QColor& back,
                                 LetterAtlas& letters) const {
  painter.save();
  for (int number = 0; number < layout_.lineCount(); ++number) {
    const QTextLine line = layout_.lineAt(number);
    const QRectF place = line.rect();
    // Marks of a letter reach beyond its line.
    const double beyond = place.height() / 2;
    const bool above = place.bottom() + beyond < clip.top();
    if (!clip.isEmpty() && (above || place.top() - beyond > clip.bottom())) continue;
    for (const QTextLayout::FormatRange& range : layout_.formats())
      paintRange(painter, line, range, back, letters);
  }
  painter.restore();
}

void ShapedParagraph::paintRange(QPainter& painter, const QTextLine& line,
                                 const QTextLayout::FormatRange& range, const QColor& back,
                                 LetterAtlas& letters) const {
  if (!range.format.hasProperty(QTextFormat::ForegroundBrush)) return;
  const int from = std::max(range.start, line.textStart());
  const int to = std::min(range.start + range.length, line.textStart() + line.textLength());
  if (from >= to) return;
  const QColor colour = readableOn(range.format.foreground().color(), back);
  QList<QGlyphRun> runs = line.glyphRuns(from, to - from);
  if (!runs.isEmpty() && range.format.fontUnderline()) {
    const QRawFont face = runs.front().rawFont();
    const double y = line.y() + line.ascent() + face.underlinePosition();
    painter.setPen(QPen(colour, face.lineThickness(), Qt::SolidLine, Qt::FlatCap));
    painter.drawLine(QLineF(line.cursorToX(from), y, line.cursorToX(to), y));
  }
  for (QGlyphRun& run : runs) {
    run.setUnderline(false);
    letters.paint(painter, run, colour);
  }
}

void ShapedParagraph::paintBullet(QPainter& painter, const QColor& back) const {
  const LineShape& line = shape_.lines.front();
  const double radius = line.height * BulletRadius;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(readableOn(layout_.formats().front().format.foreground().color(), back));
  painter.drawEllipse(QPointF(bulletX_, line.top + line.height * 0.55), radius, radius);
  painter.restore();
}

// -- Metrics.

int QtTextMetrics::TextWidth(std::string_view text, const FontSpec& font) const {
  const double width =
      QFontMetricsF(fontFor(font)).horizontalAdvance(shown(unitsOf(text, font.name)));
  return static_cast<int>(std::ceil(width));
}

int QtTextMetrics::TextHeight(std::string_view, const FontSpec& font) const {
  return static_cast<int>(std::ceil(lineHeightOf(fontFor(font))));
}

} // namespace talvora
