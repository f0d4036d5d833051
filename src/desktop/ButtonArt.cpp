#include "desktop/ButtonArt.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

namespace talvora {

namespace {

struct Face {
  QRgb top;
  QRgb bottom;
  QRgb edge;
  QRgb text;
};

constexpr Face Jade = {0xFFF6FBF6, 0xFFCFE5D8, 0xFF7FA893, 0xFF12342A};
constexpr Face Sand = {0xFFFEFAF0, 0xFFEFDDBB, 0xFFBFA06A, 0xFF3A2808};
constexpr Face Sky = {0xFFF5FAFD, 0xFFCCE0EC, 0xFF7F9FB6, 0xFF122E44};
constexpr Face Rose = {0xFFFEF7F4, 0xFFEED3CA, 0xFFBE9284, 0xFF42180E};
constexpr Face Lit = {0xFFFFF3CE, 0xFFF5C768, 0xFFA8761C, 0xFF3A2300};

const Face& faceOf(int bitmap) {
  switch (bitmap) {
  case 14:
    return Sky;
  case 15:
    return Rose;
  case 16:
    return Jade;
  case 17:
    return Sand;
  default:
    return Lit;
  }
}

constexpr int FirstRestFace = 14;
constexpr int LastRestFace = 17;
constexpr int StillFrame = 18;

/// Where the light stands in a frame, as a part of the width. From the middle the frames 8 to 13
/// lead to the right and 7 to 1 to the left.
double lightAt(int frame) {
  constexpr double Middle = 7.5;
  constexpr double Step = 0.065;
  return frame == StillFrame ? 0.5 : 0.5 + (frame - Middle) * Step;
}

void paintFace(QPainter& painter, const QRectF& box, const Face& face) {
  const double radius = box.height() * 0.26;
  // A soft shadow lifts the button off the landscape.
  painter.setPen(Qt::NoPen);
  for (const double spread : {1.6, 0.8}) {
    painter.setBrush(QColor(16, 40, 52, 34));
    painter.drawRoundedRect(box.adjusted(-spread / 2, spread, spread / 2, spread + 0.4), radius,
                            radius);
  }
  QLinearGradient fill(box.topLeft(), box.bottomLeft());
  fill.setColorAt(0, QColor(face.top));
  fill.setColorAt(1, QColor(face.bottom));
  painter.setBrush(fill);
  painter.setPen(QPen(QColor(face.edge), 1));
  painter.drawRoundedRect(box, radius, radius);
}

void paintSheen(QPainter& painter, const QRectF& box) {
  const QRectF upper(box.left() + 1.5, box.top() + 1.5, box.width() - 3, box.height() * 0.42);
  QLinearGradient sheen(upper.topLeft(), upper.bottomLeft());
  sheen.setColorAt(0, QColor(255, 255, 255, 150));
  sheen.setColorAt(1, QColor(255, 255, 255, 10));
  painter.setPen(Qt::NoPen);
  painter.setBrush(sheen);
  painter.drawRoundedRect(upper, box.height() * 0.2, box.height() * 0.2);
}

void paintLight(QPainter& painter, const QRectF& box, int frame) {
  QPainterPath inside;
  inside.addRoundedRect(box.adjusted(1, 1, -1, -1), box.height() * 0.24, box.height() * 0.24);
  painter.setClipPath(inside);
  const double reach = box.width() * (frame == StillFrame ? 0.42 : 0.3);
  const QPointF middle(box.left() + box.width() * lightAt(frame), box.center().y());
  QRadialGradient light(middle, reach);
  light.setColorAt(0, QColor(255, 255, 244, frame == StillFrame ? 150 : 235));
  light.setColorAt(0.45, QColor(255, 252, 224, frame == StillFrame ? 80 : 120));
  light.setColorAt(1, QColor(255, 250, 214, 0));
  painter.fillRect(box, light);
  painter.setClipping(false);
}

} // namespace

const QPixmap& ButtonArt::picture(int bitmap, QSize size, double devicePixelRatio) {
  const std::tuple key{bitmap, size.width(), size.height(), devicePixelRatio};
  if (const auto found = pictures_.find(key); found != pictures_.end()) return found->second;

  QPixmap picture(size * devicePixelRatio);
  picture.setDevicePixelRatio(devicePixelRatio);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF box = QRectF(QPointF(), QSizeF(size)).adjusted(1.5, 1, -1.5, -3);
  paintFace(painter, box, faceOf(bitmap));
  const bool rests = bitmap >= FirstRestFace && bitmap <= LastRestFace;
  if (!rests) paintLight(painter, box, bitmap);
  paintSheen(painter, box);
  painter.end();
  return pictures_.emplace(key, picture).first->second;
}

QColor ButtonArt::textColour(int bitmap) {
  return QColor(faceOf(bitmap).text);
}

} // namespace talvora
