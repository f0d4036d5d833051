#include "platform/scripted/ScriptedMachine.h"

namespace talvora {

ScriptedMachine::ScriptedMachine(const ScriptedOptions& options, FileSystem& files)
    : log(time), clock(time, log), narrator(log), events(narrator), input(time, log),
      speech(time, log, options.voices, options.speechMsPerChar), wave(time, log), boxes(log),
      screen(options.screenWidth, options.screenHeight), clipboard(log),
      installation(log, options.voices),
      random(options.seed), platform{clock,        events,   input,  speech, wave,
                                     metrics,      layout,   boxes,  screen, clipboard,
                                     installation, narrator, random, files} {}

} // namespace talvora
