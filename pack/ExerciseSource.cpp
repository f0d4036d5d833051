// Reading of the folders of items.
#include "pack/ExerciseSource.h"

#include "pack/SourceFile.h"
#include "pack/StreamText.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace talvora::pack {

namespace {

constexpr std::size_t fewestInABank = 25;
// Item numbers are kept in 16 bits.
constexpr std::size_t mostItems = 32767;
// The banks in which the program explains each blank with the verb lessons.
constexpr std::size_t conditionalBank = 1;
constexpr std::size_t tenseBank = 2;

std::vector<Item> readBank(const std::filesystem::path& folder, BlankHelp help,
                           Problems& problems) {
  std::vector<Item> items;
  for (const auto& path : textFilesIn(folder)) {
    auto more =
        parseItems(readSource(path, problems), path.string(), ItemPlace::Bank, help, problems);
    std::move(more.begin(), more.end(), std::back_inserter(items));
  }
  if (!items.empty() && items.size() < fewestInABank) {
    problems.add({folder.string()},
                 "a bank has at least 25 items and this one has " + std::to_string(items.size()));
  }
  return items;
}

void readLessonItems(const std::filesystem::path& folder, const LessonSource& lessons,
                     ExerciseSource& source, Problems& problems) {
  for (const auto& path : textFilesIn(folder)) {
    const auto slot = lessonSlotOf(path);
    if (!slot || !holdsItems(path)) continue;
    const std::string file = path.string();
    if (lessons.lessons.count(*slot) == 0) {
      problems.add({file}, "slot " + std::to_string(*slot) + " has no lesson");
    }
    auto items =
        parseItems(readSource(path, problems), file, ItemPlace::Lesson, BlankHelp::Own, problems);
    if (items.empty()) {
      problems.add({file}, "there are no items");
    } else {
      source.lessons.emplace(*slot, std::move(items));
    }
  }
}

void checkReferences(const std::vector<Item>& items, const LessonSource& lessons,
                     Problems& problems) {
  for (const Item& item : items) {
    for (const auto& [number, lines] : item.explanations) {
      for (const ExplanationLine& line : lines) {
        if (!line.refersTo || lessons.slotOf(line.text.text)) continue;
        problems.add(line.where, "no lesson has the title \"" + utf8Of(line.text.text) + "\"");
      }
    }
  }
}

} // namespace

std::set<int> ExerciseSource::lessonsWithItems() const {
  std::set<int> slots;
  for (const auto& [slot, items] : lessons)
    slots.insert(slot);
  return slots;
}

ExerciseSource readExercises(const std::filesystem::path& content, const LessonSource& lessons,
                             Problems& problems) {
  ExerciseSource source;
  for (std::size_t bank = 0; bank < BankCount; ++bank) {
    const bool verbs = bank == conditionalBank || bank == tenseBank;
    source.banks[bank] = readBank(content / "exercises" / BankNames[bank],
                                  verbs ? BlankHelp::VerbLessons : BlankHelp::Own, problems);
  }
  readLessonItems(content / "lessons", lessons, source, problems);
  std::size_t total = 0;
  const auto check = [&](const std::vector<Item>& items) {
    checkReferences(items, lessons, problems);
    total += items.size();
  };
  std::for_each(source.banks.begin(), source.banks.end(), check);
  for (const auto& [slot, items] : source.lessons)
    check(items);
  if (total > mostItems - BankCount - LessonSlots) {
    problems.add({(content / "exercises").string()},
                 "there are " + std::to_string(total) + " items, more than the program can number");
  }
  return source;
}

} // namespace talvora::pack
