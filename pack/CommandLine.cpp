// The words around options, and what is wrong with a line.
#include "pack/CommandLine.h"

#include "pack/HelpColumns.h"
#include "pack/Message.h"

#include <algorithm>
#include <charconv>
#include <filesystem>
#include <memory>

namespace talvora::pack {

namespace {

/// What stands ahead of a sign in what the library says; all when it does not stand there.
std::string aheadOf(const std::string& text, const std::string& sign) {
  return text.substr(0, text.find(sign));
}

/// What the library says behind its first colon.
std::string behindColon(const std::string& text) {
  const std::size_t colon = text.find(": ");
  return colon == std::string::npos ? text : text.substr(colon + 2);
}

/// What is missing on a line, or is not understood in place of it.
std::string lackOf(const CLI::App& application, const std::string& english) {
  if (!english.starts_with("A subcommand"))
    return said("{} is missing", aheadOf(english, " is required"));
  // A command that there is not is a word too many for the library.
  const std::vector<std::string> left = application.remaining(true);
  return left.empty() ? said("a command is missing") : said("not understood: {}", left.front());
}

/// What is wrong with a line; the library says it in English.
std::string faultOf(const CLI::App& application, const CLI::Error& error) {
  const std::string english = error.what();
  switch (static_cast<CLI::ExitCodes>(error.get_exit_code())) {
  case CLI::ExitCodes::RequiredError:
    return lackOf(application, english);
  case CLI::ExitCodes::ExtrasError:
  case CLI::ExitCodes::ConversionError:
    return said("not understood: {}", behindColon(english));
  case CLI::ExitCodes::ArgumentMismatch:
    return said("{} needs a value", aheadOf(english, ":"));
  default:
    return said("the command line is wrong: {}", english);
  }
}

} // namespace

void speakInUsersLanguage(CLI::App& application) {
  const auto formatter = std::make_shared<HelpColumns>();
  application.formatter(formatter);
  formatter->label("Usage", said("Usage"));
  formatter->label("Positionals", said("What stands without a name"));
  formatter->label("OPTIONS", said("OPTIONS"));
  formatter->label("SUBCOMMAND", said("COMMAND"));
  formatter->label("SUBCOMMANDS", said("COMMANDS"));
  formatter->label("REQUIRED", said("REQUIRED"));
  formatter->label("TEXT", said("TEXT"));
  for (const char* const number : {"INT", "UINT"})
    formatter->label(number, said("NUMBER"));
  application.option_defaults()->group(said("Options"));
  application.group(said("Commands"));
  application.set_help_flag("-h,--help", said("tell how it is used"));
  application.failure_message([](const CLI::App* line, const CLI::Error& error) {
    return faultOf(*line, error) + "\n" + said("With --help it tells more.") + "\n";
  });
}

void putHelpAmongOptions(CLI::App& application) {
  if (CLI::Option* const help = application.get_help_ptr()) help->group(said("Options"));
  for (CLI::App* const command : application.get_subcommands({}))
    putHelpAmongOptions(*command);
}

void takeOneOf(CLI::Option& option, const std::vector<std::pair<std::string, int>>& words) {
  std::string list;
  for (const auto& [word, number] : words)
    list += (list.empty() ? "" : "|") + word;
  option.type_name(list);
  option.transform(CLI::Validator(
      [words, list](std::string& given) -> std::string {
        const auto found = std::ranges::find(words, given, &std::pair<std::string, int>::first);
        if (found == words.end()) return said("\"{}\" is none of {}", given, list);
        given = std::to_string(found->second);
        return {};
      },
      ""));
}

void takeNumberUpTo(CLI::Option& option, int most) {
  // For the library a number that begins with 0 is an octal one.
  option.transform(CLI::Validator(
      [most](std::string& given) -> std::string {
        int number = 0;
        const auto [end, failure] =
            std::from_chars(given.data(), given.data() + given.size(), number);
        const bool whole = failure == std::errc() && end == given.data() + given.size();
        if (!whole || number < 1 || number > most)
          return said("\"{}\" is no number from 1 to {}", given, most);
        given = std::to_string(number);
        return {};
      },
      ""));
}

void takeFolder(CLI::Option& option) {
  option.check(CLI::Validator(
      [](const std::string& given) -> std::string {
        std::error_code error;
        if (std::filesystem::is_directory(given, error)) return {};
        return given + ": " + said("is not a folder");
      },
      ""));
}

} // namespace talvora::pack
