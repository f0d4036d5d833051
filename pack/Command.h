// A command of the compiler's command line.
#pragma once

#include "pack/Compiler.h"
#include "pack/Problems.h"

#include <memory>
#include <string>
#include <string_view>

namespace CLI {
class App;
}

namespace talvora::pack {

inline constexpr int contentErrors = 1;
inline constexpr int usageOrDiskErrors = 2;

/// What belongs to one command: its words on the command line, and what it does. The application
/// that it is added to must live as long.
class Command {
 public:
  Command() = default;
  Command(const Command&) = delete;
  Command& operator=(const Command&) = delete;
  virtual ~Command() = default;

  /// Whether it is the command that was given.
  [[nodiscard]] virtual bool given() const = 0;
  /// Does it and gives the exit code.
  [[nodiscard]] virtual int run() = 0;
};

/// Adds the folder of the sources and what a word list is made from.
void addSourceOptions(CLI::App& command, Options& options);

/// Tells the steps on a terminal; a log or a script is spared them.
void showStep(std::string_view step);
/// Tells what is wrong with the content, and gives the exit code.
[[nodiscard]] int tell(const Problems& problems);
/// Tells why a command could not be carried out, and gives the exit code.
[[nodiscard]] int failWith(const std::string& message);

[[nodiscard]] std::unique_ptr<Command> buildCommand(CLI::App& application);
[[nodiscard]] std::unique_ptr<Command> checkCommand(CLI::App& application);
[[nodiscard]] std::unique_ptr<Command> compressCommand(CLI::App& application);
[[nodiscard]] std::unique_ptr<Command> showCommand(CLI::App& application);
[[nodiscard]] std::unique_ptr<Command> dumpCommand(CLI::App& application);
[[nodiscard]] std::unique_ptr<Command> wordsCommand(CLI::App& application);
[[nodiscard]] std::unique_ptr<Command> folderCommand(CLI::App& application);
[[nodiscard]] std::unique_ptr<Command> importCommand(CLI::App& application);
[[nodiscard]] std::unique_ptr<Command> newCommand(CLI::App& application);
[[nodiscard]] std::unique_ptr<Command> textCommand(CLI::App& application);
[[nodiscard]] std::unique_ptr<Command> statusCommand(CLI::App& application);
[[nodiscard]] std::unique_ptr<Command> planCommand(CLI::App& application);
[[nodiscard]] std::unique_ptr<Command> phonesCommand(CLI::App& application);

} // namespace talvora::pack
