// The width of blanks, which must not give an answer away.
#pragma once

#include <string>
#include <string_view>

namespace talvora::pack {

/// The stored text of a fill-in question with all its blanks as wide as the widest. Where no room
/// is written by hand, a blank has at least as many cells as most words need, so that one that
/// stays empty looks like any other.
[[nodiscard]] std::string withEvenBlanks(std::string_view stored);

} // namespace talvora::pack
