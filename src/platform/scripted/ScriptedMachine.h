// A whole machine without a window, in virtual time: what the driver runs the program on, and what
// tests give to a module. The same options and the same deeds give the same results.
#pragma once

#include "platform/Platform.h"
#include "platform/scripted/FixedLayout.h"
#include "platform/scripted/FixedMetrics.h"
#include "platform/scripted/ScriptedBoxes.h"
#include "platform/scripted/ScriptedClock.h"
#include "platform/scripted/ScriptedDesk.h"
#include "platform/scripted/ScriptedEvents.h"
#include "platform/scripted/ScriptedInput.h"
#include "platform/scripted/ScriptedLog.h"
#include "platform/scripted/ScriptedSpeech.h"
#include "platform/scripted/ScriptedWave.h"
#include "platform/scripted/VirtualTime.h"

#include <cstdint>

namespace talvora {

struct ScriptedOptions {
  int screenWidth = 1024;   ///< pixels
  int screenHeight = 768;   ///< pixels
  std::uint64_t seed = 1;   ///< of the random stream
  int voices = 3;           ///< the speech engine has the voices 1 to this number
  int speechMsPerChar = 60; ///< milliseconds
};

class ScriptedMachine {
 public:
  explicit ScriptedMachine(const ScriptedOptions& options = {}, FileSystem& files = systemFiles());
  ScriptedMachine(const ScriptedMachine&) = delete;
  ScriptedMachine& operator=(const ScriptedMachine&) = delete;

  // In the order in which they build on each other.
  VirtualTime time;
  ScriptedLog log;
  ScriptedClock clock;
  ScriptedNarrator narrator;
  ScriptedEvents events;
  ScriptedInput input;
  ScriptedSpeech speech;
  ScriptedWave wave;
  FixedMetrics metrics;
  FixedLayout layout;
  ScriptedBoxes boxes;
  ScriptedScreen screen;
  ScriptedClipboard clipboard;
  ScriptedInstallation installation;
  Random random;

  /// What a program is given; it lives as long as the machine.
  Platform platform;
};

} // namespace talvora
