// The sound of the desktop: the speech engine and the wave player that this machine has.
#pragma once

#include "platform/Speech.h"
#include "platform/WavePlayer.h"

#include <filesystem>
#include <memory>

namespace talvora {

struct Sound {
  std::unique_ptr<SpeechEngine> speech;
  std::unique_ptr<WavePlayer> wave;
};

/// Makes both, for a pack in a folder, which tells what the voices say wrong of themselves. They
/// look for the default sound device when the first sound comes, and keep their timing silently
/// where there is none. What the program was built without is replaced by a silent one.
[[nodiscard]] Sound makeSound(const std::filesystem::path& pack);

} // namespace talvora
