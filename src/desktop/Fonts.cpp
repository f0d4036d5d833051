#include "desktop/Fonts.h"

#include "text/GlyphMap.h"

#include <QFontDatabase>
#include <QFontMetricsF>
#include <QResource>
#include <QStringList>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <span>
#include <sys/mman.h>
#include <unistd.h>
#include <vector>

// The resource's initialiser stands outside every namespace.
static void initFontResource() {
  Q_INIT_RESOURCE(fonts);
}

namespace talvora {

namespace {

constexpr double TwipsPerPoint = 20;
constexpr double LinePitch = 1.32;     ///< in sizes of the letters
constexpr double SmallestTitle = 22.5; // points

using Bytes = std::span<const uchar>;

/// The faces that are loaded, where they lie in the program's file.
std::vector<Bytes>& loadedFaces() {
  static std::vector<Bytes> faces;
  return faces;
}

/// Has the toolkit look through the faces of the machine: of two of one name it takes the one that
/// it came to know later, which is to be ours.
void meetFacesOfMachine() {
  static const bool met = !QFontDatabase::families().isEmpty();
  static_cast<void>(met);
}

/// Loads an embedded face and returns its family. The face is read where it lies in the program:
/// loaded as a file it would be copied twice.
QString load(const char* file) {
  initFontResource();
  meetFacesOfMachine();
  const QResource face(QStringLiteral(":/fonts/") + QLatin1String(file));
  const Bytes bytes(face.data(), static_cast<std::size_t>(face.size()));
  loadedFaces().push_back(bytes);
  const int id = QFontDatabase::addApplicationFontFromData(QByteArray::fromRawData(
      reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())));
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

void loadMenuFonts() {
  schola();
  scholaBold();
  sans();
  sansSemibold();
}

void loadFonts() {
  loadMenuFonts();
  sansBold();
  sansItalic();
  sansSemiboldItalic();
}

void letFaceMemoryGo() {
  const auto page = static_cast<std::uintptr_t>(::sysconf(_SC_PAGESIZE));
  for (const Bytes face : loadedFaces()) {
    const auto begin = reinterpret_cast<std::uintptr_t>(face.data());
    const std::uintptr_t from = (begin + page - 1) / page * page;
    const std::uintptr_t to = (begin + face.size()) / page * page;
    if (from < to) ::madvise(reinterpret_cast<void*>(from), to - from, MADV_DONTNEED); // NOLINT
  }
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
