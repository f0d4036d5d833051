// Reading of the folders of items.
#include "pack/ExerciseSource.h"

#include "pack/Message.h"
#include "pack/NearestName.h"
#include "pack/SourceFile.h"
#include "pack/StreamText.h"
#include "text/Contains.h"
#include "text/Text.h"

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
  for (const auto& path : textFilesIn(folder, problems)) {
    auto more =
        parseItems(readText(path, problems), path.string(), ItemPlace::Bank, help, problems);
    std::move(more.begin(), more.end(), std::back_inserter(items));
  }
  if (!items.empty() && items.size() < fewestInABank) {
    problems.add({folder.string()},
                 said("a bank has at least 25 items and this one has {}", items.size()));
  }
  return items;
}

void readLessonItems(const std::filesystem::path& folder, const LessonSource& lessons,
                     ExerciseSource& source, Problems& problems) {
  for (const auto& path : textFilesIn(folder, problems)) {
    const auto slot = lessonSlotOf(path);
    if (!slot || !holdsItems(path)) continue;
    const std::string file = path.string();
    if (lessons.lessons.count(*slot) == 0) {
      problems.add({file}, said("slot {} has no lesson", *slot));
    }
    auto items =
        parseItems(readText(path, problems), file, ItemPlace::Lesson, BlankHelp::Own, problems);
    if (items.empty()) {
      problems.add({file}, said("there are no items"));
    } else {
      source.lessons.emplace(*slot, std::move(items));
    }
  }
}

/// Checks what items say of lessons and of each other.
class ItemsTogether {
 public:
  ItemsTogether(const LessonSource& lessons, Problems& problems)
      : lessons_(lessons), titles_(lessons.titles()), problems_(problems) {
    const std::set<std::string> distinct(titles_.begin(), titles_.end());
    titlesAreClear_ = distinct.size() == titles_.size();
  }

  void check(const std::vector<Item>& items) {
    for (const Item& item : items) {
      checkReferences(item);
      checkId(item);
      checkTwin(item);
    }
  }

 private:
  void checkReferences(const Item& item) {
    if (!item.about.title.empty()) checkTitle(item.about.title, item.about.where);
    for (const auto& [number, lines] : item.explanations) {
      for (const ExplanationLine& line : lines) {
        if (line.refersTo) checkTitle(line.text.text, line.where);
      }
    }
  }

  /// Where two lessons have one title, that is reported, and other titles may be missing for it.
  void checkTitle(const std::string& title, const Where& where) {
    if (!titlesAreClear_ || lessons_.slotOf(title)) return;
    problems_.add(where,
                  said("no lesson has the title \"{}\"", utf8Of(title)) + nearestTitle(title));
  }

  void checkId(const Item& item) {
    if (item.id.empty()) return;
    const auto [first, isNew] = ids_.emplace(item.id, item.where);
    if (!isNew)
      problems_.add(item.where, said("the id is taken by the item at {}", placed(first->second)));
  }

  void checkTwin(const Item& item) {
    std::string text = lower(item.question);
    std::vector<std::string> options = item.options;
    std::sort(options.begin(), options.end());
    for (const std::string& option : options)
      text += '+' + lower(option);
    const auto [first, isNew] = texts_.emplace(text, item.where);
    if (!isNew)
      problems_.add(item.where, said("the same item stands at {}", placed(first->second)));
  }

  [[nodiscard]] std::string nearestTitle(const std::string& title) const {
    const auto nearest = nearestName(title, titles_);
    return nearest ? didYouMean(utf8Of(*nearest)) : "";
  }

  static std::string placed(const Where& where) {
    return where.file + ":" + std::to_string(where.line);
  }

  const LessonSource& lessons_;
  std::vector<std::string> titles_;
  bool titlesAreClear_ = true;
  Problems& problems_;
  std::map<std::string, Where> ids_;
  std::map<std::string, Where> texts_;
};

/// A folder or file below `exercises` that no bank is read from.
void reportUnknownBanks(const std::filesystem::path& folder, Problems& problems) {
  const std::vector<std::string> names(BankNames.begin(), BankNames.end());
  std::vector<std::filesystem::path> entries;
  std::error_code failure;
  for (const auto& entry : std::filesystem::directory_iterator(folder, failure))
    entries.push_back(entry.path());
  std::sort(entries.begin(), entries.end());
  for (const auto& path : entries) {
    const std::string name = path.filename().string();
    if (name.starts_with('.')) continue;
    const bool known = contains(names, name);
    if (known && std::filesystem::is_directory(path)) {
      reportStrangers(path, said("no items are read from it: they stand in \".txt\" files"),
                      problems);
    } else {
      problems.add({path.string()}, said("is the folder of no bank") + didYouMean(name, names));
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
  reportUnknownBanks(content / "exercises", problems);
  for (std::size_t bank = 0; bank < BankCount; ++bank) {
    const bool verbs = bank == conditionalBank || bank == tenseBank;
    source.banks[bank] = readBank(content / "exercises" / BankNames[bank],
                                  verbs ? BlankHelp::VerbLessons : BlankHelp::Own, problems);
  }
  readLessonItems(content / "lessons", lessons, source, problems);
  std::size_t total = 0;
  ItemsTogether together(lessons, problems);
  const auto check = [&](const std::vector<Item>& items) {
    together.check(items);
    total += items.size();
  };
  std::for_each(source.banks.begin(), source.banks.end(), check);
  for (const auto& [slot, items] : source.lessons)
    check(items);
  if (total > mostItems - BankCount - LessonSlots) {
    problems.add({(content / "exercises").string()},
                 said("there are {} items, more than the program can number", total));
  }
  return source;
}

} // namespace talvora::pack
