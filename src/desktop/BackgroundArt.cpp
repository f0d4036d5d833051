#include "desktop/BackgroundArt.h"

#include "desktop/Fonts.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include <algorithm>
#include <array>
#include <cmath>

namespace talvora {

namespace {

// The picture is made of parts of its width and height.
constexpr double Horizon = 0.64;
constexpr int Softness = 2; ///< sky, hills and mist are painted that many times smaller

struct Hill {
  double x;      ///< middle of its foot
  double width;  ///< of its foot
  double height; ///< of its top above the horizon
  double lean;   ///< of its top to the right
};

/// A row of hills at one distance.
template <std::size_t Count>
struct Ridge {
  QRgb top;
  QRgb foot;
  std::array<Hill, Count> hills;
};

constexpr Ridge<8> FarHills = {0xFFAEC3CE,
                               0xFFD9E2E2,
                               {{{0.03, 0.17, 0.20, 0.01},
                                 {0.16, 0.12, 0.13, -0.01},
                                 {0.29, 0.15, 0.24, 0.01},
                                 {0.43, 0.13, 0.16, 0.00},
                                 {0.55, 0.11, 0.11, 0.01},
                                 {0.67, 0.15, 0.21, -0.01},
                                 {0.81, 0.14, 0.15, 0.01},
                                 {0.96, 0.18, 0.26, -0.01}}}};
constexpr Ridge<6> MiddleHills = {0xFF7FA3AC,
                                  0xFFC3D6D6,
                                  {{{0.08, 0.16, 0.28, 0.01},
                                    {0.20, 0.10, 0.15, -0.01},
                                    {0.36, 0.11, 0.12, 0.01},
                                    {0.74, 0.11, 0.13, 0.00},
                                    {0.86, 0.13, 0.24, -0.01},
                                    {0.99, 0.13, 0.17, 0.00}}}};
constexpr Ridge<4> NearHills = {0xFF4F7F82,
                                0xFFA6C3C1,
                                {{{0.005, 0.15, 0.36, 0.01},
                                  {0.115, 0.08, 0.14, 0.00},
                                  {0.905, 0.09, 0.16, 0.01},
                                  {1.000, 0.13, 0.33, -0.01}}}};

/// The steep sides and the rounded top of a limestone hill.
QPainterPath outlineOf(const Hill& hill, QSizeF size) {
  const double foot = size.height() * Horizon + 1;
  const double half = hill.width * size.width() / 2;
  const double middle = hill.x * size.width();
  const double top = foot - hill.height * size.height();
  const double peak = middle + hill.lean * size.width();
  const double rise = foot - top;
  QPainterPath path(QPointF(middle - half, foot));
  path.cubicTo(middle - half * 0.84, foot - rise * 0.20, middle - half * 0.82, foot - rise * 0.46,
               middle - half * 0.64, foot - rise * 0.66);
  path.cubicTo(middle - half * 0.50, foot - rise * 0.86, peak - half * 0.30, top, peak, top);
  path.cubicTo(peak + half * 0.26, top, middle + half * 0.40, foot - rise * 0.90,
               middle + half * 0.56, foot - rise * 0.70);
  path.cubicTo(middle + half * 0.80, foot - rise * 0.50, middle + half * 0.80, foot - rise * 0.18,
               middle + half, foot);
  path.closeSubpath();
  return path;
}

void paintSky(QPainter& painter, QSizeF size) {
  const double horizon = size.height() * Horizon;
  QLinearGradient sky(0, 0, 0, horizon);
  sky.setColorAt(0, QColor(0xFFA9C8DA));
  sky.setColorAt(0.45, QColor(0xFFD3E1E4));
  sky.setColorAt(0.8, QColor(0xFFF6E6D2));
  sky.setColorAt(1, QColor(0xFFFAEBDB));
  painter.fillRect(QRectF(0, 0, size.width(), horizon + 1), sky);

  const QPointF sun(size.width() * 0.62, horizon * 0.66);
  const double glow = size.height() * 0.34;
  QRadialGradient light(sun, glow);
  light.setColorAt(0, QColor(255, 250, 232, 235));
  light.setColorAt(0.12, QColor(255, 244, 214, 190));
  light.setColorAt(1, QColor(255, 240, 214, 0));
  painter.fillRect(QRectF(sun.x() - glow, sun.y() - glow, 2 * glow, 2 * glow)
                       .intersected(QRectF(0, 0, size.width(), horizon)),
                   light);
}

template <std::size_t Count>
void paintRidge(QPainter& painter, QSizeF size, const Ridge<Count>& ridge) {
  const double horizon = size.height() * Horizon;
  const double highest = std::max_element(ridge.hills.begin(), ridge.hills.end(),
                                          [](const Hill& left, const Hill& right) {
                                            return left.height < right.height;
                                          })
                             ->height;
  QLinearGradient rock(0, horizon - highest * size.height(), 0, horizon);
  rock.setColorAt(0, QColor(ridge.top));
  rock.setColorAt(1, QColor(ridge.foot));
  painter.setPen(Qt::NoPen);
  painter.setBrush(rock);
  for (const Hill& hill : ridge.hills)
    painter.drawPath(outlineOf(hill, size));
}

void paintMist(QPainter& painter, QSizeF size, double opacity) {
  const double horizon = size.height() * Horizon;
  const double height = size.height() * 0.14;
  QLinearGradient mist(0, horizon - height, 0, horizon);
  mist.setColorAt(0, QColor(250, 243, 233, 0));
  mist.setColorAt(1, QColor(250, 243, 233, static_cast<int>(opacity * 255)));
  painter.fillRect(QRectF(0, horizon - height, size.width(), height), mist);
}

void paintWater(QPainter& painter, QSizeF size) {
  const double horizon = size.height() * Horizon;
  QLinearGradient water(0, horizon, 0, size.height());
  water.setColorAt(0, QColor(0xFFE9E6DC));
  water.setColorAt(0.22, QColor(0xFFC4D8DA));
  water.setColorAt(1, QColor(0xFF6E9AA6));
  painter.fillRect(QRectF(0, horizon, size.width(), size.height() - horizon), water);
}

/// The hills stand on their heads in the water, faintly.
void paintReflections(QPainter& painter, QSizeF size) {
  painter.save();
  painter.translate(0, 2 * size.height() * Horizon);
  painter.scale(1, -1);
  painter.setOpacity(0.16);
  paintRidge(painter, size, MiddleHills);
  paintRidge(painter, size, NearHills);
  painter.restore();
}

QImage paintSoftParts(QSize size) {
  QImage picture(size, QImage::Format_RGB32);
  picture.fill(QColor(0xFFD3E1E4));
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  paintSky(painter, size);
  paintRidge(painter, size, FarHills);
  paintMist(painter, size, 0.75);
  paintRidge(painter, size, MiddleHills);
  paintMist(painter, size, 0.6);
  paintRidge(painter, size, NearHills);
  paintMist(painter, size, 0.35);
  paintWater(painter, size);
  paintReflections(painter, size);
  return picture;
}

/// Long, low glints; they get longer and further apart towards the shore.
void paintRipples(QPainter& painter, QSizeF size) {
  const double horizon = size.height() * Horizon;
  const double water = size.height() - horizon;
  constexpr int Rows = 22;
  for (int row = 1; row <= Rows; ++row) {
    const double depth = static_cast<double>(row) / Rows;
    const double y = horizon + water * depth * depth * 0.98 + 2;
    const double length = size.width() * (0.03 + 0.09 * depth);
    // Any fixed scatter does.
    const double x = size.width() * std::fmod(row * 0.381966 + depth * 0.27, 1.0);
    painter.setPen(QPen(QColor(255, 255, 255, 46),
                        std::max(1.0, size.height() / 620 * (0.6 + depth)), Qt::SolidLine,
                        Qt::RoundCap));
    painter.drawLine(QPointF(x, y), QPointF(x + length, y));
    painter.drawLine(QPointF(size.width() - x, y + 2),
                     QPointF(size.width() - x + length * 0.6, y + 2));
  }
}

/// A boat with one batten sail and its shade on the water.
void paintBoat(QPainter& painter, QPointF at, double unit) {
  painter.save();
  painter.translate(at);
  painter.scale(unit, unit);
  painter.setPen(Qt::NoPen);

  painter.setBrush(QColor(40, 60, 66, 46));
  painter.drawEllipse(QPointF(1, 5.5), 27, 3);

  QPainterPath hull(QPointF(-25, -5));
  hull.cubicTo(-16, 1, 16, 1, 27, -8);
  hull.cubicTo(23, 3, 18, 5, 12, 5);
  hull.lineTo(-13, 5);
  hull.cubicTo(-19, 5, -23, 1, -25, -5);
  painter.setBrush(QColor(0xFF4A3A34));
  painter.drawPath(hull);

  QPainterPath sail(QPointF(1, -7));
  sail.lineTo(2, -54);
  sail.cubicTo(17, -46, 25, -27, 23, -10);
  sail.closeSubpath();
  painter.setBrush(QColor(0xFFB5674A));
  painter.drawPath(sail);
  QPainterPath jib(QPointF(-2, -8));
  jib.lineTo(-1, -44);
  jib.cubicTo(-9, -33, -15, -20, -17, -9);
  jib.closeSubpath();
  painter.setBrush(QColor(0xFFC98460));
  painter.drawPath(jib);

  painter.setPen(QPen(QColor(0xFF4A3A34), 1.1));
  painter.drawLine(QPointF(0.5, -2), QPointF(0.5, -57));
  painter.setPen(QPen(QColor(90, 44, 30, 110), 0.7));
  painter.drawLine(QPointF(2, -42), QPointF(14.5, -39));
  painter.drawLine(QPointF(2, -30), QPointF(20.5, -27));
  painter.drawLine(QPointF(2, -18), QPointF(23, -17));
  painter.restore();
}

/// The name and one line on the two keys that lead everywhere, in the empty sky over the menu.
void paintName(QPainter& painter, QSizeF size) {
  const double height = size.height();
  const auto write = [&](const FontSpec& face, double part, double y, const QColor& colour,
                         const QString& text) {
    QFont font = fontFor(face);
    font.setPixelSize(std::max(1, qRound(height * part)));
    painter.setFont(font);
    painter.setPen(colour);
    painter.drawText(QRectF(0, height * y, size.width(), height * part * 1.6),
                     Qt::AlignHCenter | Qt::AlignTop, text);
  };
  write({"Vni-centur", 12, true}, 0.085, 0.055, QColor(0xFF1F4A5C), QStringLiteral("Talvora"));
  write({"x1", 12, true}, 0.031, 0.175, QColor(0xFF1B3F50),
        QStringLiteral("Học tiếng Anh qua bài đọc   ·   F2: cách dùng   ·   Esc: quay lại"));
}

} // namespace

QPixmap drawSign(int size) {
  QPixmap picture(size, size);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  QLinearGradient water(0, 0, 0, size);
  water.setColorAt(0, QColor(0xFFD3E1E4));
  water.setColorAt(1, QColor(0xFF6E9AA6));
  painter.setPen(Qt::NoPen);
  painter.setBrush(water);
  painter.drawRoundedRect(QRectF(0, 0, size, size), size * 0.2, size * 0.2);
  paintBoat(painter, {size * 0.5, size * 0.8}, size / 76.0);
  return picture;
}

QImage drawLandscape(QSize size) {
  QImage picture(size, QImage::Format_RGB32);
  if (size.isEmpty()) return picture;
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(picture.rect(), paintSoftParts((size / Softness).expandedTo({1, 1})));
  painter.setRenderHint(QPainter::Antialiasing);
  paintRipples(painter, size);
  const double unit = size.height() / 1000.0;
  paintBoat(painter, {size.width() * 0.265, size.height() * 0.885}, unit * 1.35);
  paintBoat(painter, {size.width() * 0.845, size.height() * 0.735}, unit * 0.5);
  return picture;
}

void writeName(QPixmap& picture) {
  if (picture.isNull()) return;
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  paintName(painter, picture.size());
}

} // namespace talvora
