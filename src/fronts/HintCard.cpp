#include "fronts/HintCard.h"

#include <cmath>

namespace talvora {

namespace {

constexpr double CardTop = 0.1; ///< where cards begin, of the form's height
constexpr double Padding = 30;  // twips above the first line and below the last
constexpr double SidePadding = 150;
constexpr double Narrowest = 0.77; ///< of the letters' own width
/// The part of a line's height that letters with their marks fill.
constexpr double InkPart = 0.92;

} // namespace

HintCard::HintCard(const Surface& bar, int formHeight)
    : width_(bar.Width()), room_(static_cast<int>(std::lround(bar.Width() / Narrowest))) {
  const int cardTop = static_cast<int>(std::lround(formHeight * CardTop)) - bar.Top();
  height_ = std::clamp(cardTop, bar.Height() / 2, bar.Height());
}

void HintCard::fit(double natural, double widest) {
  closer_ = std::min(1.0, (height_ - 2 * Padding) / std::max(1.0, natural));
  // Letters become lower only where their marks would meet.
  lower_ = std::min(1.0, closer_ / InkPart);
  narrower_ = std::min(lower_, std::max(Narrowest, (width_ - 2 * SidePadding) / widest));
  top_ = (height_ - natural * closer_) / 2;
}

} // namespace talvora
