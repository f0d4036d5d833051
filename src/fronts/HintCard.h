// The hint bar: a card over the page, whose hints are two or three long lines. Its place on the
// screen is given: lines come closer first, and their letters become lower and narrower where they
// would not fit else.
#pragma once

#include "surface/Surface.h"

#include <algorithm>

namespace talvora {

class HintCard {
 public:
  /// Of the bar on a form so high; `layout` keeps shaped paragraphs, which tell their width.
  template <class Layout>
  HintCard(const Surface& bar, int formHeight, const Layout& layout) : HintCard(bar, formHeight) {
    double natural = 0;
    double widest = 1;
    for (int each = 0; each < bar.paragraphCount(); ++each) {
      const auto& line = layout.shaped(bar.paragraph(each, room_).view());
      natural += line.shape().height;
      widest = std::max(widest, line.width());
    }
    fit(natural, widest);
  }

  /// Height of the card in twips: a bar of two lines would reach over the first line of the page
  /// below, so it ends where the page's card begins.
  [[nodiscard]] int height() const noexcept { return height_; }
  /// Width in twips that the lines are laid out on: as wide as the narrowest letters allow, so that
  /// a line breaks only beyond that. Its middle is the card's.
  [[nodiscard]] int room() const noexcept { return room_; }
  /// What letters are scaled by, sideways and up and down.
  [[nodiscard]] double narrower() const noexcept { return narrower_; }
  [[nodiscard]] double lower() const noexcept { return lower_; }

  /// Where the middle of each line comes to stand, in twips below the card's upper edge: called
  /// line by line with the height that it has of itself.
  [[nodiscard]] double nextMiddle(double height) noexcept {
    top_ += height * closer_;
    return top_ - height * closer_ / 2;
  }

 private:
  HintCard(const Surface& bar, int formHeight);
  void fit(double natural, double widest);

  int width_;
  int height_;
  int room_;
  double closer_ = 1;
  double lower_ = 1;
  double narrower_ = 1;
  double top_ = 0;
};

} // namespace talvora
