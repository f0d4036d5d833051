// The view of the hint bar. Its hints are two or three long lines, and its place on the screen is
// given: they are painted closer and narrower where they would not fit.
#pragma once

#include "desktop/ControlView.h"
#include "desktop/QtLineLayout.h"
#include "surface/Surface.h"

namespace talvora {

class HintBarView final : public ControlView {
 public:
  HintBarView(const Surface& surface, QtLineLayout& layout, QWidget* parent)
      : ControlView(surface, parent), surface_(surface), layout_(layout) {}

  /// The hint as text.
  [[nodiscard]] QString text() const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  int overhang() const override;

 private:
  /// Height of what is painted, in twips: a bar of two lines would reach over the first line of the
  /// page below, so it ends where the page's card begins.
  [[nodiscard]] int paintedHeight() const;
  void paintCard(QPainter& painter) const;
  void paintLines(QPainter& painter) const;

  const Surface& surface_;
  QtLineLayout& layout_;
};

} // namespace talvora
