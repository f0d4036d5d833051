// Something that is tried in a process of its own, so that a crash, a standstill or the memory that
// it takes is an outcome and no end.
#pragma once

#include <chrono>
#include <functional>
#include <string>
#include <string_view>

namespace talvora::test {

struct Outcome {
  enum class Kind {
    Returned, ///< the trial did, and `told` is what it returned
    Killed,   ///< the trial ended itself with `killTrial`
    Crashed,
    Hung
  };

  Kind kind = Kind::Crashed;
  std::string told;                        ///< what the trial said last, however it ended
  std::chrono::duration<double> seconds{}; ///< of the clock on the wall
  std::chrono::duration<double> busy{};    ///< of the processor
  long peakKilobytes = 0;                  ///< of memory
};

/// Runs a trial in a child of this process, which is ended when it takes more of the processor than
/// `patience`, or many times that by the clock, as one does that waits for nothing.
[[nodiscard]] Outcome tryInChild(const std::function<std::string()>& trial,
                                 std::chrono::seconds patience);

/// Ends the trial at once, as a kill of the program does. Only to be called in a trial.
[[noreturn]] void killTrial(const std::string& told = {});

/// The main function of a program that tries many things: what `run` gives, or 2 and a message
/// behind the program's name when that throws.
int runTrials(std::string_view program, int (*run)(int argc, char** argv), int argc, char** argv);

} // namespace talvora::test
