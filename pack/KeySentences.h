// The key sentences of the speaking course: what a situation teaches comes back elsewhere.
#pragma once

#include "pack/Problems.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// Opens the comment that declares a key sentence, or the part of one that returns.
inline constexpr std::string_view KeyMark = "// key: ";
/// How many other texts have a key sentence at least.
inline constexpr int KeyReturns = 2;

/// A text of the speaking course as this check sees it.
struct SpokenText {
  std::string file;
  std::string source;        ///< UTF-8
  bool conversation = false; ///< it stands under a heading of situations; one has turns besides
};

/// Checks that each declared key stands in its own text and returns in others. Tells how many
/// conversations have no key of any text; empty when all have one.
[[nodiscard]] std::string checkKeySentences(const std::vector<SpokenText>& texts,
                                            Problems& problems);

/// The same for a folder of speaking texts with its headings.
[[nodiscard]] std::string checkKeySentencesIn(const std::filesystem::path& folder,
                                              Problems& problems);

} // namespace talvora::pack
