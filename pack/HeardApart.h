// What a learner can hear apart in a recorded voice.
#pragma once

#include "pack/Speakers.h"

#include <string>
#include <string_view>

namespace talvora::pack {

/// Tells why a learner cannot hear which of two sentences a speaker said: the words in which they
/// differ sound alike, or nearly so, in the voice's own phones. Empty when he can.
[[nodiscard]] std::string notHeardApart(std::string_view heard, std::string_view other,
                                        Speaker speaker);

} // namespace talvora::pack
