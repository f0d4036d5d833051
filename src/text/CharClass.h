// Character classes, built from the pattern as it is written: "[a-z,A-Z,'. ]".
#pragma once

#include "text/Bytes.h"

#include <array>
#include <string_view>

namespace talvora {

/// A set of single-byte characters.
class CharClass {
 public:
  /// Reads a pattern in square brackets, or without them. "a-z" is a range; a "-" that leads or
  /// ends the pattern is itself, and so is one between two ranges.
  constexpr explicit CharClass(std::string_view pattern) {
    if (pattern.size() >= 2 && pattern.front() == '[' && pattern.back() == ']') {
      pattern = pattern.substr(1, pattern.size() - 2);
    }
    std::size_t at = 0;
    while (at < pattern.size()) {
      const bool range = at + 2 < pattern.size() && pattern[at + 1] == '-';
      const int first = asc(pattern[at]);
      const int last = range ? asc(pattern[at + 2]) : first;
      for (int code = first; code <= last; ++code)
        members_[static_cast<std::size_t>(code)] = true;
      at += range ? 3 : 1;
    }
  }

  [[nodiscard]] constexpr bool has(char character) const {
    return members_[static_cast<std::size_t>(asc(character))];
  }
  /// True when every character of the text is in the class; true for an empty text.
  [[nodiscard]] constexpr bool hasAll(std::string_view text) const {
    for (const char character : text) {
      if (!has(character)) return false;
    }
    return true;
  }

 private:
  std::array<bool, 256> members_{};
};

/// "[a-zA-Z]": the letters that open the look-up list.
inline constexpr CharClass Letters("[a-zA-Z]");

} // namespace talvora
