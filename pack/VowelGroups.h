// The letters of a spelling that stand for its vowels.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// True for a, e, i, o, u and y in small letters.
[[nodiscard]] bool isVowelLetter(char letter);

/// The groups of vowel letters in a spelling, in small letters and without an "e" that only ends
/// it: "quiet" has "uie". A "y" ahead of a vowel letter is a consonant.
[[nodiscard]] std::vector<std::string> vowelGroupsOf(std::string_view spelling);

} // namespace talvora::pack
