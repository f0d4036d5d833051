// Entries of the dictionary as the popup shows them.
#pragma once

#include "pack/Problems.h"
#include "pack/ShownPlace.h"

#include <string>
#include <string_view>

namespace talvora::pack {

/// True for a source of the dictionary: a head word, and indented below it a sense.
[[nodiscard]] bool holdsEntries(std::string_view source);

/// The entries of a source, or the one of a line, as UTF-8 lines. In a folder "dictionary" they
/// also say of which words of the other files they are forms, and how the course has them said;
/// another file is read by itself. What is wrong with the source is reported.
[[nodiscard]] std::string entriesShown(const ShownPlace& place, std::string_view source,
                                       Problems& problems);

} // namespace talvora::pack
