// Small operations on single-byte text.
#pragma once

#include <string>
#include <string_view>

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

/// A number as the system writes it: with a leading blank in place of a plus sign.
[[nodiscard]] std::string Str(long long number);

/// A path below a directory. Stored names begin with a backslash, which stands for the platform's
/// separator: (dir, "\sound\1.wav") gives "dir/sound/1.wav".
[[nodiscard]] std::string pathBelow(const std::string& directory, std::string_view storedName);

} // namespace talvora
