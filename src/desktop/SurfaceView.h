// The view of a surface: paints the paragraphs in view, the selection, the caret or the current
// line, and the scroll bar.
#pragma once

#include "desktop/ControlView.h"
#include "desktop/PageLook.h"
#include "desktop/QtLineLayout.h"
#include "desktop/Teller.h"
#include "fronts/ScrollBar.h"
#include "surface/Form.h"
#include "surface/Surface.h"

#include <QRect>

#include <cstdint>
#include <optional>
#include <vector>

namespace talvora {

class SurfaceView final : public ControlView {
 public:
  SurfaceView(Surface& surface, QtLineLayout& layout, const Form& form, QWidget* parent);

  [[nodiscard]] Surface& surface() const noexcept { return surface_; }
  [[nodiscard]] bool surfaceHasFocus() const noexcept { return form_.hasFocus(surface_); }
  [[nodiscard]] double twipsToPixels() const noexcept { return pixelsPerTwip(); }
  /// A caret's rectangle in pixels of the widget; empty when it is out of view.
  [[nodiscard]] QRect caretRect(int caret) const;

  /// The bar is painted wider while the pointer is on it.
  void setBarHot(bool hot);

  /// Marks the paragraphs that look different from what was marked last.
  void refresh() override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  /// What one paragraph in view looks like.
  struct Piece {
    std::uint64_t serial = 0;
    int top = 0;    ///< twips from the surface's top
    int height = 0; ///< twips
    ParagraphMarks marks;

    friend bool operator==(const Piece&, const Piece&) = default;
  };
  struct Picture {
    Colour back = 0;
    QRect thumb; ///< pixels; empty when all of the text is in view
    bool barHot = false;
    std::vector<Piece> pieces;

    friend bool operator==(const Picture&, const Picture&) = default;
  };

  /// Calls `use(paragraph number, shaped paragraph, top in twips)` for each paragraph in view.
  template <class Use>
  void eachInView(Use use) const;
  [[nodiscard]] const ShapedParagraph& shaped(int paragraph) const;
  [[nodiscard]] Picture picture() const;
  [[nodiscard]] Piece pieceOf(int paragraph, const ShapedParagraph& shaped, int top) const;
  [[nodiscard]] QRect thumb() const;
  [[nodiscard]] QRect barStrip() const;
  void updatePiece(const Piece& piece);
  [[nodiscard]] QRect rectOf(const Piece& piece) const;

  void paintBack(QPainter& painter, const QRect& dirty) const;
  void paintPiece(QPainter& painter, const ShapedParagraph& shaped, const Piece& piece,
                  const QRectF& dirty) const;
  void paintCurrentLine(QPainter& painter, const Piece& piece) const;
  void paintSelection(QPainter& painter, const ShapedParagraph& shaped, const Piece& piece) const;
  /// The last line fades where only a part of it is in view.
  void paintFade(QPainter& painter, const std::vector<Piece>& pieces) const;
  void paintBar(QPainter& painter, const Picture& picture) const;
  void paintCaret(QPainter& painter, const CaretPlace& place, int top) const;
  /// Plates stand free on the screen and have round corners.
  [[nodiscard]] bool isRounded() const;

  Surface& surface_;
  QtLineLayout& layout_;
  const Form& form_;
  ScrollBar bar_;
  const PageTraits traits_;
  bool barHot_ = false;
  /// What was marked for painting last; empty when everything is to be marked the next time.
  std::optional<Picture> marked_;
  TextTeller teller_;
};

} // namespace talvora
