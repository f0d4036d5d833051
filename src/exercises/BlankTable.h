// A table of stretches of an item, such as its blanks, each with a text of its own.
#pragma once

#include "formats/Limits.h"
#include "surface/Variables.h"

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace talvora {

/// A stretch of an item, by positions from 1.
struct BlankEntry {
  int Dau = 0;     ///< first position
  int Cuoi = 0;    ///< last position
  std::string Chu; ///< what belongs to the stretch
};

class BlankTable {
 public:
  static constexpr int Most = limit::Blanks;

  /// Number of stretches; texts may stand behind them.
  [[nodiscard]] int count() const noexcept { return count_; }
  /// The stretch of a number from 1; an empty one outside the table.
  [[nodiscard]] BlankEntry at(int number) const {
    return holds(number) ? entries_[static_cast<std::size_t>(number - 1)] : BlankEntry{};
  }
  /// Number of the first stretch that holds a position; 0 when none does.
  [[nodiscard]] int find(int position) const {
    for (int number = 1; number <= count_; ++number) {
      const BlankEntry& entry = entries_[static_cast<std::size_t>(number - 1)];
      if (entry.Dau <= position && position <= entry.Cuoi) return number;
    }
    return 0;
  }
  /// Appends a stretch; beyond the most that fit it is left out.
  void add(int first, int last, std::string text) {
    if (count_ == Most) return;
    ++count_;
    makeRoom(count_);
    entries_[static_cast<std::size_t>(count_ - 1)] = {first, last, std::move(text)};
  }
  /// Gives a text to a number, also behind the last stretch; beyond the most that fit it is left
  /// out.
  void setText(int number, std::string text) {
    if (number < 1 || number > Most) return;
    makeRoom(number);
    entries_[static_cast<std::size_t>(number - 1)].Chu = std::move(text);
  }
  void clearTexts() {
    for (BlankEntry& entry : entries_)
      entry.Chu.clear();
  }
  void clear() {
    entries_.clear();
    count_ = 0;
  }

  /// The table as it is told to a driver, with an empty element 0.
  [[nodiscard]] VariableValue value() const {
    VariableValue::Table table;
    for (int number = 0; number <= static_cast<int>(entries_.size()); ++number) {
      const BlankEntry entry = at(number);
      table.emplace_back(
          VariableValue::Record{{"Dau", entry.Dau}, {"Cuoi", entry.Cuoi}, {"Chu", entry.Chu}});
    }
    return table;
  }

 private:
  [[nodiscard]] bool holds(int number) const {
    return number >= 1 && number <= static_cast<int>(entries_.size());
  }
  void makeRoom(int number) {
    entries_.resize(std::max(entries_.size(), static_cast<std::size_t>(number)));
  }

  std::vector<BlankEntry> entries_;
  int count_ = 0;
};

} // namespace talvora
