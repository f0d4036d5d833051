// talvora-web-assets: writes what the browser front has in common with the desktop program, out of
// the desktop program itself: the measures of the faces, the landscape, the sign.

#include "FaceMeasures.h"
#include "desktop/BackgroundArt.h"
#include "desktop/Fonts.h"

#include <QFile>
#include <QGuiApplication>
#include <QPixmap>

#include <iostream>
#include <string>

namespace {

constexpr int Failed = 1;
constexpr int BadUse = 2;
/// Twice the form of the virtual screen, which serves screens up to 4K.
constexpr QSize LandscapeSize(2732, 1490);
constexpr int LandscapeQuality = 88;

bool writeAll(const QString& folder) {
  QFile measures(folder + QStringLiteral("/faces.bin"));
  const QByteArray bytes = talvora::faceMeasures();
  if (!measures.open(QIODevice::WriteOnly) || measures.write(bytes) != bytes.size()) return false;
  QPixmap landscape = QPixmap::fromImage(talvora::drawLandscape(LandscapeSize));
  talvora::writeName(landscape);
  if (!landscape.save(folder + QStringLiteral("/landscape.jpg"), "JPG", LandscapeQuality)) {
    return false;
  }
  for (const int size : {192, 512}) {
    const QString file = folder + QStringLiteral("/sign-%1.png").arg(size);
    if (!talvora::drawSign(size).save(file)) return false;
  }
  return true;
}

} // namespace

int main(int argc, char** argv) {
  const QGuiApplication application(argc, argv);
  if (argc != 2) {
    std::cerr << "usage: talvora-web-assets FOLDER\n";
    return BadUse;
  }
  talvora::loadFonts();
  if (writeAll(QString::fromLocal8Bit(argv[1]))) return 0;
  std::cerr << "talvora-web-assets: " << argv[1] << ": cannot be written\n";
  return Failed;
}
