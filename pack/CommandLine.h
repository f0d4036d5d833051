// What the commands' lines have in common: what may stand behind an option, and how the library
// that reads the lines speaks the user's language.
#pragma once

#include <CLI/CLI.hpp>

#include <map>
#include <string>
#include <utility>
#include <vector>

namespace talvora::pack {

/// Gives the library's own words, its help and its faults, in the user's language.
void speakInUsersLanguage(CLI::App& application);

/// Lists the flag for help, which the library gives every command, with the other options.
void putHelpAmongOptions(CLI::App& application);

/// Lets an option take one of some words, each with the number that it stands for.
void takeOneOf(CLI::Option& option, const std::vector<std::pair<std::string, int>>& words);
/// Lets an option of an enumeration take one of the words of its values.
template <class Value>
void takeOneOf(CLI::Option& option, const std::map<std::string, Value>& words) {
  std::vector<std::pair<std::string, int>> numbers;
  numbers.reserve(words.size());
  for (const auto& [word, value] : words)
    numbers.emplace_back(word, static_cast<int>(value));
  takeOneOf(option, numbers);
}
/// Lets an option take a number from 1 on.
void takeNumberUpTo(CLI::Option& option, int most);
/// Lets an option take a folder that is there.
void takeFolder(CLI::Option& option);

} // namespace talvora::pack
