// What the program's colour numbers look like, and how well a text can be read in them.
#pragma once

#include "platform/TextStyle.h"

#include <cstdint>

namespace talvora {

/// A colour of the screen, 0xRRGGBB.
using Light = std::uint32_t;

/// The look of a colour of the program, 0xBBGGRR or a system colour. Pure red is shown deeper than
/// it is, since text in it could not be read well on white.
[[nodiscard]] Light lightOf(Colour colour);

/// How well two lights are told apart, from 1 to 21.
[[nodiscard]] double contrastOf(Light one, Light other);

/// The light itself where it can be read on a back light, at 4.5 to 1; else the nearest tone of it
/// that can.
[[nodiscard]] Light readableOn(Light text, Light back);

} // namespace talvora
