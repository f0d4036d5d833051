// The words and signs by which the source of an item is built up.
#pragma once

#include <string_view>

namespace talvora::pack {

inline constexpr std::string_view itemOpener = "item: ";
inline constexpr std::string_view idOpener = "id: ";
inline constexpr std::string_view aboutOpener = "about: ";
inline constexpr std::string_view hintsOpener = "hints: ";
inline constexpr std::string_view explainOpener = "explain";
inline constexpr std::string_view referenceOpener = "see: ";
inline constexpr std::string_view rightOpener = "+ ";
inline constexpr std::string_view wrongOpener = "- ";
inline constexpr std::string_view translationOpener = "= ";

} // namespace talvora::pack
