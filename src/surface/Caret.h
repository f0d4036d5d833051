// The caret of a surface with its selection, and what is remembered as long as it stays.
#pragma once

#include "surface/Document.h"

#include <algorithm>
#include <cstdlib>
#include <optional>

namespace talvora {

/// Carets and lengths given to it lie inside the text.
class Caret {
 public:
  struct Selection {
    int start = 0;
    int length = 0;

    friend bool operator==(const Selection&, const Selection&) = default;
  };

  [[nodiscard]] const Selection& selection() const noexcept { return selection_; }
  [[nodiscard]] int start() const noexcept { return selection_.start; }
  [[nodiscard]] int length() const noexcept { return selection_.length; }
  [[nodiscard]] int end() const noexcept { return selection_.start + selection_.length; }
  [[nodiscard]] TextRange range() const noexcept { return {start(), end()}; }
  /// The end of the selection that stays while it is extended.
  [[nodiscard]] int anchor() const noexcept { return anchor_; }
  /// The end that moves.
  [[nodiscard]] int activeEnd() const noexcept { return anchor_ == start() ? end() : start(); }

  void placeAt(int caret) {
    anchor_ = caret;
    extendTo(caret);
  }
  /// Selects from the anchor to a caret.
  void extendTo(int caret) {
    forgetStyle();
    columnX_.reset();
    selection_ = {std::min(anchor_, caret), std::abs(caret - anchor_)};
  }
  /// Selects the text between two carets, held at the first.
  void select(int from, int to) {
    columnX_.reset();
    length(from, to - from);
  }
  /// Selects so many characters from the caret on; Up and Down keep their column.
  void length(int length) { this->length(start(), length); }
  /// An edit at the caret leaves it behind the new text, and its style holds for what comes next.
  void stepBehind(int caret) {
    columnX_.reset();
    anchor_ = caret;
    selection_ = {caret, 0};
  }
  /// An edit elsewhere, which made the range longer by `added`, takes caret and selection along;
  /// inside the range they stay as far as there still is text.
  void follow(TextRange range, int added) {
    const auto moved = [&](int caret) {
      if (caret <= range.from) return caret;
      return caret < range.to ? std::min(caret, range.to + added) : caret + added;
    };
    const bool heldAtStart = anchor_ == start();
    forgetStyle();
    columnX_.reset();
    const int from = moved(start());
    selection_ = {from, moved(end()) - from};
    anchor_ = heldAtStart ? start() : end();
  }

  /// Style of what is written next at the caret, until it moves.
  [[nodiscard]] const std::optional<StyleId>& style() const noexcept { return style_; }
  void style(StyleId style) { style_ = style; }
  void forgetStyle() { style_.reset(); }

  /// The x that Up and Down keep, in twips.
  [[nodiscard]] const std::optional<int>& columnX() const noexcept { return columnX_; }
  void columnX(int twips) { columnX_ = twips; }

 private:
  void length(int from, int length) {
    if (selection_ != Selection{from, length}) forgetStyle();
    anchor_ = from;
    selection_ = {from, length};
  }

  Selection selection_;
  int anchor_ = 0;
  std::optional<StyleId> style_;
  std::optional<int> columnX_;
};

} // namespace talvora
