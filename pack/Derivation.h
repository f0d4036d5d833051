// Words built from known ones by a prefix or a suffix.
#pragma once

#include "pack/Entry.h"

#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// One way to read a word as built from another.
struct Derivation {
  std::string base;     ///< how the known word would be spelled
  ClassSet baseClasses; ///< of which it must have one
  ClassSet classes;     ///< of the word; none means those of its base
  std::string_view affix;
  std::string_view meaning; ///< of the affix, in Vietnamese
};

/// All ways in which a word in small letters could be built, the likeliest first.
[[nodiscard]] std::vector<Derivation> derivationsOf(std::string_view word);

/// "cấu tạo: un- (không) + kind", in the text font.
[[nodiscard]] std::string builtFrom(const Derivation& derivation, std::string_view base);

/// How the word might be spelled elsewhere: solid against American spelling and the like.
[[nodiscard]] std::vector<std::string> otherSpellings(std::string_view word);

} // namespace talvora::pack
