// The speakers by name.
#include "pack/Speakers.h"

#include <algorithm>

namespace talvora::pack {

std::optional<Speaker> speakerNamed(std::string_view name) {
  const auto found = std::find(SpeakerNames.begin(), SpeakerNames.end(), name);
  if (found == SpeakerNames.end()) return std::nullopt;
  return static_cast<Speaker>(found - SpeakerNames.begin());
}

} // namespace talvora::pack
