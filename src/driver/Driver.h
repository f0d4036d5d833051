// The driver: runs the program on a scripted machine and answers commands, one JSON object each.
#pragma once

#include "driver/Command.h"
#include "driver/Json.h"
#include "driver/Learner.h"
#include "learner/LearnerLock.h"
#include "platform/scripted/ScriptedMachine.h"
#include "program/Program.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>

namespace talvora {

class Driver {
 public:
  /// `lock` is on the learner's folder; it goes when the program has ended. When another program
  /// has the folder, the start fails.
  Driver(const ScriptedOptions& options, const Folders& folders,
         std::optional<LearnerLock> lock = std::nullopt, FileSystem& files = systemFiles());

  /// Carries out one command and gives its reply. A command that cannot be understood changes
  /// nothing; a fatal failure of the program is a reply.
  [[nodiscard]] std::string answer(std::string_view line);
  /// The reply before it is put into words: for who is in the same process and looks at long pages.
  [[nodiscard]] Json reply(std::string_view line);

 private:
  /// When a command is taken.
  enum class Taken {
    Always,      ///< it only reads
    UntilTheEnd, ///< it also prepares the start
    WhileRunning ///< after the start, before the end
  };
  struct Entry {
    Json (Driver::*handler)(const Command&);
    Taken taken;
  };

  static const std::map<std::string, Entry>& commands();
  [[nodiscard]] Json replyTo(const Command& command);
  void refuseUntimely(const Entry& entry) const;

  Json start(const Command& command);
  Json click(const Command& command);
  Json mouse(const Command& command);
  Json move(const Command& command);
  Json hover(const Command& command);
  Json key(const Command& command);
  Json keydown(const Command& command);
  Json keyup(const Command& command);
  Json type(const Command& command);
  Json hold(const Command& command);
  Json wait(const Command& command);
  Json queueAnswer(const Command& command);
  Json close(const Command& command);
  Json surface(const Command& command);
  Json state(const Command& command);
  Json get(const Command& command);
  Json log(const Command& command);
  Json call(const Command& command);

  Json strike(const Command& command, Stroke stroke);
  void addEnding(Json& reply) const;

  [[nodiscard]] Surface& surfaceField(const Command& command);
  [[nodiscard]] Button& buttonField(const Command& command);
  /// The control that a key is meant for; null when it is whatever has the focus.
  [[nodiscard]] Control* targetField(const Command& command);

  ScriptedMachine machine_;
  std::optional<LearnerLock> lock_;
  Program program_;
  Learner learner_;
  bool started_ = false;
};

} // namespace talvora
