// The learner's words on their way out: `talvora-pack words export`.
#pragma once

#include "pack/LearnersList.h"

#include <array>
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

/// What of a word has a sound.
enum class Aloud { Nothing, Word, Sentence, Both };

struct AloudName {
  Aloud aloud;
  std::string_view name;
};

inline constexpr std::array<AloudName, 4> AloudNames = {{{Aloud::Nothing, "none"},
                                                         {Aloud::Word, "word"},
                                                         {Aloud::Sentence, "sentence"},
                                                         {Aloud::Both, "both"}}};

struct ExportWish {
  std::filesystem::path file;
  ExportForm form = ExportForm::CommaTable;
  std::string pack;                            ///< empty when there is none
  Aloud aloud = Aloud::Both;                   ///< a table's sounds need a folder besides
  std::optional<std::filesystem::path> sounds; ///< folder for the sounds of a table
  std::int64_t seconds = 0;                    ///< since 1970: when it is made
};

/// Is told how many words of all are spoken.
using Counted = std::function<void(std::size_t done, std::size_t all)>;

/// Writes the list to a file, whole or not at all.
[[nodiscard]] ListResult exportWords(const LearnersList& list, const ExportWish& wish,
                                     std::ostream& out, const Counted& progress);

} // namespace talvora::pack
