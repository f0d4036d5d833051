// talvora-driver: the program without a window, commanded line by line.

#include "driver/Driver.h"

#include <CLI/CLI.hpp>

#include <charconv>
#include <filesystem>
#include <iostream>
#include <string>
#include <string_view>

namespace {

constexpr int BadOptions = 2;
constexpr int LargestScreen = 16384;

struct Arguments {
  std::string directory;
  std::string learner;
  std::string screen = "1024x768";
  std::string metrics = "fixed";
  talvora::ScriptedOptions options;
};

bool readLength(std::string_view digits, int& length) {
  const char* const end = digits.data() + digits.size();
  const auto [behind, error] = std::from_chars(digits.data(), end, length);
  return error == std::errc() && behind == end && length >= 1 && length <= LargestScreen;
}

/// Reads "1024x768"; false when it is nothing like that.
bool readScreen(std::string_view text, talvora::ScriptedOptions& options) {
  const std::size_t cross = text.find('x');
  return cross != std::string_view::npos &&
         readLength(text.substr(0, cross), options.screenWidth) &&
         readLength(text.substr(cross + 1), options.screenHeight);
}

void declare(CLI::App& app, Arguments& arguments) {
  app.add_option("--dir", arguments.directory, "The program's directory: a content pack")
      ->required()
      ->check(CLI::ExistingDirectory);
  app.add_option("--learner", arguments.learner,
                 "The learner's own folder; without it the program's directory is that too");
  app.add_option("--screen", arguments.screen, "Screen in pixels")->capture_default_str();
  app.add_option("--seed", arguments.options.seed, "Start of the random stream")
      ->capture_default_str();
  app.add_option("--voices", arguments.options.voices, "Number of voices of the speech engine")
      ->capture_default_str()
      ->check(CLI::NonNegativeNumber);
  app.add_option("--speech-ms-per-char", arguments.options.speechMsPerChar,
                 "Virtual milliseconds that a spoken character takes")
      ->capture_default_str()
      ->check(CLI::Range(0, 1000000));
  app.add_option("--metrics", arguments.metrics, "Text measures")
      ->capture_default_str()
      ->check(CLI::IsMember({"fixed"}));
}

int run(int argc, char** argv) {
  CLI::App app("Runs Talvora without a window. Reads one JSON command a line on standard input and "
               "writes one JSON reply a line on standard output.");
  app.set_version_flag("--version", "talvora-driver " TALVORA_VERSION);
  Arguments arguments;
  declare(app, arguments);
  try {
    app.parse(argc, argv);
    if (!readScreen(arguments.screen, arguments.options)) {
      throw CLI::ValidationError("--screen", "not a size such as 1024x768: " + arguments.screen);
    }
    if (!arguments.learner.empty()) {
      arguments.learner = std::filesystem::absolute(arguments.learner).string();
    }
    std::filesystem::current_path(arguments.directory);
  } catch (const CLI::ParseError& error) {
    return app.exit(error) == 0 ? 0 : BadOptions;
  } catch (const std::filesystem::filesystem_error& error) {
    std::cerr << error.what() << '\n';
    return BadOptions;
  }

  const std::string pack = std::filesystem::current_path().string();
  const std::string own = arguments.learner.empty() ? pack : arguments.learner;
  talvora::Driver driver(arguments.options, {pack, own},
                         talvora::LearnerLock(talvora::systemFiles(), own));
  std::string line;
  while (std::getline(std::cin, line))
    std::cout << driver.answer(line) << std::endl;
  return 0;
}

} // namespace

int main(int argc, char** argv) {
  try {
    return run(argc, argv);
  } catch (const std::exception& error) {
    std::cerr << "talvora-driver: " << error.what() << '\n';
    return BadOptions;
  }
}
