// A small driver for fuzz targets: feeds them the seed files, then mutations of these, in a
// sequence that a seed number fixes. A failure is whatever the sanitizers or the target itself
// abort on; the input that led there is left in the file "crash-input".

#include <algorithm>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using Input = std::vector<std::uint8_t>;

constexpr std::size_t LargestInput = 1 << 16;

struct Options {
  long runs = 100000;
  double seconds = 0;
  std::uint64_t seed = 1;
  std::vector<std::string> seeds; ///< folders
};

[[noreturn]] void showUsage(int exitCode) {
  std::puts("usage: talvora-fuzz-NAME [--runs N] [--seconds N] [--seed N] [--seeds FOLDER]...\n"
            "Runs the target on the files of each FOLDER and on N mutations of them,\n"
            "or for so many seconds when --seconds is given.");
  std::exit(exitCode);
}

Options readOptions(int argc, char** argv) {
  Options options;
  for (int at = 1; at < argc; ++at) {
    const std::string_view name = argv[at];
    if (name == "--help") showUsage(0);
    if (at + 1 >= argc) showUsage(2);
    const std::string value = argv[++at];
    if (name == "--runs") {
      options.runs = std::stol(value);
    } else if (name == "--seconds") {
      options.seconds = std::stod(value);
    } else if (name == "--seed") {
      options.seed = std::stoull(value);
    } else if (name == "--seeds") {
      options.seeds.push_back(value);
    } else {
      showUsage(2);
    }
  }
  return options;
}

std::vector<Input> readSeeds(const std::vector<std::string>& folders) {
  std::vector<Input> seeds = {Input{}};
  std::vector<std::filesystem::path> paths;
  for (const std::string& folder : folders) {
    if (!std::filesystem::is_directory(folder)) continue;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
      paths.push_back(entry);
  }
  std::sort(paths.begin(), paths.end());
  for (const auto& path : paths) {
    std::ifstream file(path, std::ios::binary);
    seeds.emplace_back(std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>());
  }
  return seeds;
}

class Mutator {
 public:
  explicit Mutator(std::uint64_t seed) : random_(seed) {}

  Input mutate(Input input, const Input& other) {
    const int changes = 1 + static_cast<int>(below(8));
    for (int change = 0; change < changes; ++change)
      changeOnce(input, other);
    if (input.size() > LargestInput) input.resize(LargestInput);
    return input;
  }

  std::size_t below(std::size_t limit) { return limit == 0 ? 0 : random_() % limit; }

 private:
  void changeOnce(Input& input, const Input& other) {
    const auto place = [&] {
      return input.begin() + static_cast<std::ptrdiff_t>(below(input.size() + 1));
    };
    switch (below(6)) {
    case 0:
      input.insert(place(), static_cast<std::uint8_t>(random_()));
      break;
    case 1:
      if (!input.empty()) input[below(input.size())] = static_cast<std::uint8_t>(random_());
      break;
    case 2:
      if (!input.empty()) input[below(input.size())] ^= static_cast<std::uint8_t>(1U << below(8));
      break;
    case 3: {
      const auto from = place();
      const auto most = static_cast<std::size_t>(input.end() - from);
      input.erase(from, from + static_cast<std::ptrdiff_t>(below(most + 1)));
      break;
    }
    case 4: {
      const std::size_t from = below(other.size() + 1);
      const std::size_t count = below(other.size() - from + 1);
      const Input piece(other.begin() + static_cast<std::ptrdiff_t>(from),
                        other.begin() + static_cast<std::ptrdiff_t>(from + count));
      input.insert(place(), piece.begin(), piece.end());
      break;
    }
    default:
      input.insert(place(), below(40), static_cast<std::uint8_t>(random_()));
      break;
    }
  }

  std::mt19937_64 random_;
};

void runOn(const Input& input) {
  // Written ahead of the run, so that it is there when the run ends the process.
  std::ofstream file("crash-input", std::ios::binary | std::ios::trunc);
  file.write(reinterpret_cast<const char*>(input.data()),
             static_cast<std::streamsize>(input.size()));
  file.close();
  LLVMFuzzerTestOneInput(input.data(), input.size());
}

} // namespace

int main(int argc, char** argv) {
  const Options options = readOptions(argc, argv);
  const std::vector<Input> seeds = readSeeds(options.seeds);
  for (const Input& seed : seeds)
    runOn(seed);

  Mutator mutator(options.seed);
  const auto start = std::chrono::steady_clock::now();
  const auto elapsed = [&] {
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
  };
  long runs = 0;
  while (options.seconds > 0 ? elapsed() < options.seconds : runs < options.runs) {
    const Input& one = seeds[mutator.below(seeds.size())];
    const Input& other = seeds[mutator.below(seeds.size())];
    runOn(mutator.mutate(one, other));
    ++runs;
  }
  std::filesystem::remove("crash-input");
  std::printf("%ld mutations of %zu seeds\n", runs, seeds.size());
  return 0;
}
