// How many lines the paragraphs of a text take, summed up.
#pragma once

#include <cstddef>
#include <vector>

namespace talvora {

/// Counts are asked for once and kept until their paragraph changes; so the line of a caret costs
/// one look into a table, and after an edit the additions behind it. A list that nobody asks about
/// costs nothing.
class LineCounts {
 public:
  /// Lines of all paragraphs ahead of one. `count(paragraph)` tells those that are not known yet; a
  /// paragraph has at least one.
  template <class Count>
  [[nodiscard]] int ahead(int paragraph, Count count) {
    for (int each = known(); each < paragraph; ++each)
      ahead_.push_back(ahead_.back() + linesOf(each, count));
    return ahead_[static_cast<std::size_t>(paragraph)];
  }

  /// The paragraphs from `first` to `last`, both included, have changed, and `added` more stand
  /// there now (fewer below 0).
  void changed(int first, int last, int added);
  /// All paragraphs have changed.
  void forget();

 private:
  /// Paragraphs whose sum is known.
  [[nodiscard]] int known() const noexcept { return static_cast<int>(ahead_.size()) - 1; }

  template <class Count>
  int linesOf(int paragraph, Count count) {
    const auto place = static_cast<std::size_t>(paragraph);
    if (place >= lines_.size()) lines_.resize(place + 1, 0);
    if (lines_[place] == 0) lines_[place] = count(paragraph);
    return lines_[place];
  }

  std::vector<int> lines_;       ///< of each paragraph; 0 until it is known
  std::vector<int> ahead_ = {0}; ///< sums, as far as they hold
};

} // namespace talvora
