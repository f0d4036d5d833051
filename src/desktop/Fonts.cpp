#include "desktop/Fonts.h"

#include "text/GlyphMap.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QResource>
#include <QStringList>

#include <algorithm>
#include <cmath>

// The resource's initialiser stands outside every namespace.
static void initFontResource() {
  Q_INIT_RESOURCE(fonts);
}

namespace talvora {

namespace {

constexpr double TwipsPerPoint = 20;
constexpr double LinePitch = 1.32;     ///< in sizes of the letters
constexpr double SmallestTitle = 22.5; // points

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
  static const QString family = load("Lato-Regular.ttf");
  return family;
}

const QString& sansSemibold() {
  static const QString family = load("Lato-Semibold.ttf");
  return family;
}

const QString& sansBold() {
  static const QString family = load("Lato-Bold.ttf");
  return family;
}

const QString& sansItalic() {
  static const QString family = load("Lato-Italic.ttf");
  return family;
}

const QString& sansSemiboldItalic() {
  static const QString family = load("Lato-SemiboldItalic.ttf");
  return family;
}

/// Pages of the large class are bold throughout: a semibold is easier on the eye there, and leaves
/// the bold to what is set larger, the titles.
QFont::Weight weightOf(const FontSpec& font) {
  if (!font.bold) return QFont::Normal;
  const bool vni = encodingOf(font.name) == Encoding::Vni;
  return vni || font.size >= SmallestTitle ? QFont::Bold : QFont::DemiBold;
}

const QString& familyOf(const FontSpec& font, bool italic) {
  if (encodingOf(font.name) == Encoding::Vni) return font.bold ? scholaBold() : schola();
  if (italic) return font.bold ? sansSemiboldItalic() : sansItalic();
  if (!font.bold) return sans();
  return weightOf(font) == QFont::Bold ? sansBold() : sansSemibold();
}

QFont makeFont(const FontSpec& font, bool italic) {
  QFont result(familyOf(font, italic));
  result.setPixelSize(std::max(1, static_cast<int>(std::lround(font.size * TwipsPerPoint))));
  result.setWeight(italic && font.bold ? QFont::DemiBold : weightOf(font));
  result.setItalic(italic);
  // A trace of spacing keeps letters apart that the face would draw as one: each is to be clicked,
  // selected and typed by itself.
  result.setLetterSpacing(QFont::AbsoluteSpacing, 0.05);
  // Letters stand where the layout put them, at any scale.
  result.setHintingPreference(QFont::PreferNoHinting);
  result.setStyleStrategy(
      QFont::StyleStrategy(QFont::PreferAntialias | QFont::NoSubpixelAntialias));
  return result;
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

double lineHeightOf(const QFont& font) {
  return std::max(QFontMetricsF(font).height(), font.pixelSize() * LinePitch);
}

} // namespace talvora
