// The sound of the desktop: the speech engine and the wave player that this machine has.
#pragma once

#include "platform/Speech.h"
#include "platform/WavePlayer.h"

#include <memory>

namespace talvora {

struct Sound {
  std::unique_ptr<SpeechEngine> speech;
  std::unique_ptr<WavePlayer> wave;
};

/// Makes both on the default sound device; without a device they keep their timing silently. What
/// the program was built without is replaced by a silent one. To be called on the main thread.
[[nodiscard]] Sound makeSound();

} // namespace talvora
