// The view of the hint bar. Its hints are two or three long lines, and its place on the screen is
// given: they are painted closer and narrower where they would not fit.
#pragma once

#include "desktop/ControlView.h"
#include "desktop/QtLineLayout.h"
#include "fronts/HintCard.h"
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
  void paintCard(QPainter& painter, const HintCard& hints) const;
  void paintLines(QPainter& painter, HintCard card) const;

  const Surface& surface_;
  QtLineLayout& layout_;
};

} // namespace talvora
