// The names of what lies in the learner's own folder.
#pragma once

#include <string_view>

namespace talvora::learnerfile {

inline constexpr std::string_view Words = "data.c";
inline constexpr std::string_view Settings = "data.Kcu";
inline constexpr std::string_view FirstRun = "Yes1";
inline constexpr std::string_view Rows = "words.txt";
inline constexpr std::string_view Journal = "words.journal";
inline constexpr std::string_view Lists = "lists.txt";
inline constexpr std::string_view Lock = "talvora.lock";
inline constexpr std::string_view Copies = "backups";
inline constexpr std::string_view Texts = "texts";
inline constexpr std::string_view DictionaryParts = "parts.txt";

} // namespace talvora::learnerfile
