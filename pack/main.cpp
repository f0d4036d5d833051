// The command line of the content compiler.
#include "formats/PackFiles.h"
#include "pack/Check.h"
#include "pack/Compiler.h"
#include "pack/CompressRecordings.h"
#include "pack/ContentCheck.h"
#include "pack/CourseChecks.h"
#include "pack/CourseReport.h"
#include "pack/Dump.h"
#include "pack/KeptWords.h"
#include "pack/PhonesReport.h"
#include "pack/Planner.h"
#include "pack/Recordings.h"
#include "pack/Show.h"
#include "pack/Status.h"
#include "pack/WordsCommand.h"

#include <CLI/CLI.hpp>

#include <exception>
#include <iostream>
#include <map>
#include <unistd.h>
#include <vector>

namespace {

using namespace talvora::pack;

constexpr int contentErrors = 1;
constexpr int usageOrDiskErrors = 2;

/// Tells the steps on a terminal; a log or a script is spared them.
void showStep(std::string_view step) {
  if (::isatty(STDERR_FILENO) != 0) std::cerr << step << "...\n";
}

int tell(const Problems& problems) {
  for (const Problem& problem : problems.all())
    std::cerr << describe(problem) << "\n";
  return problems.none() ? 0 : contentErrors;
}

int failWith(const std::string& message) {
  std::cerr << message << "\n";
  return usageOrDiskErrors;
}

/// Words that kept their places need no telling.
void tellOf(const talvora::Carried& carried) {
  const int anew = carried.inTheirText + carried.nearest + carried.inAnotherText + carried.alike;
  if (anew + carried.gone == 0) return;
  std::cerr << "words of the learner: " << carried.inTheirText << " found in their texts, "
            << carried.nearest << " in a changed sentence, " << carried.inAnotherText
            << " in another text, " << carried.alike << " in one like it, " << carried.gone
            << " kept as text only\n";
}

int build(Options options, const std::filesystem::path& out) {
  Problems problems;
  options.earlierPack = out;
  const auto files = compile(options, problems, showStep);
  if (!problems.none()) return tell(problems);
  KeptWords words(out.string());
  for (const PackFile& file : files) {
    showStep(file.name);
    std::filesystem::create_directories((out / file.name).parent_path());
    if (const auto failure = store(file, out)) return failWith(*failure);
    if (file.name == packfile::Marks) removeUnmarkedRecordings(out, file.bytes);
  }
  if (const auto carried = words.carry()) tellOf(*carried);
  return 0;
}

/// Tells what breaks a rule of the dictionary without being an error: how often, and where when the
/// dictionary was asked for by name.
void checkDictionary(const Options& options, const std::set<ContentKind>& only,
                     Problems& problems) {
  const bool named = only.contains(ContentKind::Dictionary);
  if (!only.empty() && !named) return;
  const auto findings = checkDictionaryAlone(options.source, {}, problems);
  if (named) std::cout << warningsOf(findings);
  std::cout << findingsReport(findings);
  reportErrors(findings, problems);
}

void checkTexts(const Options& options, Problems& problems) {
  showStep("rules of texts and drills");
  for (const std::string& note : checkCourse(options.source, problems))
    std::cerr << "note: " << note << "\n";
}

int check(const Options& options, const std::set<ContentKind>& only, Warnings warnings) {
  Problems problems;
  const CheckReport report = checkContent(options, only, warnings, problems, showStep);
  std::cout << report.warnings;
  if (problems.none()) checkDictionary(options, only, problems);
  if (problems.none() && only.empty()) checkTexts(options, problems);
  if (problems.none()) std::cout << report.counted << ": no errors\n";
  return tell(problems);
}

int showPlace(const std::string& place) {
  Problems problems;
  std::cout << show(shownPlaceOf(place), problems);
  return tell(problems);
}

int status(const Options& options) {
  Problems problems;
  const Content content = readContent(options, problems, showStep);
  if (!problems.none()) return tell(problems);
  const WordList list = makeWordList(content, options, problems);
  std::cout << statusReport(content, list) << "\n"
            << courseReport(content.exercises, content.lessons, list);
  return tell(problems);
}

/// Slot 0 stands for all of them.
int plan(const std::filesystem::path& source, int slot, Detail detail) {
  Problems problems;
  const Planner planner = readPlanner(source, problems);
  std::cout << (slot == 0 ? overview(planner) : sheet(planner, slot, detail));
  return tell(problems);
}

int phones(const std::filesystem::path& source, const std::vector<std::string>& words) {
  Problems problems;
  std::cout << phonesReport(source, words, problems);
  return tell(problems);
}

int dumpTo(const std::filesystem::path& pack, const std::filesystem::path& out) {
  Problems problems;
  const auto sources = dump(pack, problems);
  for (const SourceText& source : sources) {
    const auto folder = (out / source.name).parent_path();
    std::filesystem::create_directories(folder);
    const auto name = std::filesystem::path(source.name).filename().string();
    if (const auto failure = store({name, source.text}, folder)) return failWith(*failure);
  }
  return tell(problems);
}

int compress(const std::filesystem::path& pack) {
  const Compressed result = compressRecordings(pack);
  std::cout << result.recordings << " recordings: " << result.before / 1024 << " KB became "
            << result.after / 1024 << " KB\n";
  return 0;
}

std::map<std::string, ContentKind> namedKinds() {
  std::map<std::string, ContentKind> kinds;
  for (const ContentKindName& each : ContentKindNames)
    kinds.emplace(each.name, each.kind);
  return kinds;
}

void addSourceOptions(CLI::App& command, Options& options) {
  command.add_option("SOURCE", options.source, "folder of the content sources")->required();
  command.add_option("--wordnet", options.wordNet, "folder of the WordNet database")
      ->capture_default_str();
  command
      .add_option("--wordnet-licence", options.wordNetLicence,
                  "licence of WordNet, which goes with the pack")
      ->capture_default_str();
  command.add_option("--word-list", options.wordLists, "English word lists, one word a line");
  command.add_option("--words", options.smallWordList,
                     "a small word list of at most that many lines: our own entries and their "
                     "forms, without WordNet and the word lists");
}

int run(int argumentCount, char** arguments) {
  CLI::App application("Compiles content sources to the files that Talvora opens");
  application.set_version_flag("--version", "talvora-pack " TALVORA_VERSION);
  application.require_subcommand(1);
  Options options;
  std::filesystem::path out;
  std::filesystem::path pack;

  CLI::App* buildCommand = application.add_subcommand(
      "build", "compile SOURCE into the folder OUT, and speak the listening "
               "scripts (texts 400 to 408) into OUT/sound where they are new "
               "or have changed");
  addSourceOptions(*buildCommand, options);
  buildCommand->add_option("OUT", out, "folder of the pack")->required();
  CLI::App* checkCommand = application.add_subcommand("check", "check SOURCE and write nothing");
  addSourceOptions(*checkCommand, options);
  std::vector<ContentKind> only;
  checkCommand->add_option("--only", only, "check these kinds alone, which takes a second or two")
      ->transform(CLI::CheckedTransformer(namedKinds()));
  bool listed = false;
  checkCommand->add_flag("--warnings", listed, "name the places of the warnings");
  std::string place;
  CLI::App* showCommand = application.add_subcommand(
      "show", "show an item, a lesson or a text of the sources as the learner will see it");
  showCommand->add_option("PLACE", place, "FILE, or FILE:LINE for the item at that line")
      ->required();
  CLI::App* dumpCommand = application.add_subcommand("dump", "decode the pack PACK into sources");
  dumpCommand->add_option("PACK", pack, "folder of the pack")->required();
  dumpCommand->add_option("OUT", out, "folder for the sources")->required();
  CLI::App* compressCommand = application.add_subcommand(
      "compress", "put the recordings of the pack PACK into FLAC, half the size, to be sent or "
                  "installed; the program reads both");
  compressCommand->add_option("PACK", pack, "folder of the pack")
      ->required()
      ->check(CLI::ExistingDirectory);
  const WordsCommand words(application);
  CLI::App* statusCommand =
      application.add_subcommand("status", "tell what SOURCE holds and still lacks: slots, "
                                           "scripts to record, words, the Vietnamese side");
  addSourceOptions(*statusCommand, options);

  int slot = 0;
  bool known = false;
  CLI::App* planCommand = application.add_subcommand(
      "plan", "tell what the reading texts of SOURCE do with words; for a SLOT also which lemmas "
              "are known by then, which may be new and which are due again");
  planCommand->add_option("SOURCE", options.source, "folder of the content sources")->required();
  planCommand->add_option("SLOT", slot, "number of a reading text")
      ->check(CLI::Range(1, ReadingSlots));
  planCommand->add_flag("--known", known, "list the known lemmas as well");

  std::vector<std::string> saidWords;
  CLI::App* phonesCommand = application.add_subcommand(
      "phones", "tell how the head words of SOURCE are said, or the WORDs alone");
  phonesCommand->add_option("SOURCE", options.source, "folder of the content sources")->required();
  phonesCommand->add_option("WORD", saidWords, "words to tell of");

  try {
    application.parse(argumentCount, arguments);
  } catch (const CLI::ParseError& error) {
    return application.exit(error) == 0 ? 0 : usageOrDiskErrors;
  }
  if (words.given()) return words.run();
  if (compressCommand->parsed()) return compress(pack);
  if (buildCommand->parsed()) return build(options, out);
  if (planCommand->parsed())
    return plan(options.source, slot, known ? Detail::Full : Detail::Short);
  if (checkCommand->parsed()) {
    return check(options, {only.begin(), only.end()},
                 listed ? Warnings::Listed : Warnings::Counted);
  }
  if (showCommand->parsed()) return showPlace(place);
  if (phonesCommand->parsed()) return phones(options.source, saidWords);
  return dumpCommand->parsed() ? dumpTo(pack, out) : status(options);
}

} // namespace

int main(int argumentCount, char** arguments) {
  try {
    return run(argumentCount, arguments);
  } catch (const std::exception& error) {
    return failWith(std::string("talvora-pack: ") + error.what());
  }
}
