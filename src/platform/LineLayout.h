// A line layout breaks one paragraph into lines and tells where its characters stand.
#pragma once

#include "platform/TextStyle.h"

#include <span>
#include <string_view>
#include <vector>

namespace talvora {

/// A run of equally styled characters inside a paragraph; it reaches to the next run's `from`.
struct StyleRun {
  int from = 0; ///< offset in the paragraph, from 0
  const CharStyle* style = nullptr;
};

/// One paragraph as a layout sees it. Everything is borrowed for the length of the call.
struct ParagraphView {
  std::string_view text;          ///< without the character 13 that ends it
  std::span<const StyleRun> runs; ///< at least one; the first starts at 0, also in an empty text
  ParagraphStyle style;
  FontSpec defaultFont; ///< the surface's font; margins and tabs are measured in it
  int width = 0;        ///< of the surface, in twips
};

/// One line of a laid-out paragraph.
struct LineShape {
  int from = 0;   ///< offset of its first character in the paragraph
  int top = 0;    ///< twips below the paragraph's top
  int height = 0; ///< twips
};

/// A paragraph broken into lines; it always has at least one.
struct ParagraphShape {
  std::vector<LineShape> lines;
  int height = 0; ///< of the whole paragraph, in twips
};

/// Place of a caret inside a paragraph, in twips from the surface's left edge and the paragraph's
/// top edge.
struct CaretPlace {
  int x = 0;
  int top = 0;
  int height = 0;
};

class LineLayout {
 public:
  virtual ~LineLayout() = default;

  /// Breaks the paragraph at blanks so that it fits the surface's width.
  [[nodiscard]] virtual ParagraphShape layOut(const ParagraphView& paragraph) const = 0;
  /// The paragraph's height alone, in twips.
  [[nodiscard]] virtual int heightOf(const ParagraphView& paragraph) const {
    return layOut(paragraph).height;
  }
  /// The number of its lines alone.
  [[nodiscard]] virtual int lineCount(const ParagraphView& paragraph) const {
    return static_cast<int>(layOut(paragraph).lines.size());
  }
  /// Where the caret ahead of the character at `offset` stands; an offset outside counts as the
  /// nearest one inside.
  [[nodiscard]] virtual CaretPlace placeOf(const ParagraphView& paragraph, int offset) const = 0;
  /// The caret offset nearest to a point, in twips from the surface's left edge and the
  /// paragraph's top edge; points outside give the nearest line and its nearest end.
  [[nodiscard]] virtual int offsetAt(const ParagraphView& paragraph, int x, int y) const = 0;
};

} // namespace talvora
