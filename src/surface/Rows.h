// A table whose rows are taken once each, by their ranks.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

namespace talvora {

/// `Rank` is an enumeration from 0 whose last name is `Count`.
template <class Rank, class Row>
class Rows {
 public:
  /// Throws std::logic_error naming `who` when the rank is taken or there is no such rank.
  void take(Rank rank, Row row, const std::string& who) {
    const auto place = static_cast<std::size_t>(rank);
    if (place >= rows_.size()) throw std::logic_error(who + " has a rank that is none");
    if (rows_[place]) throw std::logic_error(who + " has the rank of another one");
    rows_[place] = std::move(row);
  }

  /// The row of the lowest rank for which a question is answered with yes; null when none is.
  template <class Question>
  [[nodiscard]] const Row* first(Question question) const {
    const auto found = std::find_if(rows_.begin(), rows_.end(),
                                    [&](const auto& each) { return each && question(*each); });
    return found == rows_.end() ? nullptr : &**found;
  }

  /// The row of the lowest rank above one; null when there is none.
  [[nodiscard]] const Row* above(Rank rank) const {
    const auto from = rows_.begin() + static_cast<std::ptrdiff_t>(rank) + 1;
    const auto found =
        std::find_if(from, rows_.end(), [](const auto& each) { return each.has_value(); });
    return found == rows_.end() ? nullptr : &**found;
  }

  /// Throws std::logic_error naming `what` is ranked when a rank is nobody's.
  void check(const std::string& what) const {
    for (std::size_t place = 0; place < rows_.size(); ++place) {
      if (!rows_[place]) {
        throw std::logic_error("nobody has rank " + std::to_string(place) + " of " + what);
      }
    }
  }

 private:
  std::array<std::optional<Row>, static_cast<std::size_t>(Rank::Count)> rows_;
};

} // namespace talvora
