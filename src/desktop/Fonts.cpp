#include "desktop/Fonts.h"

#include "text/GlyphMap.h"

#include <QFontDatabase>
#include <QResource>
#include <QStringList>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <string>

// The resource's initialiser stands outside every namespace.
static void initFontResource() {
  Q_INIT_RESOURCE(fonts);
}

namespace talvora {

namespace {

constexpr double TwipsPerPoint = 20;

/// Loads an embedded face and returns its family. The face is read where it lies in the program:
/// loaded as a file it would be copied twice.
QString load(const char* file) {
  initFontResource();
  const QResource face(QStringLiteral(":/fonts/") + QLatin1String(file));
  const int id = QFontDatabase::addApplicationFontFromData(QByteArray::fromRawData(
      reinterpret_cast<const char*>(face.data()), static_cast<qsizetype>(face.size())));
  return id < 0 ? QString() : QFontDatabase::applicationFontFamilies(id).value(0);
}

// Each face is loaded by the first call, and never again.

const QString& schola() {
  static const QString family = load("texgyreschola-regular.otf");
  return family;
}

const QString& scholaBold() {
  static const QString family = load("texgyreschola-bold.otf");
  return family;
}

const QString& sans() {
  static const QString family = load("NotoSans-Regular.ttf");
  return family;
}

const QString& sansBold() {
  static const QString family = load("NotoSans-Bold.ttf");
  return family;
}

const QString& sansItalic() {
  static const QString family = load("NotoSans-Italic.ttf");
  return family;
}

const QString& sansBoldItalic() {
  static const QString family = load("NotoSans-BoldItalic.ttf");
  return family;
}

const QString& familyOf(const FontSpec& font, bool italic) {
  if (encodingOf(font.name) == Encoding::Vni) return font.bold ? scholaBold() : schola();
  if (italic) return font.bold ? sansBoldItalic() : sansItalic();
  return font.bold ? sansBold() : sans();
}

QFont makeFont(const FontSpec& font, bool italic) {
  QFont result(familyOf(font, italic));
  result.setPixelSize(std::max(1, static_cast<int>(std::lround(font.size * TwipsPerPoint))));
  result.setBold(font.bold);
  result.setItalic(italic);
  // Letters stand where the layout put them, at any scale.
  result.setHintingPreference(QFont::PreferNoHinting);
  result.setStyleStrategy(
      QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
  return result;
}

/// Every letter that a text of the program can show.
QString everyLetter() {
  std::string bytes;
  for (int code = ' '; code < 256; ++code)
    bytes += static_cast<char>(code);
  QString letters = QString::fromStdU16String(toUnicode(bytes, Encoding::X1));
  // No face has those; they would be sought in every font of the machine.
  letters.removeIf([](QChar letter) { return !letter.isPrint(); });
  return letters;
}

} // namespace

void loadFonts() {
  schola();
  sans();
}

QFont fontFor(const FontSpec& font) {
  return makeFont(font, false);
}

QFont fontFor(const CharStyle& style) {
  QFont font = makeFont(style.font, style.italic);
  font.setUnderline(style.underline);
  return font;
}

void warmFonts() {
  const QString letters = everyLetter();
  CharStyle plain;
  plain.font = {"x1", 13, false};
  CharStyle bold = plain;
  bold.font.bold = true;
  CharStyle italic = plain;
  italic.italic = true;
  for (const CharStyle& style : {plain, bold, italic}) {
    QTextLayout layout(letters, fontFor(style));
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
  }
}

} // namespace talvora
