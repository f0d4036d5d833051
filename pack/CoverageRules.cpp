// Rules about what lessons and banks do for each other, and about the plan of the banks.
#include "pack/CourseRules.h"
#include "pack/Message.h"
#include "pack/StreamText.h"
#include "pack/kinds/ItemKind.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

namespace talvora::pack {

namespace {

/// How many items of each kind a unit has.
struct UnitPlan {
  std::string_view bank;
  std::size_t fill;
  std::size_t choice;
  std::size_t mistake;
};

constexpr std::array<UnitPlan, BankCount> plans = {{{"articles", 17, 4, 4},
                                                    {"conditional", 15, 6, 4},
                                                    {"tense", 16, 5, 4},
                                                    {"preposition", 12, 11, 2},
                                                    {"test-a", 6, 13, 6},
                                                    {"test-b", 6, 13, 6},
                                                    {"toefl", 0, 10, 15},
                                                    {"toefl-vocabulary", 0, 25, 0},
                                                    {"b-vocabulary", 0, 25, 0}}};

/// The vocabulary banks practise words, which no lesson teaches.
bool practisesWords(std::size_t bank) {
  return BankNames[bank].ends_with("vocabulary");
}

std::set<std::string> lessonsOf(const Item& item) {
  std::set<std::string> titles;
  if (!item.about.title.empty()) titles.insert(item.about.title);
  for (const auto& [number, lines] : item.explanations) {
    for (const ExplanationLine& line : lines) {
      if (line.refersTo) titles.insert(line.text.text);
    }
  }
  return titles;
}

} // namespace

RuleReport lessonsArePractised(const Course& course) {
  RuleReport report{said("a lesson has no item in a bank"), {}, 0};
  report.allowed = course.exercises.lessons.size() * 40 / 100;
  std::set<std::string> practised;
  for (const CourseItem& each : course.items) {
    if (each.bank) practised.merge(lessonsOf(*each.item));
  }
  for (const auto& [slot, items] : course.exercises.lessons) {
    const auto lesson = course.lessons.lessons.find(slot);
    if (lesson == course.lessons.lessons.end()) continue;
    if (practised.count(lesson->second.title) > 0) continue;
    // A practice unit recalls several lessons; no item leads to it.
    if (lesson->second.title.starts_with(ownText("Luyện"))) continue;
    report.found.push_back(
        {{said("lesson {}", slot)},
         said("no item of a bank leads to \"{}\"", utf8Of(lesson->second.title))});
  }
  return report;
}

RuleReport itemsHaveALesson(const Course& course) {
  RuleReport report{said("a bank item leads to no lesson"), {}, 3};
  for (const CourseItem& each : course.items) {
    if (!each.bank || practisesWords(*each.bank) || !lessonsOf(*each.item).empty()) continue;
    report.found.push_back(
        {each.item->where, said("no explanation leads to a lesson; \"about: TITLE\" names one")});
  }
  return report;
}

RuleReport unitsHaveTheirKinds(const Course& course) {
  RuleReport report{said("a unit has other kinds of item than planned"), {}, 14};
  struct Kinds {
    std::size_t fill = 0;
    std::size_t choice = 0;
    std::size_t mistake = 0;
    std::size_t all = 0;
  };
  std::map<std::pair<std::size_t, std::size_t>, Kinds> units;
  for (const CourseItem& each : course.items) {
    if (!each.bank) continue;
    Kinds& kinds = units[{*each.bank, each.unit}];
    ++kinds.all;
    const std::string_view kind = each.item->kind->name();
    if (kind == "fill") ++kinds.fill;
    if (kind == "choice") ++kinds.choice;
    if (kind == "mistake") ++kinds.mistake;
  }
  for (const auto& [place, kinds] : units) {
    const UnitPlan& plan = plans[place.first];
    const bool whole = kinds.all == UnitSize;
    if (whole && kinds.fill == plan.fill && kinds.choice == plan.choice &&
        kinds.mistake == plan.mistake)
      continue;
    report.found.push_back(
        {{said("{}, unit {}", plan.bank, place.second + 1)},
         said("fill {}, choice {}, mistake {}; planned are {}, {} and {}", kinds.fill, kinds.choice,
              kinds.mistake, plan.fill, plan.choice, plan.mistake)});
  }
  return report;
}

} // namespace talvora::pack
