// A viewport is the part of a document that its surface shows: lines as the layout breaks them,
// places of carets, and scrolling.
#pragma once

#include "platform/LineLayout.h"
#include "surface/Control.h"
#include "surface/Document.h"
#include "surface/LineCounts.h"
#include "surface/ParagraphRef.h"
#include "surface/SurfacePoint.h"

#include <optional>
#include <vector>

namespace talvora {

/// First paragraph in view and how far it is scrolled off the upper edge, in twips.
struct ScrollPlace {
  int paragraph = 0;
  int offset = 0;

  friend bool operator==(const ScrollPlace&, const ScrollPlace&) = default;
};

/// A line of the text as the layout breaks it.
struct LinePlace {
  int paragraph;
  int from;    ///< offset of its first character in the paragraph
  int to;      ///< offset behind its last one
  int top;     ///< twips below the paragraph's top
  int height;  ///< twips
  int number;  ///< in the paragraph, from 0
  bool goesOn; ///< the paragraph has another line below
};

/// Nothing here changes the document; carets given to it lie inside. Carets that were placed are
/// brought into view when somebody looks, since most placements only lead to the next one.
class Viewport {
 public:
  /// The control's size is that of the view.
  Viewport(const Document& document, const Control& frame, const LineLayout& layout)
      : document_(document), frame_(frame), layout_(layout) {}

  // -- Lines and places.

  /// Number of the line, from 0, that holds a caret.
  [[nodiscard]] int lineNumberOf(int caret);
  [[nodiscard]] LinePlace lineAt(int caret) const;
  /// The line below with a step of 1, the one above with -1.
  [[nodiscard]] std::optional<LinePlace> neighbourLine(const LinePlace& line, int step) const;
  /// The caret of a line nearest to an x, in twips.
  [[nodiscard]] int caretInLine(const LinePlace& line, int x) const;
  /// The x of a caret, in twips.
  [[nodiscard]] int columnOf(int caret) const;
  [[nodiscard]] int caretAt(SurfacePoint point);
  [[nodiscard]] SurfacePoint pointOf(int caret);

  // -- Scrolling.

  [[nodiscard]] ScrollPlace scroll() {
    settle();
    return scroll_;
  }
  /// Scrolls to a place, or the nearest inside the text; true when the view moved.
  bool scrollTo(ScrollPlace place);
  /// Scrolls by a distance in twips, not past the first or last line; true when the view moved.
  bool scrollBy(int twips);
  void bringIntoView(int caret);
  [[nodiscard]] bool carriesCarets() const noexcept { return !unshownCarets_.empty(); }

  // -- What has become of the document.

  /// It is another one: its first line is in view.
  void reset();
  void edited(const DocumentEdit& edit);
  /// Characters or paragraphs of a range look different.
  void restyled(TextRange range);
  /// The default font has changed, and with it margins and tabs.
  void refonted();
  /// The control's size has changed.
  void resized();

  /// Throws std::logic_error when no paragraph is in view.
  void Check() const;

 private:
  /// A height in a paragraph, in twips below its top.
  struct ParagraphSpot {
    int paragraph;
    long long y;
  };

  [[nodiscard]] ParagraphRef paragraph(int index) const {
    return ParagraphRef(document_, index, frame_.Width());
  }
  [[nodiscard]] int heightOf(int index) const;
  [[nodiscard]] ParagraphSpot spotAt(int paragraph, long long y) const;
  void settle();
  void showCaret(int caret);
  void showAsLastLine(const LinePlace& line);
  void followEdit(const DocumentEdit& edit);

  const Document& document_;
  const Control& frame_;
  const LineLayout& layout_;
  LineCounts lineCounts_;
  int width_ = 0;                  ///< that the lines were counted for, twips
  std::vector<int> unshownCarets_; ///< still to be brought into view, oldest first
  ScrollPlace scroll_;
  bool scrollMayBeOff_ = false; ///< the first paragraph in view may have become shorter
};

} // namespace talvora
