// The views of controls that take no input: card, label, curtain panel and background picture.
#pragma once

#include "desktop/ControlView.h"
#include "desktop/Shadow.h"

#include <QImage>
#include <QPixmap>
#include <QSize>

#include <future>

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
  CardPicture card_;
};

class LabelView final : public ControlView {
 public:
  LabelView(const Label& label, QWidget* parent) : ControlView(label, parent), label_(label) {}

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  const Label& label_;
};

/// Its widget stays where it is while the panel shrinks and moves inside it, so that a step paints
/// no more than what it uncovers and covers anew.
class PanelView final : public ControlView {
 public:
  PanelView(const Panel& panel, QWidget* parent) : ControlView(panel, parent), panel_(panel) {}

  void refresh() override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void moveWidget() override;

 private:
  const Panel& panel_;
  QRect shown_; ///< the panel, in pixels of the form, as it was marked for painting last
};

/// Its picture is drawn on a thread of its own from the moment that its size is known: while the
/// window comes up there is time for it.
class ImageView final : public ControlView {
 public:
  ImageView(const Image& image, QWidget* parent) : ControlView(image, parent) {
    setAttribute(Qt::WA_OpaquePaintEvent);
  }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void moveWidget() override;

 private:
  [[nodiscard]] QSize pixels() const { return size() * devicePixelRatioF(); }
  /// Has the picture drawn in the size that is needed now, if it is not being drawn yet.
  void draw();

  std::future<QImage> drawing_;
  QSize drawn_;     ///< what was asked for last
  QPixmap picture_; ///< as it was painted last
};

} // namespace talvora
