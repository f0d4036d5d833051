// The first line of an item: "item: KIND, HEADING".
#pragma once

#include "pack/Item.h"
#include "pack/ItemKeys.h"
#include "pack/Message.h"
#include "pack/SourceFile.h"

#include <optional>
#include <string>
#include <string_view>

namespace talvora::pack {

/// How the line is asked for.
inline constexpr std::string_view ItemFirstLine =
    toSay("an item begins with \"item: KIND, HEADING\"");

struct ItemOpening {
  const ItemKind* kind = nullptr; ///< never null
  int heading = 0;                ///< its code; 0 for none
};

/// Reads the line; empty when it does not tell the kind, which is reported. A heading that does not
/// exist is reported and counts as none.
[[nodiscard]] std::optional<ItemOpening> parseItemOpening(const SourceLine& line,
                                                          const KeyLine& key,
                                                          const std::string& file, ItemPlace place,
                                                          Problems& problems);

} // namespace talvora::pack
