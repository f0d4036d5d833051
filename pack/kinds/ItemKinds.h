// The kinds of item that there are.
#pragma once

#include "pack/kinds/ItemKind.h"

#include <span>
#include <string_view>

namespace talvora::pack {

/// All of them, in the order in which the pages for teachers name them. They live as long as the
/// process.
[[nodiscard]] std::span<const ItemKind* const> itemKinds();

/// The kind of a name or of a record's first digit; null for none.
[[nodiscard]] const ItemKind* itemKindNamed(std::string_view name);
[[nodiscard]] const ItemKind* itemKindOf(char digit);

} // namespace talvora::pack
