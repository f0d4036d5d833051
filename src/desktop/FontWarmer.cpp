#include "desktop/FontWarmer.h"

#include "desktop/Fonts.h"
#include "text/Bytes.h"
#include "text/Contains.h"
#include "text/GlyphMap.h"

#include <QImage>
#include <QPainter>
#include <QTextLayout>

#include <string>
#include <utility>

namespace talvora {

namespace {

constexpr int StepMs = 12; ///< between two steps, for whatever else is to be done
constexpr int LettersAtOnce = 24;
/// One of so many parts of the atlas is left to the letters of what the learner opens.
constexpr int FullParts = 4;

/// Every letter that a text of the program can show.
QString everyLetter() {
  std::string bytes;
  for (int code = ' '; code < 256; ++code)
    bytes += chr(code);
  QString letters = QString::fromStdU16String(toUnicode(bytes, Encoding::X1));
  // No face has those; they would be sought in every font of the machine.
  letters.removeIf([](QChar letter) { return !letter.isPrint(); });
  return letters;
}

} // namespace

std::vector<CharStyle> stylesOf(const ReadingControls& controls) {
  std::vector<CharStyle> styles;
  const auto add = [&](const FontSpec& font, bool italic) {
    CharStyle style;
    style.font = font;
    style.italic = italic;
    if (!contains(styles, style)) styles.push_back(style);
  };
  const auto addBoth = [&](FontSpec font) {
    add(font, false);
    font.bold = !font.bold;
    add(font, false);
  };
  addBoth(controls.RHD.Font());
  add(controls.RHD.Font(), true);
  // What a section has not given its size is not about to be seen.
  if (controls.R2.Font().size != FontSpec().size) addBoth(controls.R2.Font());
  add(controls.RDOS.Font(), false);
  return styles;
}

FontWarmer::FontWarmer(LetterAtlas& letters) : atlas_(letters) {
  pace_.setSingleShot(true);
  QObject::connect(&pace_, &QTimer::timeout, this, [this] { step(); });
}

void FontWarmer::warm(std::vector<CharStyle> styles, double pixelsPerTwip) {
  // A face that came later would take away what is ready by then.
  loadFonts();
  if (std::exchange(scale_, pixelsPerTwip) != pixelsPerTwip) ready_.clear();
  std::erase_if(styles, [this](const CharStyle& style) { return contains(ready_, style); });
  styles_ = std::move(styles);
  letters_ = everyLetter();
  style_ = 0;
  letter_ = 0;
  pace_.start(StepMs);
}

void FontWarmer::step() {
  if (style_ == styles_.size()) return;
  draw(letters_.mid(letter_, LettersAtOnce));
  letter_ += LettersAtOnce;
  if (letter_ >= letters_.size()) {
    letter_ = 0;
    ready_.push_back(styles_[style_++]);
    // Letters that have their pictures are not read again.
    if (style_ == styles_.size()) letFaceMemoryGo();
  }
  pace_.start(StepMs);
}

void FontWarmer::draw(const QString& letters) {
  const QFont font = fontFor(styles_[style_]);
  QImage somewhere(64, 64, QImage::Format_RGB32);
  QPainter painter(&somewhere);
  painter.scale(scale_, scale_);
  if (!LetterAtlas::serves(painter, font.pixelSize())) {
    // What is painted is thrown away; the pictures of the letters stay with the face.
    painter.setFont(font);
    painter.drawText(QPointF(0, 0), letters);
    return;
  }
  // What comes first would have to go when the last of it no longer fits.
  if (atlas_.size() > atlas_.most() / FullParts * (FullParts - 1)) return;
  QTextLayout layout(letters, font);
  layout.beginLayout();
  layout.createLine();
  layout.endLayout();
  for (const QGlyphRun& run : layout.glyphRuns())
    atlas_.warm(run, scale_);
}

void FontWarmer::finish() {
  while (style_ < styles_.size())
    step();
  pace_.stop();
}

} // namespace talvora
