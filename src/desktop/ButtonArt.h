// The pictures of the menu buttons, drawn for any size and density: four rest faces, and a lit face
// over which a calm light travels.
#pragma once

#include <QColor>
#include <QPixmap>
#include <QSize>

#include <map>
#include <tuple>

namespace talvora {

class ButtonArt {
 public:
  /// The picture of a bitmap number, 1 to 18; drawn once for each size in pixels and density.
  [[nodiscard]] const QPixmap& picture(int bitmap, QSize size, double devicePixelRatio);
  /// Colour of a caption on that picture.
  [[nodiscard]] static QColor textColour(int bitmap);
  /// Forgets what was drawn.
  void clear() { pictures_.clear(); }

 private:
  std::map<std::tuple<int, int, int, double>, QPixmap> pictures_;
};

} // namespace talvora
