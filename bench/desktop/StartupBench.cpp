// From the start of the process to the finished menu, against the first picture of an empty Qt
// window, and the memory that both then hold. To be run with a display; the menu may take three
// times as long as the empty window.
//
//   talvora-bench-Startup PROGRAM PACK_FOLDER [benchmark options]
#include <benchmark/benchmark.h>

#include <array>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

extern char** environ;

namespace {

constexpr int TraceDescriptor = 9;

/// A program that runs until this object goes, and writes a trace that this object reads.
class TracedProgram {
 public:
  explicit TracedProgram(std::vector<std::string> command) {
    std::array<int, 2> ends{};
    if (::pipe2(ends.data(), O_CLOEXEC) != 0) std::abort();
    reading_ = ends[0];
    command.insert(command.end(), {"--trace", "/dev/fd/" + std::to_string(TraceDescriptor)});
    std::vector<char*> arguments;
    for (std::string& argument : command)
      arguments.push_back(argument.data());
    arguments.push_back(nullptr);
    posix_spawn_file_actions_t actions;
    ::posix_spawn_file_actions_init(&actions);
    ::posix_spawn_file_actions_adddup2(&actions, ends[1], TraceDescriptor);
    if (::posix_spawn(&process_, arguments[0], &actions, nullptr, arguments.data(), environ) != 0) {
      std::cerr << command[0] << " does not start\n";
      std::exit(1);
    }
    ::posix_spawn_file_actions_destroy(&actions);
    ::close(ends[1]);
  }
  TracedProgram(const TracedProgram&) = delete;
  TracedProgram& operator=(const TracedProgram&) = delete;
  ~TracedProgram() {
    ::kill(process_, SIGKILL);
    ::waitpid(process_, nullptr, 0);
    ::close(reading_);
  }

  /// Reads on until a text has come; false when the program ends before.
  bool waitFor(const std::string& text) {
    std::array<char, 4096> piece{};
    while (read_.find(text) == std::string::npos) {
      const ssize_t got = ::read(reading_, piece.data(), piece.size());
      if (got <= 0) return false;
      read_.append(piece.data(), static_cast<std::size_t>(got));
    }
    return true;
  }

  /// What the process holds in memory, in MB.
  [[nodiscard]] double residentMegabytes() const {
    std::ifstream status("/proc/" + std::to_string(process_) + "/status");
    std::string line;
    while (std::getline(status, line)) {
      if (line.starts_with("VmRSS:")) return std::stod(line.substr(6)) / 1024;
    }
    return 0;
  }

 private:
  pid_t process_ = 0;
  int reading_ = -1;
  std::string read_;
};

void measure(benchmark::State& state, const std::vector<std::string>& command,
             const std::string& sign) {
  double megabytes = 0;
  for (auto _ : state) {
    const auto begin = std::chrono::steady_clock::now();
    TracedProgram program(command);
    if (!program.waitFor(sign)) {
      state.SkipWithError("the program has ended");
      break;
    }
    const auto end = std::chrono::steady_clock::now();
    state.SetIterationTime(std::chrono::duration<double>(end - begin).count());
    // What is done behind the first picture counts, too.
    ::sleep(1);
    megabytes = program.residentMegabytes();
  }
  state.counters["resident_MB"] = megabytes;
}

void add(const char* name, const std::vector<std::string>& command, const std::string& sign) {
  benchmark::RegisterBenchmark(name,
                               [=](benchmark::State& state) { measure(state, command, sign); })
      ->UseManualTime()
      ->Unit(benchmark::kMillisecond)
      ->Iterations(1)
      ->Repetitions(11)
      ->ReportAggregatesOnly();
}

} // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::cerr << "talvora-bench-Startup PROGRAM PACK_FOLDER [benchmark options]\n";
    return 2;
  }
  const auto here = std::filesystem::absolute(argv[0]).parent_path();
  const std::string program = std::filesystem::absolute(argv[1]);
  const std::string pack = std::filesystem::absolute(argv[2]);
  add("EmptyQtWindow", {(here / "talvora-empty-window").string()}, "painted");
  add("MenuOfTheTutor/limit:3x_the_empty_window_and_45_MB", {program, "--dir", pack},
      "focus=but1 ");
  int rest = argc - 2;
  argv[2] = argv[0];
  benchmark::Initialize(&rest, argv + 2);
  benchmark::RunSpecifiedBenchmarks();
}
