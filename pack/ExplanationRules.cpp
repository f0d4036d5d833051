// Rules about explanations and lesson pages.
#include "pack/CourseRules.h"
#include "pack/Message.h"
#include "pack/StreamText.h"
#include "pack/kinds/ItemKind.h"
#include "text/Contains.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

namespace talvora::pack {

namespace {

// The banks in which the program explains the blanks with a list of lessons.
constexpr std::array<std::string_view, 2> banksWithALessonList = {"conditional", "tense"};

constexpr std::size_t fewestWordsOfAReason = 5;
constexpr std::string_view reasonOpener = "Phần này đúng:";

/// A name that is not used, and the one that is.
struct Term {
  std::string_view wrong;
  std::string_view right;
};

constexpr std::array<Term, 5> terms = {{{"phân từ hai", "V3"},
                                        {"dạng thứ ba", "V3"},
                                        {"phân từ quá khứ", "V3"},
                                        {"quá khứ phân từ", "V3"},
                                        {"động từ hai từ", "cụm động từ"}}};
/// The full name may explain the short one.
constexpr std::string_view termInBrackets = "(quá khứ phân từ)";

constexpr std::array<std::string_view, 4> absolutes = {"luôn", "không bao giờ", "chỉ ",
                                                       "không đứng"};
/// A stem of a word is as long at least.
constexpr std::size_t shortestStem = 3;

template <typename Visit>
void forEachLine(const Item& item, const Visit& visit) {
  for (const ExplanationLine& line : item.general)
    visit(line);
  for (const auto& [number, lines] : item.explanations) {
    for (const ExplanationLine& line : lines)
      visit(line);
  }
}

std::size_t wordsIn(std::string_view text) {
  std::size_t count = 0;
  bool inWord = false;
  for (const char character : text) {
    if (character != ' ' && !inWord) ++count;
    inWord = character != ' ';
  }
  return count;
}

/// A word without the ending that its forms differ by.
std::string stemOf(std::string word) {
  for (const std::string_view ending : {"'s", "ing", "ied", "ies", "ed", "es", "s", "y", "e"}) {
    if (word.ends_with(ending) && word.size() >= ending.size() + shortestStem) {
      word.resize(word.size() - ending.size());
      return word;
    }
  }
  return word;
}

void addStems(std::set<std::string>& stems, const std::vector<std::string>& words) {
  for (const std::string& word : words)
    stems.insert(stemOf(word));
}

/// The English of a text that may be Vietnamese in parts: words of plain letters.
std::vector<std::string> plainWordsOf(std::string_view text) {
  std::vector<std::string> words;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(' '), text.size());
    for (std::string& word : englishWordsOf(text.substr(0, end)))
      words.push_back(std::move(word));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return words;
}

std::string redTextOf(const MarkedLine& line) {
  std::string text;
  for (std::size_t at = 0; at < line.text.size(); ++at)
    text += line.red[at] ? line.text[at] : ' ';
  return text;
}

std::set<std::string> stemsOfLesson(const Lesson& lesson) {
  std::set<std::string> stems;
  addStems(stems, plainWordsOf(lesson.title));
  for (const MarkedLine& line : lesson.lines)
    addStems(stems, plainWordsOf(line.text));
  return stems;
}

} // namespace

RuleReport explanationsAreThere(const Course& course) {
  RuleReport report{said("an explanation is missing"), {}, 0};
  for (const CourseItem& each : course.items) {
    const Item& item = *each.item;
    if (!item.kind->isExplained()) continue;
    if (item.general.empty())
      report.found.push_back(
          {item.where, said("the general explanation (\"explain:\") is missing")});
    const bool listed = item.kind->isTyped() && contains(banksWithALessonList, groupOf(each));
    for (int number = 1; !listed && number <= item.kind->explainable(item); ++number) {
      if (item.explanations.count(number) > 0) continue;
      report.found.push_back({item.where, said("explanation {} is missing", number)});
    }
  }
  return report;
}

RuleReport reasonsAreGiven(const Course& course) {
  RuleReport report{said("\"Phần này đúng:\" gives no reason"), {}, 0};
  for (const CourseItem& each : course.items) {
    forEachLine(*each.item, [&](const ExplanationLine& line) {
      const std::string text = utf8Of(line.text.text);
      if (!text.starts_with(reasonOpener)) return;
      if (wordsIn(std::string_view(text).substr(reasonOpener.size())) >= fewestWordsOfAReason)
        return;
      report.found.push_back(
          {line.where, said("\"Phần này đúng:\" is followed by a reason of five words at least")});
    });
  }
  return report;
}

RuleReport termsAreOfTheList(const Course& course) {
  RuleReport report{said("a term is not the course's own"), {}, 0};
  const auto check = [&](std::string_view bytes, const Where& where) {
    std::string text = utf8Of(bytes);
    if (const std::size_t at = text.find(termInBrackets); at != std::string::npos)
      text.erase(at, termInBrackets.size());
    for (const Term& term : terms) {
      if (text.find(term.wrong) == std::string::npos) continue;
      report.found.push_back(
          {where, said("\"{}\" is called \"{}\" in this course", term.wrong, term.right)});
      return;
    }
  };
  for (const CourseItem& each : course.items)
    forEachLine(*each.item,
                [&](const ExplanationLine& line) { check(line.text.text, line.where); });
  for (const auto& [slot, lesson] : course.lessons.lessons) {
    const Where where{said("lesson {}", slot)};
    check(lesson.title, where);
    for (const MarkedLine& line : lesson.lines)
      check(line.text, where);
  }
  return report;
}

RuleReport absoluteWords(const Course& course) {
  RuleReport report{
      said("a rule without exceptions, to be looked at by a second reader"), {}, 100000};
  for (const CourseItem& each : course.items) {
    forEachLine(*each.item, [&](const ExplanationLine& line) {
      const std::string text = utf8Of(line.text.text);
      for (const std::string_view word : absolutes) {
        if (text.find(word) == std::string::npos) continue;
        report.found.push_back({line.where, text});
        return;
      }
    });
  }
  return report;
}

RuleReport linksTeachTheirPoint(const Course& course) {
  RuleReport report{said("a lesson has no word of the explanation that leads to it"), {}, 0};
  // Links in explanations without a red English word cannot be judged and do not count.
  report.allowed = course.items.size() * 20 / 100;
  std::map<int, std::set<std::string>> stems;
  for (const auto& [slot, lesson] : course.lessons.lessons)
    stems[slot] = stemsOfLesson(lesson);
  for (const CourseItem& each : course.items) {
    for (const auto& [number, lines] : each.item->explanations) {
      std::set<std::string> red;
      for (const ExplanationLine& line : lines) {
        if (!line.refersTo) addStems(red, plainWordsOf(redTextOf(line.text)));
      }
      for (const ExplanationLine& line : lines) {
        if (!line.refersTo || red.empty()) continue;
        const auto slot = course.lessons.slotOf(line.text.text);
        if (!slot || each.item->about.title == line.text.text) continue;
        const auto& known = stems[*slot];
        if (std::any_of(red.begin(), red.end(),
                        [&](const std::string& stem) { return known.count(stem) > 0; }))
          continue;
        report.found.push_back({line.where, said("no red word of this explanation stands in the "
                                                 "lesson \"{}\"; \"about:\" may say that it fits",
                                                 utf8Of(line.text.text))});
      }
    }
  }
  return report;
}

} // namespace talvora::pack
