// The light that the program's colour numbers stand for, as 0xRRGGBB.
#pragma once

#include "platform/TextStyle.h"

#include <cstdint>
#include <string>

namespace talvora::web {

using Light = std::uint32_t;

/// The look of a colour of the program, 0xBBGGRR or a system colour.
[[nodiscard]] Light lightOf(Colour colour);
/// How well two lights are told apart, from 1 to 21.
[[nodiscard]] double contrastOf(Light one, Light other);
/// The light itself where it can be read on a back colour, at 4.5 to 1; else the nearest tone of it
/// that can.
[[nodiscard]] Light readableOn(Light text, Light back);
/// "#rrggbb".
[[nodiscard]] std::string hexOf(Light light);

} // namespace talvora::web
