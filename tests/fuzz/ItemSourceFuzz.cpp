// Any bytes as a file of exercise items, in a bank and behind a lesson: what is accepted without a
// word is the same items when it is written and read again, and when it comes back from the store.
#include "pack/ExerciseStore.h"
#include "pack/ItemSource.h"
#include "pack/kinds/ItemKind.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <vector>

namespace {

using namespace talvora::pack;

constexpr int Slot = 2;

void require(bool holds) {
  if (!holds) std::abort();
}

bool same(const ExplanationLines& left, const ExplanationLines& right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](const ExplanationLine& one, const ExplanationLine& other) {
                      return one.text == other.text && one.refersTo == other.refersTo;
                    });
}

bool same(const Item& left, const Item& right) {
  return left.id == right.id && left.about.title == right.about.title && left.kind == right.kind &&
         left.heading == right.heading && left.hints == right.hints &&
         left.question == right.question && left.options == right.options &&
         left.key == right.key && left.translations == right.translations &&
         same(left.general, right.general) &&
         std::equal(left.explanations.begin(), left.explanations.end(), right.explanations.begin(),
                    right.explanations.end(), [](const auto& one, const auto& other) {
                      return one.first == other.first && same(one.second, other.second);
                    });
}

bool same(const std::vector<Item>& left, const std::vector<Item>& right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](const Item& one, const Item& other) { return same(one, other); });
}

/// What a store keeps of an item: a source's own names for it are not shown to a learner.
Item keptOf(Item item) {
  item.id.clear();
  item.about = {};
  item.question = item.kind->storedQuestion(item);
  return item;
}

/// A lesson for each title that the items lead to; empty where there are more than can be.
LessonSource lessonsOf(const std::vector<Item>& items) {
  LessonSource lessons;
  for (const Item& item : items) {
    for (const auto& [number, lines] : item.explanations) {
      for (const ExplanationLine& line : lines) {
        if (!line.refersTo || lessons.slotOf(line.text.text)) continue;
        lessons.lessons[static_cast<int>(lessons.lessons.size()) + 1].title = line.text.text;
      }
    }
  }
  if (lessons.lessons.size() > static_cast<std::size_t>(LessonSlots)) lessons.lessons.clear();
  return lessons;
}

void checkStore(const std::vector<Item>& items, ItemPlace place) {
  const LessonSource lessons = lessonsOf(items);
  std::vector<Item> kept;
  for (const Item& item : items) {
    kept.push_back(keptOf(item));
    for (auto& [number, lines] : kept.back().explanations) {
      for (ExplanationLine& line : lines) {
        if (line.refersTo && lessons.lessons.empty()) line.text = {};
      }
    }
  }
  ExerciseSource source;
  (place == ItemPlace::Bank ? source.banks[1] : source.lessons[Slot]) = items;
  const auto files = compileExercises(source, lessons);
  Problems problems;
  ExerciseSource back =
      decodeExercises({files.at(0).bytes, files.at(1).bytes, files.at(2).bytes}, lessons, problems);
  require(problems.none());
  require(same(place == ItemPlace::Bank ? back.banks[1] : back.lessons[Slot], kept));
}

void check(std::string_view text, ItemPlace place) {
  Problems problems;
  const auto items = parseItems(text, "items", place, BlankHelp::Own, problems);
  if (!problems.none()) return;
  const auto again =
      parseItems(writeItems(items, place), "written", place, BlankHelp::Own, problems);
  require(problems.none() && same(again, items));
  checkStore(items, place);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  check(text, ItemPlace::Bank);
  check(text, ItemPlace::Lesson);
  Problems problems;
  static_cast<void>(parseItems(text, "items", ItemPlace::Bank, BlankHelp::VerbLessons, problems));
  return 0;
}
