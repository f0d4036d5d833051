// The command line of the content compiler.
#include "pack/Command.h"

#include <CLI/CLI.hpp>

#include <array>
#include <exception>
#include <memory>
#include <string>

namespace {

using namespace talvora::pack;

int run(int argumentCount, char** arguments) {
  CLI::App application("Compiles content sources to the files that Talvora opens");
  application.set_version_flag("--version", "talvora-pack " TALVORA_VERSION TALVORA_WITHOUT);
  application.require_subcommand(1);
  const std::array commands = {
      buildCommand(application),  checkCommand(application),    showCommand(application),
      dumpCommand(application),   compressCommand(application), wordsCommand(application),
      importCommand(application), newCommand(application),      textCommand(application),
      statusCommand(application), planCommand(application),     phonesCommand(application)};
  try {
    application.parse(argumentCount, arguments);
  } catch (const CLI::ParseError& error) {
    return application.exit(error) == 0 ? 0 : usageOrDiskErrors;
  }
  for (const std::unique_ptr<Command>& command : commands) {
    if (command->given()) return command->run();
  }
  return usageOrDiskErrors;
}

} // namespace

int main(int argumentCount, char** arguments) {
  try {
    return run(argumentCount, arguments);
  } catch (const std::exception& error) {
    return failWith(std::string("talvora-pack: ") + error.what());
  }
}
