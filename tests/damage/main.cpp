// talvora-damage: damages every file of a pack in every way, one at a time, and visits the whole
// program on what is left. It may show nonsense, or end with a word on the file; it may neither
// crash, nor stand still, nor take more memory than a small machine has.

#include "Kinds.h"
#include "Visit.h"

#include "tests/support/TemporaryFolder.h"
#include "tests/support/Trial.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdint>
#include <exception>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <optional>
#include <string>
#include <vector>

namespace talvora::damage {

namespace {

namespace fs = std::filesystem;

constexpr std::chrono::seconds Patience(30); // the sanitizers need several times as long
#if defined(__SANITIZE_ADDRESS__)
// The sanitizers' own memory and time are not the program's.
constexpr bool Measured = false;
#else
constexpr bool Measured = true;
#endif
constexpr double MostSeconds = 5; ///< of the processor
constexpr long MostKilobytes = 200L * 1024;

struct Arguments {
  std::string pack;
  std::string only;
  int every = 1;
  std::uint64_t seed = 1;
  bool all = false;
};

/// One damaged pack: the whole one by links, but for one file.
struct Variant {
  std::string file;
  std::string what;
  std::function<void(const fs::path&)> lay; ///< puts the damaged file at a path, or none
};

Bytes bytesOf(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void write(const fs::path& path, const Bytes& bytes) {
  std::ofstream file(path, std::ios::binary);
  file.write(reinterpret_cast<const char*>(bytes.data()),
             static_cast<std::streamsize>(bytes.size()));
}

std::vector<Variant> variantsOf(const fs::path& pack, const std::string& file, std::uint64_t seed) {
  std::vector<Variant> variants = {
      {file, "is missing", [](const fs::path&) {}},
      {file, "is a folder", [](const fs::path& at) { fs::create_directory(at); }},
      {file, "leads to itself", [](const fs::path& at) { fs::create_symlink(at, at); }},
  };
  for (const Kind& kind : kinds()) {
    variants.push_back({file, kind.name, [pack, file, &kind, seed](const fs::path& at) {
                          write(at, kind.change(bytesOf(pack / file), seed));
                        }});
  }
  return variants;
}

void layPack(const fs::path& pack, const Variant& variant, const fs::path& folder) {
  fs::create_directory(folder);
  for (const auto& entry : fs::directory_iterator(pack)) {
    const fs::path name = entry.path().filename();
    if (name != variant.file) fs::create_symlink(entry.path(), folder / name);
  }
  variant.lay(folder / variant.file);
}

/// What is wrong with an outcome on a pack of these files; empty when nothing is.
std::string faultOf(const test::Outcome& outcome, const std::vector<std::string>& files) {
  using Kind = test::Outcome::Kind;
  if (outcome.kind == Kind::Hung) return "stands still";
  if (outcome.kind != Kind::Returned) return "crashes";
  // Whoever is told that a file is bad has to know which.
  const bool names = std::any_of(files.begin(), files.end(), [&](const std::string& each) {
    return outcome.told.find(each) != std::string::npos;
  });
  if (!outcome.told.empty() && !names) return "ends without naming a file: " + outcome.told;
  if (!Measured) return {};
  if (outcome.busy.count() > MostSeconds)
    return "takes " + std::to_string(outcome.busy.count()) + " s";
  if (outcome.peakKilobytes > MostKilobytes)
    return "takes " + std::to_string(outcome.peakKilobytes / 1024) + " MB";
  return {};
}

class Matrix {
 public:
  explicit Matrix(const Arguments& arguments) : arguments_(arguments), files_(files()) {}

  /// Gives how many variants the program does not bear.
  int run() {
    int number = 0;
    for (const std::string& file : files_) {
      for (const Variant& variant : variantsOf(pack(), file, arguments_.seed)) {
        if (number++ % arguments_.every == 0 && isWanted(variant)) tryOne(variant);
      }
    }
    std::cout << tried_ << " damaged packs, " << told_ << " of them refused by name, " << faults_
              << " not borne; at most " << peak_ / 1024 << " MB and " << longest_ << " s\n";
    return faults_;
  }

 private:
  [[nodiscard]] fs::path pack() const { return fs::absolute(arguments_.pack); }
  [[nodiscard]] bool isWanted(const Variant& variant) const {
    return (variant.file + " " + variant.what).find(arguments_.only) != std::string::npos;
  }

  [[nodiscard]] std::vector<std::string> files() const {
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(pack())) {
      if (entry.is_regular_file()) names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  void tryOne(const Variant& variant) {
    const test::TemporaryFolder folder;
    const fs::path damaged = folder.path() / "pack";
    const fs::path learner = folder.path() / "learner";
    fs::create_directory(learner);
    layPack(pack(), variant, damaged);
    const test::Outcome outcome = test::tryInChild(
        [&] { return visit(Folders(damaged.string(), learner.string())); }, Patience);
    ++tried_;
    if (!outcome.told.empty()) ++told_;
    peak_ = std::max(peak_, outcome.peakKilobytes);
    longest_ = std::max(longest_, outcome.busy.count());
    if (arguments_.all) {
      std::cout << variant.file << " " << variant.what << ": " << outcome.busy.count() << " s, "
                << outcome.peakKilobytes / 1024 << " MB" << std::endl;
    }
    const std::string fault = faultOf(outcome, files_);
    if (fault.empty()) return;
    ++faults_;
    std::cout << variant.file << " " << variant.what << ": the program " << fault << std::endl;
  }

  Arguments arguments_;
  std::vector<std::string> files_;
  int tried_ = 0;
  int told_ = 0;
  int faults_ = 0;
  long peak_ = 0;
  double longest_ = 0;
};

int run(int argc, char** argv) {
  CLI::App app("Damages the files of a pack in every way and visits Talvora on what is left.");
  Arguments arguments;
  app.add_option("--pack", arguments.pack, "The content pack")
      ->required()
      ->check(CLI::ExistingDirectory);
  app.add_option("--every", arguments.every, "Tries only one variant in so many")
      ->capture_default_str()
      ->check(CLI::PositiveNumber);
  app.add_option("--only", arguments.only, "Tries only what has this in \"FILE DAMAGE\"");
  app.add_option("--seed", arguments.seed, "Chooses among damages of a kind")
      ->capture_default_str();
  app.add_flag("--all", arguments.all, "Tells of every variant what it takes");
  CLI11_PARSE(app, argc, argv);
  return Matrix(arguments).run() == 0 ? 0 : 1;
}

} // namespace

} // namespace talvora::damage

int main(int argc, char** argv) {
  return talvora::test::runTrials("talvora-damage", talvora::damage::run, argc, argv);
}
