// The desktop as the program's machine: one of each piece.
#pragma once

#include "desktop/AutoRepeat.h"
#include "desktop/DesktopDesk.h"
#include "desktop/DesktopInput.h"
#include "desktop/DesktopTime.h"
#include "desktop/InputGate.h"
#include "desktop/QtLineLayout.h"
#include "desktop/Sound.h"
#include "desktop/TextShaper.h"
#include "fronts/KeyTable.h"
#include "platform/Platform.h"

#include <cstdint>
#include <filesystem>

namespace talvora {

class DesktopMachine {
 public:
  /// `pack` is the folder of the content, of which the voices need to know.
  DesktopMachine(QSize virtualScreen, std::uint64_t seed, const std::filesystem::path& pack);
  DesktopMachine(const DesktopMachine&) = delete;
  DesktopMachine& operator=(const DesktopMachine&) = delete;
  ~DesktopMachine();

  // In the order in which they build on each other.
  KeyTable keys;
  InputGate gate;
  AutoRepeat repeats;
  DesktopClock clock;
  DesktopEventLoop events;
  DesktopInput input;
  Sound sound;
  QtTextMetrics metrics;
  QtLineLayout layout;
  DesktopBoxes boxes;
  DesktopScreen screen;
  DesktopClipboard clipboard;
  DesktopInstallation installation;
  DesktopNarrator narrator;
  Random random;

  /// What a program is given; it lives as long as the machine.
  Platform platform;
};

} // namespace talvora
