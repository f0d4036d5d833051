// The listening units as the program's pair of files and its page, and back.
#pragma once

#include "pack/ListeningSource.h"
#include "pack/ReadingStore.h"

#include <string>
#include <string_view>

namespace talvora::pack {

/// Every record filled, so arranged that the program plays in each unit what its source has: it
/// begins a later unit with the record ahead of the unit's own.
[[nodiscard]] TextStore compileListeningItems(const ListeningSource& source);

/// The page as rich text; its places are found by counting characters.
[[nodiscard]] std::string compileListeningPage(const ListeningPageText& page);

/// The units of a store; open ones are left out. Problems name the record that cannot be read.
[[nodiscard]] ListeningSource decodeListening(std::string_view positions, std::string_view stream,
                                              std::string_view page, Problems& problems);

} // namespace talvora::pack
