// Lessons and items of the size that the limits speak of, and how long it takes from a key to what
// the learner sees of them. No two are alike, so that nothing is ready from the time before.
#pragma once

#include "exercises/ItemRun.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace talvora::bench {

constexpr int LessonCharacters = 3000;
constexpr int Items = 300;
constexpr int ItemsLesson = 2;

/// A word that differs from number to number.
inline std::string wordOf(int number) {
  std::string word;
  for (int rest = number + 30; rest > 0; rest /= 26)
    word += static_cast<char>('a' + rest % 26);
  return word;
}

inline std::string lessonOf(int slot) {
  std::string text = ".Lesson " + std::to_string(slot) + "\r";
  for (int line = 0; static_cast<int>(text.size()) < LessonCharacters; ++line) {
    if (line % 3 == 1) text += '&';
    for (int word = 0; word < 12; ++word) {
      if (word % 6 == 5) text += '`';
      text += wordOf(slot * 997 + line * 31 + word) + ' ';
    }
    text += "~rest of the line.\r";
  }
  return text;
}

/// A fill-in item of four lines with four blanks, hints and explanations.
inline test::StoredItem itemOf(int number) {
  std::string question = "405|go, be, have, see\r";
  std::string answer = "General\r";
  for (int line = 0; line < 4; ++line) {
    question += "The sentence of " + wordOf(number * 7 + line) +
                " that she *has gone\\went___ to " + wordOf(number + line) +
                " with every day of the week.\r";
    answer += "^\rIt is #" + wordOf(number) + " because:\r?2\r";
  }
  return {question, answer};
}

inline test::ItemStores pages() {
  test::ItemStores stores;
  for (int slot = 1; slot <= 357; ++slot)
    stores.lessons[slot] = lessonOf(slot);
  stores.counts = {{9 + ItemsLesson, Items}};
  // The banks and the first lesson have one item each.
  stores.items.resize(10);
  for (int number = 1; number <= Items; ++number)
    stores.items.push_back(itemOf(number));
  return stores;
}

/// Where the time of a key ends: with the first picture that the program itself asks for (what
/// follows is the transition), or when all is done.
enum class Until { FirstPicture, End };

/// How long it takes from a key to what is seen of it; the time that all but one of a hundred keep
/// stands beside the mean.
class KeyClock {
 public:
  KeyClock(benchmark::State& state, test::ItemRun& run, std::function<void()> see, Until until)
      : state_(state), run_(run), see_(std::move(see)), until_(until) {
    run_.screen.painted = [this] {
      see_();
      if (!first_) first_ = Clock::now();
    };
  }

  void measure(const std::function<void()>& key) {
    first_.reset();
    const auto start = Clock::now();
    key();
    see_();
    const auto end = until_ == Until::FirstPicture && first_ ? *first_ : Clock::now();
    const std::chrono::duration<double> taken = end - start;
    state_.SetIterationTime(taken.count());
    times_.push_back(taken.count());
  }
  ~KeyClock() {
    run_.screen.painted = [] {};
    if (!times_.empty()) {
      const auto late = times_.begin() + static_cast<std::ptrdiff_t>(times_.size() * 99 / 100);
      std::nth_element(times_.begin(), late, times_.end());
      state_.counters["p99_ms"] = *late * 1000;
    }
    state_.SetLabel("limit 10 ms");
  }
  KeyClock(const KeyClock&) = delete;
  KeyClock& operator=(const KeyClock&) = delete;

 private:
  using Clock = std::chrono::steady_clock;

  benchmark::State& state_;
  test::ItemRun& run_;
  std::function<void()> see_;
  Until until_;
  std::optional<Clock::time_point> first_;
  std::vector<double> times_;
};

/// Enter on a line of the list, until the lesson is seen; the curtain falls after that.
inline void openLessons(benchmark::State& state, test::ItemRun& run,
                        const std::function<void()>& see) {
  run.lessons.open();
  KeyClock clock(state, run, see, Until::FirstPicture);
  int slot = 0;
  for ([[maybe_unused]] auto each : state) {
    slot = slot % 357 + 1;
    run.state.list.SoBaiChon = slot;
    clock.measure([&] { run.form.pressKey(key::Enter, shift::None, '\r'); });
    if (run.controls.RVP2.TextLength() < LessonCharacters / 2) state.SkipWithError("no lesson");
    run.lessons.ExitRVP2();
  }
}

/// Marks the lesson that has the items and starts their run.
inline void startRun(test::ItemRun& run) {
  run.lessons.open();
  Surface& RVP1 = run.controls.RVP1;
  run.rightClick(RVP1, static_cast<int>(RVP1.Text().find("Lesson 2\r")) + 1);
  run.key(key::Enter);
}

/// Enter on a judged item, until the next one is seen.
inline void stepItems(benchmark::State& state, test::ItemRun& run,
                      const std::function<void()>& see) {
  startRun(run);
  KeyClock clock(state, run, see, Until::End);
  for ([[maybe_unused]] auto each : state) {
    run.item.DaCham = true;
    clock.measure([&] { run.form.pressKey(key::Enter, shift::None, '\r'); });
    if (run.item.OTrong.count() != 4) state.SkipWithError("no item");
  }
}

/// Enter on an item that is not judged yet, until its colours are seen.
inline void judgeItems(benchmark::State& state, test::ItemRun& run,
                       const std::function<void()>& see) {
  startRun(run);
  KeyClock clock(state, run, see, Until::End);
  for ([[maybe_unused]] auto each : state) {
    clock.measure([&] { run.form.pressKey(key::Enter, shift::None, '\r'); });
    if (run.item.ODaLam.count() != 4) state.SkipWithError("not judged");
    run.form.pressKey(key::Enter, shift::None, '\r');
  }
}

/// A letter typed into a blank, until it is seen.
inline void typeLetters(benchmark::State& state, test::ItemRun& run,
                        const std::function<void()>& see) {
  startRun(run);
  KeyClock clock(state, run, see, Until::End);
  const int caret = run.controls.RDT.SelStart();
  char letter = 'a';
  for ([[maybe_unused]] auto each : state) {
    letter = letter == 'z' ? 'a' : static_cast<char>(letter + 1);
    run.controls.RDT.SelStart(caret);
    clock.measure([&] { run.form.pressKey('A', shift::None, letter); });
  }
}

} // namespace talvora::bench
