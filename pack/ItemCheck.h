// What must be right about an item as a whole, when each of its lines is.
#pragma once

#include "pack/Item.h"
#include "pack/ItemText.h"

namespace talvora::pack {

/// Reports what an item lacks or has too much of. Its hints are at `hints`.
void checkWhole(const Item& item, const ItemText& text, const Where& hints, Problems& problems);

} // namespace talvora::pack
