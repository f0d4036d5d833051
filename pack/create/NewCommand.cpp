// talvora-pack new: a commented example to write over.
#include "pack/Command.h"
#include "pack/CommandLine.h"
#include "pack/Message.h"
#include "pack/PackFile.h"
#include "pack/create/NewSource.h"

#include <filesystem>
#include <iostream>
#include <map>
#include <string>
#include <system_error>

namespace talvora::pack {

namespace {

std::map<std::string, SourceKind> namedKinds() {
  std::map<std::string, SourceKind> kinds;
  for (const SourceKindName& each : SourceKindNames)
    kinds.emplace(each.name, each.kind);
  return kinds;
}

int put(SourceKind kind, const std::filesystem::path& file) {
  std::error_code error;
  if (std::filesystem::exists(file, error)) {
    std::cerr << said("{}: this file is there already and is not written over", file.string())
              << "\n";
    return usageOrDiskErrors;
  }
  const auto place = std::filesystem::absolute(file);
  const PackFile source{place.filename().string(), std::string(exampleOf(kind))};
  if (const auto problem = store(source, place.parent_path())) {
    return failWith(said("Nothing could be written: {}", translatedFileProblem(*problem)));
  }
  std::cout << said("{} has been written.", file.string()) << "\n";
  // What a source is can be seen of itself; a lesson alone is known by its folder.
  if (kind != SourceKind::Lesson || place.parent_path().filename() == "lessons")
    std::cout << said("To look at it: {}", "talvora-pack show " + file.string()) << "\n";
  return 0;
}

class NewCommand final : public Command {
 public:
  explicit NewCommand(CLI::App& application);
  [[nodiscard]] bool given() const override { return command_->parsed(); }
  [[nodiscard]] int run() override;

 private:
  CLI::App* command_ = nullptr;
  SourceKind kind_ = SourceKind::Text;
  std::string file_; ///< empty for standard output
};

NewCommand::NewCommand(CLI::App& application) {
  command_ =
      application.add_subcommand("new", said("put down a commented example to write over: a text, "
                                             "a lesson, an item, a listening unit, an analysis"));
  takeOneOf(*command_->add_option("KIND", kind_, said("text, lesson, item, unit or analysis"))
                 ->required(),
            namedKinds());
  command_->add_option("FILE", file_,
                       said("the file to write, which must not exist; without one it is printed"));
}

int NewCommand::run() {
  if (!file_.empty()) return put(kind_, file_);
  std::cout << exampleOf(kind_);
  return 0;
}

} // namespace

std::unique_ptr<Command> newCommand(CLI::App& application) {
  return std::make_unique<NewCommand>(application);
}

} // namespace talvora::pack
