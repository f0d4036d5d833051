// The sound device of the desktop.
#pragma once

#include "desktop/PcmPlayer.h"

#include <memory>

namespace talvora {

/// Makes the device that QtPcmDevice.h describes. It lies in a library beside the program, which is
/// loaded here: Qt Multimedia brings two dozen others along, and the menu does without them. When
/// it cannot be loaded, standard error says why and the device swallows what it is given.
[[nodiscard]] std::unique_ptr<PcmDevice> openSoundDevice();

} // namespace talvora
