// Small operations on single-byte text.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace talvora {

/// Small letter of a character: A to Z fold and nothing else does, since the font's own letters
/// have no case pairs.
[[nodiscard]] constexpr char lower(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                              : character;
}
[[nodiscard]] std::string lower(std::string_view text);

/// The text without the blanks at both ends.
[[nodiscard]] std::string_view trim(std::string_view text);

/// Whether a text is as a pattern says, in which "#" stands for a digit and all else for itself.
[[nodiscard]] bool fits(std::string_view text, std::string_view pattern);

/// The pieces of a text between separators: one more than there are separators.
[[nodiscard]] std::vector<std::string> split(std::string_view text, char separator);

/// A number as the system writes it: with a leading blank in place of a plus sign.
[[nodiscard]] std::string Str(long long number);

/// The text in the characters that a speech engine knows: the typographic apostrophe becomes the
/// plain one, everything else outside ASCII a blank.
[[nodiscard]] std::string plainAscii(std::string_view text);

/// A path below a directory. Stored names begin with a backslash, which stands for the platform's
/// separator: (dir, "\sound\1.wav") gives "dir/sound/1.wav".
[[nodiscard]] std::string pathBelow(const std::string& directory, std::string_view storedName);

} // namespace talvora
