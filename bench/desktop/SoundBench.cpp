// From a click to the first sample that the sound device is given, from a stop to silence, and the
// bounds of a recorded stretch. Each figure stands beside its limit, as a share of it. The device
// is the machine's own one; without one the samples go nowhere, at the same moment.
//
//   talvora-bench-Sound PACK_FOLDER [benchmark options]
#include "PackCopy.h"

#include "desktop/Sound.h"
#include "desktop/SoundDevice.h"
#include "desktop/ThreadedSpeech.h"
#include "desktop/WaveOutput.h"
#include "platform/scripted/ScriptedMachine.h"
#include "program/Program.h"
#include "text/Bytes.h"

#include <QCoreApplication>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <chrono>
#include <condition_variable>
#include <iostream>
#include <mutex>
#include <optional>
#include <span>
#include <string>
#include <thread>
#include <vector>

namespace {

using namespace talvora;
using Clock = std::chrono::steady_clock;

constexpr int ClearestVoice = 3;
constexpr int NormalSpeed = 130; // level 5, with which a learner starts
constexpr double WordLimitMs = 60;
constexpr double StopLimitMs = 20;
constexpr double StretchLimitMs = 30;

double msBetween(Clock::time_point from, Clock::time_point to) {
  return std::chrono::duration<double, std::milli>(to - from).count();
}

/// Notes when a device is first given samples, and when it is silenced.
class Ear {
 public:
  void listen() {
    const std::lock_guard lock(mutex_);
    sounded_.reset();
    silenced_.reset();
  }
  void sound() {
    const std::lock_guard lock(mutex_);
    if (!sounded_) sounded_ = Clock::now();
    changed_.notify_all();
  }
  void silence() {
    const std::lock_guard lock(mutex_);
    silenced_ = Clock::now();
    changed_.notify_all();
  }
  Clock::time_point whenSounded() { return when(sounded_); }
  Clock::time_point whenSilenced() { return when(silenced_); }

 private:
  Clock::time_point when(const std::optional<Clock::time_point>& moment) {
    std::unique_lock lock(mutex_);
    changed_.wait(lock, [&] { return moment.has_value(); });
    return *moment;
  }

  std::mutex mutex_;
  std::condition_variable changed_;
  std::optional<Clock::time_point> sounded_;
  std::optional<Clock::time_point> silenced_;
};

class HeardDevice final : public PcmDevice {
 public:
  explicit HeardDevice(Ear& ear) : ear_(ear) {}

  std::size_t write(std::span<const std::int16_t> samples, int rate) override {
    const std::size_t taken = device_->write(samples, rate);
    if (taken > 0) ear_.sound();
    return taken;
  }
  void silence() override {
    device_->silence();
    ear_.silence();
  }

 private:
  Ear& ear_;
  std::unique_ptr<PcmDevice> device_ = openSoundDevice();
};

PcmPlayer::MakeDevice heardBy(Ear& ear) {
  return [&ear] { return std::make_unique<HeardDevice>(ear); };
}

/// Puts the figures of the runs beside their limit.
class Report {
 public:
  Report(benchmark::State& state, double limitMs) : state_(state), limitMs_(limitMs) {}

  void add(double ms) {
    state_.SetIterationTime(ms / 1000);
    figures_.push_back(ms);
  }
  void finish() {
    std::sort(figures_.begin(), figures_.end());
    state_.counters["limit_ms"] = limitMs_;
    state_.counters["median_of_limit"] = figures_[figures_.size() / 2] / limitMs_;
    state_.counters["worst_of_limit"] = figures_.back() / limitMs_;
  }

 private:
  benchmark::State& state_;
  double limitMs_;
  std::vector<double> figures_;
};

// -- The engine alone.

/// The very first word of an engine finds the device, too.
void wordToFirstSample(benchmark::State& state) {
  const bool fresh = state.range(0) == 1;
  constexpr std::array words = {"bank", "elephant", "the", "internationalisation"};
  Ear ear;
  std::optional<ThreadedSpeech> speech;
  Report report(state, WordLimitMs);
  std::size_t turn = 0;
  for (auto _ : state) {
    if (fresh || !speech) {
      speech.emplace(heardBy(ear), loadVoices);
      speech->Select(ClearestVoice);
      speech->Speed(NormalSpeed);
    }
    ear.listen();
    const auto asked = Clock::now();
    speech->Speak(words.at(turn++ % words.size()));
    report.add(msBetween(asked, ear.whenSounded()));
    speech->StopSpeaking();
  }
  report.finish();
}
BENCHMARK(wordToFirstSample)
    ->ArgName("first_of_engine")
    ->Arg(0)
    ->Arg(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond)
    ->Iterations(100);

void stopToSilence(benchmark::State& state) {
  Ear ear;
  ThreadedSpeech speech(heardBy(ear), loadVoices);
  speech.Select(ClearestVoice);
  Report report(state, StopLimitMs);
  for (auto _ : state) {
    ear.listen();
    speech.Speak("a sentence that takes its time and is never heard to its end");
    ear.whenSounded();
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
    const auto asked = Clock::now();
    speech.StopSpeaking();
    report.add(msBetween(asked, ear.whenSilenced()));
  }
  report.finish();
}
BENCHMARK(stopToSilence)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(100);

// -- The whole program, from the click.

std::string packFolder;

/// The program on a machine without a window whose speech is the real one.
class SpeakingProgram {
 public:
  explicit SpeakingProgram(Ear& ear)
      : speech_(heardBy(ear), loadVoices), platform_{machine_.clock,        machine_.events,
                                                     machine_.input,        speech_,
                                                     machine_.wave,         machine_.metrics,
                                                     machine_.layout,       machine_.boxes,
                                                     machine_.screen,       machine_.clipboard,
                                                     machine_.installation, machine_.narrator,
                                                     machine_.random},
        program_(platform_, pack_.path()) {
    program_.Main();
    program_.controls().but(1).Click();
    openTheFirstText();
  }

  void click(int caret) {
    Surface& R2 = program_.controls().R2;
    const SurfacePoint at = R2.pointOf(caret);
    R2.pressMouse(MouseButton::Left, shift::None, at);
    R2.SelStart(caret);
    R2.releaseMouse(MouseButton::Left, shift::None, at);
  }
  /// Carets inside the words of the text.
  [[nodiscard]] std::vector<int> words() {
    const std::string text = program_.controls().R2.Text();
    std::vector<int> carets;
    for (std::size_t at = text.find('\r'); at != std::string::npos; at = text.find(' ', at + 1)) {
      if (at + 2 < text.size() && std::isalpha(asc(text[at + 1])) != 0) {
        carets.push_back(static_cast<int>(at) + 2);
      }
    }
    return carets;
  }
  void quiet() { speech_.StopSpeaking(); }

 private:
  void openTheFirstText() {
    Surface& R1 = program_.controls().R1;
    while (!program_.controls().R2.Visible()) {
      program_.form().pressKey(key::Down, shift::None, '\0');
      program_.form().releaseKey(key::Down, shift::None);
      R1.pressKey(key::Enter, shift::None, chr(key::Enter));
    }
  }

  bench::PackCopy pack_{packFolder};
  ScriptedMachine machine_;
  ThreadedSpeech speech_;
  Platform platform_;
  Program program_;
};

void clickToFirstSample(benchmark::State& state) {
  Ear ear;
  SpeakingProgram program(ear);
  const std::vector<int> words = program.words();
  Report report(state, WordLimitMs);
  std::size_t turn = 0;
  for (auto _ : state) {
    ear.listen();
    const auto clicked = Clock::now();
    program.click(words[turn++ % words.size()]);
    report.add(msBetween(clicked, ear.whenSounded()));
    program.quiet();
  }
  report.finish();
}

// -- Recordings.

/// How far from its marks a stretch of half a second starts and ends.
void stretchBounds(benchmark::State& state) {
  const bool atEnd = state.range(0) == 1;
  constexpr int From = 400;
  constexpr int To = 900;
  Ear ear;
  WaveOutput wave(heardBy(ear), openRecording);
  wave.Open(packFolder + "/sound/1.wav");
  Report report(state, StretchLimitMs);
  for (auto _ : state) {
    ear.listen();
    const auto asked = Clock::now();
    wave.Play(From, To);
    const auto sounded = ear.whenSounded();
    if (!atEnd) {
      report.add(msBetween(asked, sounded));
      wave.Stop();
      continue;
    }
    while (wave.Mode() == WavePlayer::Playing)
      std::this_thread::sleep_for(std::chrono::microseconds(200));
    report.add(std::abs(msBetween(sounded, Clock::now()) - (To - From)));
  }
  report.finish();
}

} // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << "talvora-bench-Sound PACK_FOLDER [benchmark options]\n";
    return 2;
  }
  QCoreApplication application(argc, argv);
  packFolder = argv[1];
  benchmark::RegisterBenchmark("clickToFirstSample", clickToFirstSample)
      ->UseManualTime()
      ->Unit(benchmark::kMillisecond)
      ->Iterations(100);
  benchmark::RegisterBenchmark("stretchBounds", stretchBounds)
      ->ArgName("end")
      ->Arg(0)
      ->Arg(1)
      ->UseManualTime()
      ->Unit(benchmark::kMillisecond)
      ->Iterations(20);
  int rest = argc - 1;
  argv[1] = argv[0];
  benchmark::Initialize(&rest, argv + 1);
  benchmark::RunSpecifiedBenchmarks();
}
