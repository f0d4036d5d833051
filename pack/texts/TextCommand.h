// The command `talvora-pack text` and what belongs to it on the command line.
#pragma once

#include <memory>

namespace CLI {
class App;
}

namespace talvora::pack {

class TextCommand {
 public:
  /// Adds the command to an application, which must live as long.
  explicit TextCommand(CLI::App& application);
  TextCommand(const TextCommand&) = delete;
  TextCommand& operator=(const TextCommand&) = delete;
  ~TextCommand();

  /// Whether it is the command that was given.
  [[nodiscard]] bool given() const;
  /// Does it, tells on standard output, and gives the exit code.
  [[nodiscard]] int run() const;

 private:
  struct Parts;
  std::unique_ptr<Parts> parts_;
};

} // namespace talvora::pack
