// The name that somebody meant who wrote another one.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// How many letters must be put in, left out, exchanged or swapped with their neighbour to turn one
/// text into the other; the case of plain letters does not count.
[[nodiscard]] std::size_t lettersApart(std::string_view left, std::string_view right);

/// The candidate nearest to a name; empty when each is further away than a third of its letters,
/// and two letters at least.
[[nodiscard]] std::optional<std::string> nearestName(std::string_view name,
                                                     const std::vector<std::string>& candidates);

/// "; did you mean "choose"?" in the user's language, to stand behind a message.
[[nodiscard]] std::string didYouMean(std::string_view name);
/// The same for the nearest candidate; nothing when none is near.
[[nodiscard]] std::string didYouMean(std::string_view name,
                                     const std::vector<std::string>& candidates);

} // namespace talvora::pack
