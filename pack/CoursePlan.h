// The plan of the reading texts: which slots form a series, and what its texts may ask.
#pragma once

#include "pack/Problems.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// A story goes on from text to text, a topic text stands by itself; a free text asks what it asks.
enum class SeriesKind : std::uint8_t { Free, Story, Topic };

/// Both ends belong to it.
struct Band {
  int from = 0;
  int to = 0;

  [[nodiscard]] bool has(double value) const noexcept { return value >= from && value <= to; }
};

/// What the texts of a series keep to, each by itself.
enum class Budget : std::uint8_t {
  Words,    ///< the words of a text
  Sentence, ///< the words of a sentence
  New,      ///< the new lemmas
  Twice,    ///< a new lemma comes twice in its text
  Return,   ///< a new lemma returns in time
  Known     ///< the share of words known at first sight
};
/// As the plan writes them.
inline constexpr std::array<std::string_view, 6> BudgetNames = {"words", "sentence", "new",
                                                                "twice", "return",   "known"};
/// By budget.
using Budgets = std::array<bool, BudgetNames.size()>;

/// A row of the plan.
struct Series {
  Band slots;
  SeriesKind kind = SeriesKind::Free;
  std::string level;            ///< "A1" to "C1"
  Band words;                   ///< of a text
  Band sentence;                ///< words a sentence, on an average
  std::optional<int> newLemmas; ///< at most, a text; none when the texts are free
  Budgets held{}; ///< a text outside one of these is an error; outside another it is only counted

  [[nodiscard]] bool holds(Budget budget) const noexcept {
    return held.at(static_cast<std::size_t>(budget));
  }
};

/// The share of running words, in per cent, that a text must have known at first sight; 0 when its
/// kind asks for none.
[[nodiscard]] double knownShareOf(SeriesKind kind);
/// As the plan writes it.
[[nodiscard]] std::string_view nameOf(SeriesKind kind);

/// Parses a plan; what is wrong is reported.
[[nodiscard]] std::vector<Series> parsePlan(std::string_view text, const std::string& file,
                                            Problems& problems);

/// Reads "plan.txt" in a content tree; a tree without one has no series.
[[nodiscard]] std::vector<Series> readPlan(const std::filesystem::path& source, Problems& problems);

/// The series of a slot; null when it belongs to none.
[[nodiscard]] const Series* seriesOf(const std::vector<Series>& plan, int slot);

} // namespace talvora::pack
