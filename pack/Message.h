// What the compiler tells people, in their language. Messages stand in the code in English, with
// "{}" where a value goes; pack/po has their translations.
#pragma once

#include <fmt/core.h>

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace talvora::pack {

/// Takes the messages from here on in the language of the user's locale, from a folder of
/// translations. A locale that the system has not got will do; a language without translations
/// gives English.
void speakTheUsersLanguage(const std::filesystem::path& translations);

/// The folder of translations that lies with this program; empty when there is none.
[[nodiscard]] std::filesystem::path translationsOfProgram();

/// A message in the user's language. It must end with a zero byte, as literals do.
[[nodiscard]] std::string translated(std::string_view message);
/// A message about a number of things, with the form that the number takes.
[[nodiscard]] std::string translated(std::string_view one, std::string_view many,
                                     std::size_t count);

/// Marks a message that stands in a table; `translated` gives it in the user's language.
[[nodiscard]] constexpr std::string_view toSay(std::string_view message) {
  return message;
}

/// A message in the user's language with its values.
template <class... Values>
[[nodiscard]] std::string said(fmt::format_string<const Values&...> message,
                               const Values&... values) {
  const fmt::string_view english = message;
  return fmt::format(fmt::runtime(translated({english.data(), english.size()})), values...);
}

/// A message about a number of things, which is its first value.
template <class... Values>
[[nodiscard]] std::string
saidOf(std::size_t count, fmt::format_string<const std::size_t&, const Values&...> one,
       fmt::format_string<const std::size_t&, const Values&...> many, const Values&... values) {
  const fmt::string_view single = one;
  const fmt::string_view several = many;
  return fmt::format(fmt::runtime(translated({single.data(), single.size()},
                                             {several.data(), several.size()}, count)),
                     count, values...);
}

/// What the program's file handling says is wrong with a file, "PATH: cannot be written: ...", in
/// the user's language.
[[nodiscard]] std::string translatedFileProblem(const std::string& problem);

} // namespace talvora::pack
