// The command line of the content compiler.
#include "pack/Command.h"
#include "pack/CommandLine.h"
#include "pack/Message.h"

#include <array>
#include <exception>
#include <memory>
#include <string>

namespace {

using namespace talvora::pack;

int run(int argumentCount, char** arguments) {
  speakTheUsersLanguage(translationsOfProgram());
  CLI::App application(said("Compiles content sources to the files that Talvora opens"));
  speakInUsersLanguage(application);
  application.set_version_flag("--version", "talvora-pack " TALVORA_VERSION TALVORA_WITHOUT,
                               said("tell the version"));
  application.require_subcommand(1);
  const std::array commands = {
      buildCommand(application),  checkCommand(application),    showCommand(application),
      dumpCommand(application),   compressCommand(application), wordsCommand(application),
      importCommand(application), newCommand(application),      textCommand(application),
      statusCommand(application), planCommand(application),     phonesCommand(application),
      folderCommand(application)};
  putHelpAmongOptions(application);
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
