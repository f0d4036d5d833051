// What a reading text may do with words, and what it did: the sheet that a text is written against.
#pragma once

#include "pack/CoursePlan.h"
#include "pack/LemmaBook.h"

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace talvora::pack {

/// What the sheets are made from.
struct Planner {
  ReadingSource readings;
  std::vector<Series> plan;
  Lemmas lemmas;
  LemmaBook book;
};

/// Reads the reading texts, the dictionary and the plan of a content tree.
[[nodiscard]] Planner readPlanner(const std::filesystem::path& source, Problems& problems);

/// One line a text: length, new lemmas, known words, what it returns; as UTF-8.
[[nodiscard]] std::string overview(const Planner& planner);

/// An average or a share as reports write it: "9.4".
[[nodiscard]] std::string withDecimal(double value);

/// How long a sheet is.
enum class Detail { Short, Full };

/// What a slot may bring and must return, and what its text did; as UTF-8. A full sheet lists the
/// known lemmas as well.
[[nodiscard]] std::string sheet(const Planner& planner, int slot, Detail detail);

} // namespace talvora::pack
