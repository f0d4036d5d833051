#include "listening/OptionMask.h"

#include <algorithm>

namespace talvora {

namespace {

constexpr char Wrong = ' ';
constexpr char Covered = '0';
/// Carets of the page: the instruction reaches to the first; the options begin behind the second.
constexpr int InstructionEnd = 40;
constexpr int FirstOption = 42;
/// Room behind the page, so that the search for a stretch's end always meets one.
constexpr std::size_t Tail = 200;

int lengthOf(const std::string& option) {
  return static_cast<int>(option.size());
}

PageStretch rightStretch(const ShownOptions& options, int rightSlot) {
  PageStretch right{FirstOption, FirstOption + lengthOf(options[0]) + 1};
  for (std::size_t i = 1; i < options.size() && static_cast<int>(i) != rightSlot; ++i) {
    right.from += lengthOf(options[i - 1]) + 4;
    right.to = right.from + lengthOf(options[i]) + 1;
  }
  return right;
}

} // namespace

OptionMask::OptionMask(const ShownOptions& options, int rightSlot, int pageLength)
    : mask_(static_cast<std::size_t>(std::max(pageLength - 3, 0)), Wrong),
      right_(rightStretch(options, rightSlot)) {
  mask_.append(Tail, Covered);
  int v = FirstOption + lengthOf(options[0]) + 2;
  cover(v);
  for (std::size_t i = 1; i < options.size(); ++i) {
    v += lengthOf(options[i]) + 4;
    cover(v);
  }
  for (int position = 1; position <= InstructionEnd; ++position)
    cover(position);
  for (int position = right_.from; position <= right_.to; ++position)
    cover(position);
}

bool OptionMask::isWrong(int position) const noexcept {
  return position >= 1 && position <= static_cast<int>(mask_.size()) &&
         mask_[static_cast<std::size_t>(position - 1)] == Wrong;
}

void OptionMask::cover(int position) {
  if (position >= 1 && position <= static_cast<int>(mask_.size())) {
    mask_[static_cast<std::size_t>(position - 1)] = Covered;
  }
}

int OptionMask::lastCaret() const noexcept {
  return static_cast<int>(mask_.size()) - static_cast<int>(Tail);
}

std::optional<PageStretch> OptionMask::takeWrong(int caret) {
  if (!isWrong(caret)) return std::nullopt;
  int from = caret;
  while (isWrong(from - 1))
    --from;
  int to = from;
  for (int position = from; isWrong(position); ++position) {
    cover(position);
    to = position;
  }
  return PageStretch{from, to};
}

} // namespace talvora
