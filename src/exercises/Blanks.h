// The blanks or phrases of an item and what explains each of them.
#pragma once

#include "exercises/ItemState.h"

#include <span>
#include <string>

namespace talvora {

/// Fills `OTrong` from the mask and gives each entry its explanation from the answer record.
/// Element n of the titles belongs to lesson n.
void LapOTrong(ItemState& item, std::span<const std::string> titles);

} // namespace talvora
