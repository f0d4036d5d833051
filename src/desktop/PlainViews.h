// The views of controls that take no input: card, label, curtain panel and background picture.
#pragma once

#include "desktop/ControlView.h"

#include <QPixmap>

namespace talvora {

/// A white card with a soft shadow.
class FrameView final : public ControlView {
 public:
  FrameView(const Frame& frame, QWidget* parent) : ControlView(frame, parent), frame_(frame) {}

 protected:
  void paintEvent(QPaintEvent* event) override;
  int overhang() const override;

 private:
  const Frame& frame_;
};

class LabelView final : public ControlView {
 public:
  LabelView(const Label& label, QWidget* parent) : ControlView(label, parent), label_(label) {}

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Label& label_;
};

class PanelView final : public ControlView {
 public:
  PanelView(const Panel& panel, QWidget* parent) : ControlView(panel, parent), panel_(panel) {}

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Panel& panel_;
};

class ImageView final : public ControlView {
 public:
  ImageView(const Image& image, QWidget* parent) : ControlView(image, parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
  }

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QPixmap picture_; ///< as it was painted last
};

} // namespace talvora
