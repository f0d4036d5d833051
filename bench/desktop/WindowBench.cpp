// What the learner waits for in the real window: the popup behind a click, the look-up list behind
// a key, a scroll step, a caret jump; and the memory that list and popup take. To be run with a
// display. Medians and 95th percentiles are counters, in milliseconds; the limits stand in the
// labels.
//
//   talvora-bench-Window PACK_FOLDER [benchmark options]
#include "OpenTutor.h"

#include "desktop/Fonts.h"

#include <benchmark/benchmark.h>

#include <QApplication>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <iostream>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace {

using namespace talvora;
using bench::OpenTutor;

constexpr int TextOnShow = 4;
constexpr int Samples = 200;
constexpr int Openings = 11;
const std::string OneOpening = "--one-opening";

struct Paths {
  std::string program;
  std::string pack;
};

/// Times of one kind of deed, in milliseconds.
class Times {
 public:
  void add(benchmark::State& state, double ms) {
    state.SetIterationTime(ms / 1000);
    all_.push_back(ms);
  }
  void report(benchmark::State& state) {
    if (all_.empty()) return;
    std::sort(all_.begin(), all_.end());
    state.counters["median_ms"] = at(0.5);
    state.counters["p95_ms"] = at(0.95);
    state.counters["most_ms"] = all_.back();
  }

 private:
  [[nodiscard]] double at(double part) const {
    return all_[static_cast<std::size_t>(part * static_cast<double>(all_.size() - 1))];
  }

  std::vector<double> all_;
};

/// The words in view that have an entry, each looked up once.
std::vector<int> wordsWithEntry(OpenTutor& tutor) {
  std::vector<int> known;
  for (const int caret : tutor.wordsInView()) {
    tutor.movePointerTo(tutor.controls().R2, caret);
    tutor.click(tutor.controls().R2, caret);
    tutor.settle();
    if (tutor.controls().RHD.Visible()) known.push_back(caret);
    tutor.key(Qt::Key_Escape, '\x1B');
    tutor.settle();
    // A word without a popup left the text itself on top.
    if (!tutor.controls().R2.Visible()) {
      tutor.key(Qt::Key_Return, '\r');
      tutor.settle();
    }
  }
  return known;
}

void clickToPopup(benchmark::State& state, OpenTutor& tutor) {
  const std::vector<int> words = wordsWithEntry(tutor);
  if (words.empty()) {
    state.SkipWithError("the text has no word that the dictionary knows");
    return;
  }
  Times times;
  std::size_t next = 0;
  for (auto _ : state) {
    const int caret = words[next++ % words.size()];
    tutor.movePointerTo(tutor.controls().R2, caret);
    tutor.settle();
    const double ms = tutor.timeToPicture([&] { tutor.click(tutor.controls().R2, caret); });
    if (ms < 0 || !tutor.controls().RHD.Visible()) {
      state.SkipWithError("a click showed no popup");
      break;
    }
    times.add(state, ms);
    tutor.key(Qt::Key_Escape, '\x1B');
    tutor.settle();
  }
  times.report(state);
  state.counters["words"] = static_cast<double>(words.size());
  state.SetLabel("press, release and painting; limit 2 ms, 95th percentile 5 ms");
}

void openList(OpenTutor& tutor) {
  tutor.key(Qt::Key_B, 'b');
  tutor.settle();
}

void closeList(OpenTutor& tutor) {
  for (int strokes = 0; strokes < 2 && tutor.controls().RTD.Visible(); ++strokes) {
    tutor.key(Qt::Key_Escape, '\x1B');
    tutor.settle();
  }
}

/// The strokes of a learner who looks up one word after another; 27 takes back what was typed.
class Typist {
 public:
  char next() {
    if (at_ == word_.size()) {
      word_ = words_[random_() % words_.size()];
      at_ = 0;
      return '\x1B';
    }
    return word_[at_++];
  }

 private:
  static constexpr std::array<const char*, 12> words_ = {
      "because", "grandmother", "listen", "mountain", "question", "river",
      "school",  "teacher",     "under",  "weather",  "yellow",   "zebra"};
  std::mt19937 random_{7};
  std::string word_;
  std::size_t at_ = 0;
};

void keyInList(benchmark::State& state, OpenTutor& tutor) {
  openList(tutor);
  Typist typist;
  Times times;
  for (auto _ : state) {
    char character = typist.next();
    while (character == '\x1B') {
      tutor.key(Qt::Key_Escape, character);
      tutor.settle();
      character = typist.next();
    }
    const int key = Qt::Key_A + (character - 'a');
    const double ms = tutor.timeToPicture([&] { tutor.key(key, character); });
    if (ms < 0) {
      state.SkipWithError("a key changed nothing");
      break;
    }
    times.add(state, ms);
    tutor.settle();
  }
  closeList(tutor);
  times.report(state);
  state.SetLabel("press, release and painting; limit 1.2 ms, 95th percentile 2 ms");
}

void scrollStep(benchmark::State& state, OpenTutor& tutor) {
  openList(tutor);
  Times times;
  for (auto _ : state) {
    const double ms = tutor.timeToPicture([&] { tutor.wheel(tutor.controls().RTD, -1); });
    if (ms < 0) {
      state.SkipWithError("a notch of the wheel scrolled nothing");
      break;
    }
    times.add(state, ms);
    tutor.settle();
  }
  closeList(tutor);
  times.report(state);
  state.SetLabel("a notch of the wheel on 385,082 lines; limit 1 ms");
}

void caretJump(benchmark::State& state, OpenTutor& tutor) {
  openList(tutor);
  Times times;
  bool down = true;
  for (auto _ : state) {
    const int key = down ? Qt::Key_End : Qt::Key_Home;
    down = !down;
    const double ms = tutor.timeToPicture([&] { tutor.key(key, 0, Qt::ControlModifier); });
    if (ms < 0) {
      state.SkipWithError("a jump changed nothing");
      break;
    }
    times.add(state, ms);
    tutor.settle();
  }
  closeList(tutor);
  times.report(state);
  state.SetLabel("from one end of 385,082 lines to the other; limit 1 ms");
}

void openText(benchmark::State& state, OpenTutor& tutor) {
  Times text;
  std::vector<double> curtains;
  for (auto _ : state) {
    const OpenTutor::Opening opening = tutor.timeOpening();
    if (opening.text < 0) {
      state.SkipWithError("the text did not open");
      break;
    }
    text.add(state, opening.text);
    curtains.push_back(opening.curtain);
  }
  text.report(state);
  if (!curtains.empty()) {
    state.counters["curtain_ms"] = *std::max_element(curtains.begin(), curtains.end());
  }
  state.SetLabel("up to the curtain, limit 100 ms at any size; the longest curtain beside it");
}

void memory(benchmark::State& state, OpenTutor& tutor) {
  for (auto _ : state) {
    openList(tutor);
    state.counters["list_open_MB"] = bench::residentMegabytes();
    tutor.key(Qt::Key_Return, '\r');
    tutor.settle();
    if (!tutor.controls().RHD.Visible()) state.SkipWithError("a pick showed no popup");
    state.counters["list_and_popup_MB"] = bench::residentMegabytes();
    tutor.key(Qt::Key_Escape, '\x1B');
    tutor.settle();
  }
  state.SetLabel("resident, with the list's text loaded and the popup up; limit 55 MB");
}

// -- The first opening, of which there is one in a process.

int timeOneOpening(const std::string& pack) {
  OpenTutor tutor(pack, TextOnShow);
  const double ms = tutor.timeToPicture([&] { tutor.key(Qt::Key_B, 'b'); });
  if (ms < 0 || !tutor.controls().RTD.Visible()) return 1;
  std::cout << ms << '\n';
  return 0;
}

double runOneOpening(const Paths& paths) {
  const std::string command = "'" + paths.program + "' '" + paths.pack + "' " + OneOpening;
  const std::unique_ptr<FILE, int (*)(FILE*)> child(::popen(command.c_str(), "r"), ::pclose);
  double ms = -1;
  if (!child || std::fscanf(child.get(), "%lf", &ms) != 1) return -1;
  return ms;
}

void firstOpening(benchmark::State& state, const Paths& paths) {
  Times times;
  for (auto _ : state) {
    const double ms = runOneOpening(paths);
    if (ms < 0) {
      state.SkipWithError("the list did not open");
      break;
    }
    times.add(state, ms);
  }
  times.report(state);
  state.SetLabel("each in a process of its own; limit 20 ms");
}

void addAll(OpenTutor& tutor, const Paths& paths) {
  const auto add = [](const char* name, int count, auto run) {
    benchmark::RegisterBenchmark(name, run)
        ->UseManualTime()
        ->Unit(benchmark::kMillisecond)
        ->Iterations(count);
  };
  using State = benchmark::State;
  // First, since later on the voice and the entries of many words have been read, too.
  add("ResidentMemory", 1, [&](State& state) { memory(state, tutor); });
  add("ClickToPopup", Samples, [&](State& state) { clickToPopup(state, tutor); });
  add("KeyInLookUpList", Samples, [&](State& state) { keyInList(state, tutor); });
  add("ScrollStep", Samples, [&](State& state) { scrollStep(state, tutor); });
  add("CaretJump", Samples, [&](State& state) { caretJump(state, tutor); });
  add("OpenText", Openings, [&](State& state) { openText(state, tutor); });
  add("FirstOpeningOfTheList", Openings, [&](State& state) { firstOpening(state, paths); });
}

} // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "talvora-bench-Window PACK_FOLDER [benchmark options]\n";
    return 2;
  }
  const QApplication application(argc, argv);
  loadFonts();
  const Paths paths{std::filesystem::absolute(argv[0]), std::filesystem::absolute(argv[1])};
  if (argc > 2 && argv[2] == OneOpening) return timeOneOpening(paths.pack);
  OpenTutor tutor(paths.pack, TextOnShow);
  addAll(tutor, paths);
  int rest = argc - 1;
  argv[1] = argv[0];
  benchmark::Initialize(&rest, argv + 1);
  benchmark::RunSpecifiedBenchmarks();
}
