// The learner's words on their way out: `talvora-pack words export`. It speaks Vietnamese, for it
// is the learner who asks.
#pragma once

#include "pack/LearnersList.h"

#include <cstdint>
#include <filesystem>
#include <functional>
#include <iosfwd>
#include <optional>
#include <string>
#include <string_view>

namespace talvora::pack {

enum class ExportForm { CommaTable, CardTable, Deck };

/// The form that the name of a file asks for: ".csv", ".tsv" or ".txt", ".apkg"; nothing for
/// another name.
[[nodiscard]] std::optional<ExportForm> exportFormOf(const std::filesystem::path& file);

struct ExportWish {
  std::filesystem::path file;
  ExportForm form = ExportForm::CommaTable;
  std::string pack;                            ///< empty when there is none
  bool spoken = true;                          ///< whether a deck has sounds
  std::optional<std::filesystem::path> sounds; ///< folder for the sounds of a table
  std::int64_t seconds = 0;                    ///< since 1970: when it is made
};

/// Is told how many words of all are spoken.
using Counted = std::function<void(std::size_t done, std::size_t all)>;

/// Writes the list to a file, whole or not at all.
[[nodiscard]] ListResult exportWords(const LearnersList& list, const ExportWish& wish,
                                     std::ostream& out, const Counted& progress);

} // namespace talvora::pack
