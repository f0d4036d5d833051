// The sounds of a word as the voices say it by itself.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// The phones of a word in small letters, without stress: "ship" is sh ih p. They come from the
/// lexicon of the recorded voices and from its letter-to-sound rules.
[[nodiscard]] std::vector<std::string> wordPhones(const std::string& word);

} // namespace talvora::pack
