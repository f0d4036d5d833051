// The command line of the content compiler.
#include "pack/Command.h"
#include "pack/Message.h"

#include <CLI/CLI.hpp>

#include <array>
#include <exception>
#include <memory>
#include <string>

namespace {

using namespace talvora::pack;

/// What is wrong with a command line; the library says it in English.
std::string faultOf(const CLI::Error& error) {
  const std::string english = error.what();
  const std::string required = " is required";
  const std::size_t colon = english.find(": ");
  switch (static_cast<CLI::ExitCodes>(error.get_exit_code())) {
  case CLI::ExitCodes::RequiredError:
    if (english.starts_with("A subcommand")) return said("a command is missing");
    if (!english.ends_with(required)) break;
    return said("{} is missing", english.substr(0, english.size() - required.size()));
  case CLI::ExitCodes::ExtrasError:
    if (colon == std::string::npos) break;
    return said("not understood: {}", english.substr(colon + 2));
  default:
    break;
  }
  return said("the command line is wrong: {}", english);
}

/// The words that the library puts around the options.
void speakIn(CLI::App& application) {
  const auto formatter = application.get_formatter();
  formatter->label("Usage", said("Usage"));
  formatter->label("Positionals", said("What stands without a name"));
  formatter->label("OPTIONS", said("OPTIONS"));
  formatter->label("SUBCOMMAND", said("COMMAND"));
  formatter->label("SUBCOMMANDS", said("COMMANDS"));
  formatter->label("REQUIRED", said("REQUIRED"));
  application.option_defaults()->group(said("Options"));
  application.group(said("Commands"));
  application.set_help_flag("-h,--help", said("tell how it is used"));
  application.failure_message([](const CLI::App*, const CLI::Error& error) {
    return faultOf(error) + "\n" + said("With --help it tells more.") + "\n";
  });
}

int run(int argumentCount, char** arguments) {
  speakTheUsersLanguage(translationsOfProgram());
  CLI::App application(said("Compiles content sources to the files that Talvora opens"));
  speakIn(application);
  application.set_version_flag("--version", "talvora-pack " TALVORA_VERSION TALVORA_WITHOUT,
                               said("tell the version"));
  application.require_subcommand(1);
  const std::array commands = {
      buildCommand(application),  checkCommand(application),    showCommand(application),
      dumpCommand(application),   compressCommand(application), wordsCommand(application),
      importCommand(application), newCommand(application),      textCommand(application),
      statusCommand(application), planCommand(application),     phonesCommand(application),
      folderCommand(application)};
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
