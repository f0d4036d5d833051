// One paragraph broken into lines, as the desktop program breaks it.
#pragma once

#include "core/Faces.h"
#include "fronts/TextMeasures.h"
#include "platform/LineLayout.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace talvora::web {

/// A rectangle in twips from the surface's left edge and the paragraph's top edge.
struct Box {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
};

/// A stretch of a line in one look, for the page.
struct PaintedRun {
  std::u16string text; ///< without the units that show nothing; a tab is one blank
  const CharStyle* style = nullptr;
  Face face = Face::Sans;
  int size = 0;   ///< twips
  double tab = 0; ///< width of a tab in twips; 0 for letters
};

/// Offsets are bytes of the paragraph; places are twips from the surface's left edge and the
/// paragraph's top edge.
class Paragraph {
 public:
  Paragraph(const Faces& faces, const ParagraphView& view, std::uint64_t serial);

  /// Differs between any two paragraphs that were ever broken.
  [[nodiscard]] std::uint64_t serial() const noexcept { return serial_; }
  [[nodiscard]] const ParagraphShape& shape() const noexcept { return shape_; }
  [[nodiscard]] CaretPlace placeOf(int offset) const;
  [[nodiscard]] int offsetAt(int x, int y) const;
  /// What the letters of its widest line take, in twips.
  [[nodiscard]] double width() const;
  /// What the characters between two offsets cover, a rectangle a line.
  [[nodiscard]] std::vector<Box> rectsOf(int from, int to) const;
  /// The stretches in one colour, each from its first offset to behind its last that is no blank.
  [[nodiscard]] std::vector<std::pair<int, int>> rangesIn(Colour colour) const;

  /// Where the letters of a line begin.
  [[nodiscard]] double leftOf(std::size_t line) const { return placed_[line].left; }
  [[nodiscard]] std::vector<PaintedRun> runsOf(std::size_t line) const;
  /// The middle of the bullet and its radius; nothing where there is none.
  [[nodiscard]] bool hasBullet() const noexcept { return bullet_ && !units_.empty(); }
  [[nodiscard]] Box bulletBox() const;

 private:
  /// A run of the paragraph, with what its letters measure.
  struct Run {
    std::size_t from;
    std::size_t to;
    Face face;
    int size;
  };
  struct Placed {
    std::size_t from;
    std::size_t to;
    double left;
  };

  void takeText(const ParagraphView& view);
  void measure();
  void findBreaks();
  void breakLines(const ParagraphView& view);
  /// Where a line that begins at an offset ends, and how wide its text is without the blanks at its
  /// end.
  [[nodiscard]] std::pair<std::size_t, Fine> lineFrom(std::size_t from, Fine room);
  [[nodiscard]] bool widenTabs();
  [[nodiscard]] Fine tabWidthAt(Fine x) const;
  [[nodiscard]] Fine overhang(std::size_t behind) const;
  [[nodiscard]] int pitchOf(std::size_t from, std::size_t to) const;
  [[nodiscard]] const Run& runAt(std::size_t offset) const;
  [[nodiscard]] std::size_t lineOf(std::size_t offset) const;
  /// How far the pen stands from the left edge ahead of an offset of a line.
  [[nodiscard]] double penAt(const Placed& line, std::size_t offset) const;

  const Faces& faces_;
  std::uint64_t serial_;
  std::u16string units_;
  std::vector<CharStyle> styles_; ///< of the runs
  std::vector<Run> runs_;
  std::vector<std::size_t> numbers_; ///< of the letters
  std::vector<Fine> advances_;
  std::vector<bool> breaks_;  ///< whether a line may break ahead of an offset
  std::vector<bool> widened_; ///< whether a letter makes room for the tab behind it
  std::vector<Placed> placed_;
  ParagraphShape shape_;
  Fine tab_ = 0; ///< distance of the tab stops
  double bulletX_ = 0;
  bool bullet_ = false;
};

} // namespace talvora::web
