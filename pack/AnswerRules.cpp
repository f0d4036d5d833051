// Rules about what could give an answer away, and about answers that must be accepted.
#include "pack/AnswerStatistics.h"
#include "pack/CourseRules.h"
#include "pack/Message.h"
#include "pack/kinds/ItemKind.h"
#include "text/Contains.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace talvora::pack {

namespace {

constexpr std::size_t leastOfAPosition = 20; ///< of 100
constexpr std::size_t mostOfAPosition = 30;
constexpr std::size_t mostLongest = 35;
constexpr std::size_t leastBlueRight = 15;
constexpr std::size_t mostBlueRight = 25;
/// Fewer items make no share.
constexpr std::size_t fewestForAShare = 10;
/// Their heading asks for the full form.
constexpr int fullFormHeading = 16;

using Statistics = std::map<std::string, AnswerStatistics>;

/// By bank, and for the lessons together.
Statistics byGroup(const Course& course) {
  Statistics all;
  for (const CourseItem& each : course.items)
    countAnswer(all[std::string(groupOf(each))], *each.item);
  return all;
}

/// By unit of each bank: "toefl, unit 2".
Statistics byUnit(const Course& course) {
  Statistics all;
  for (const CourseItem& each : course.items) {
    if (!each.bank) continue;
    countAnswer(all[said("{}, unit {}", groupOf(each), each.unit + 1)], *each.item);
  }
  return all;
}

void checkPositions(const Statistics& all, RuleReport& report) {
  for (const auto& [name, each] : all) {
    // Rounded outwards, so that a few items are never judged by a fraction.
    const std::size_t least = each.choices * leastOfAPosition / 100;
    const std::size_t most = (each.choices * mostOfAPosition + 99) / 100;
    for (std::size_t position = 0; position < each.positions.size(); ++position) {
      const std::size_t count = each.positions[position];
      if (count >= least && count <= most) continue;
      report.found.push_back(
          {{name},
           said("{} is right in {} of {} choices",
                std::string(1, static_cast<char>('A' + position)), count, each.choices)});
    }
  }
}

// -- Short forms.

/// A blank, the word ahead of it and the text behind it.
struct BlankInText {
  std::string before;
  std::string twoBefore;    ///< the word ahead of that one
  bool behindBlank = false; ///< the subject stands right behind another blank
  std::vector<std::string> forms;
  std::string_view behind;
};

std::vector<BlankInText> blanksOf(const Item& item) {
  std::vector<BlankInText> blanks;
  const std::string_view text = item.question;
  std::size_t from = 0;
  for (std::size_t at = text.find('*'); at < text.size(); at = text.find('*', from)) {
    const std::size_t end = std::min(text.find('_', at), text.size());
    BlankInText blank;
    const auto words = englishWordsOf(text.substr(from, at - from));
    if (!words.empty() && at > 0 && text[at - 1] == ' ') blank.before = words.back();
    blank.behindBlank = from > 0 && words.size() == 1;
    if (words.size() > 1) blank.twoBefore = words[words.size() - 2];
    const std::string_view key = text.substr(at + 1, end - at - 1);
    const std::size_t part = std::min(key.find('\\'), key.size());
    blank.forms.emplace_back(key.substr(0, part));
    if (part < key.size()) blank.forms.emplace_back(key.substr(part + 1));
    from = std::min(text.find_first_not_of('_', end), text.size());
    blank.behind = text.substr(from);
    blanks.push_back(std::move(blank));
  }
  return blanks;
}

struct ShortForms {
  std::string_view subject;
  std::string_view verbs; ///< each between blanks
};

constexpr std::array<ShortForms, 10> shortForms = {{{"i", " am have had will would "},
                                                    {"you", " are have had will would "},
                                                    {"he", " is has had will would "},
                                                    {"she", " is has had will would "},
                                                    {"it", " is has will "},
                                                    {"we", " are have had will would "},
                                                    {"they", " are have had will would "},
                                                    {"there", " is "},
                                                    {"who", " is has "},
                                                    {"what", " is has "}}};

constexpr std::string_view helpingVerbs = " do does did am is are was were have has had will would "
                                          "can could shall should may might must ";

/// Has, have and had are short when they help another verb.
bool helpsAVerb(std::string_view verb, std::string_view behind) {
  if (!verb.starts_with("ha")) return true;
  const auto next = englishWordsOf(behind.substr(0, behind.find('\r')));
  if (next.empty()) return false;
  constexpr std::string_view signs = " been never already just ever not ";
  return next.front().ends_with("ed") ||
         signs.find(" " + next.front() + " ") != std::string_view::npos;
}

bool hasShortForm(std::string_view subject, const std::string& verb) {
  const auto* const found = std::ranges::find(shortForms, subject, &ShortForms::subject);
  return found != shortForms.end() && !verb.empty() &&
         found->verbs.find(" " + verb + " ") != std::string_view::npos;
}

bool takesShortForm(const BlankInText& blank) {
  if (blank.forms.size() != 1) return false;
  const std::string key = lower(blank.forms.front());
  const std::string verb = key.substr(0, key.find(' '));
  if (!hasShortForm(blank.before, verb)) return false;
  if (key.find(" not") != std::string::npos) return false;
  // In a question the subject stands behind its helping verb: "would you have gone".
  if (blank.behindBlank) return false;
  if (!blank.twoBefore.empty() &&
      helpingVerbs.find(" " + blank.twoBefore + " ") != std::string_view::npos)
    return false;
  if (verb != key) return true;
  // At the end of a sentence the full form stands.
  const bool goesOn = blank.behind.size() > 1 && blank.behind[0] == ' ';
  return goesOn && helpsAVerb(verb, blank.behind);
}

/// "We aren't" is "we're not" too, and a blank accepts two forms.
bool hasThirdForm(const BlankInText& blank) {
  return std::ranges::any_of(blank.forms, [&](const std::string& form) {
    const auto words = englishWordsOf(form);
    if (words.empty()) return false;
    const std::string verb = words[0].substr(0, words[0].find("n't"));
    const bool isNegative = words[0] != verb || (words.size() > 1 && words[1] == "not");
    return isNegative && (verb == "is" || verb == "are") && hasShortForm(blank.before, verb);
  });
}

// -- Hints.

/// Words of a hint that the answer keeps, and that no answer has of itself.
constexpr std::array<std::string_view, 6> keptWords = {"not",   "never", "already",
                                                       "still", "just",  "always"};

/// The words of a text; "isn't" and "cannot" say "not" too.
std::vector<std::string> wordsSaidBy(std::string_view text) {
  auto words = englishWordsOf(text);
  if (text.find("n't") != std::string_view::npos || contains(words, "cannot"))
    words.emplace_back("not");
  return words;
}

/// Whether a word is wanted without the hint: a line of the question names it ("Điền cả never"), or
/// it is the not of a short answer: "No, he hasn't".
bool asksForWord(const Item& item, const BlankInText& blank, std::string_view word) {
  if (word == "not" && blank.twoBefore == "no") return true;
  const auto lines = split(item.question, '\r');
  return std::ranges::any_of(lines, [word](const std::string& line) {
    return isVietnamese(line) && line.find(word) != std::string::npos;
  });
}

} // namespace

RuleReport positionsAreEven(const Course& course) {
  RuleReport report{said("right answers are not spread over the positions"), {}, 0};
  checkPositions(byGroup(course), report);
  checkPositions(byUnit(course), report);
  return report;
}

RuleReport positionsDoNotRun(const Course& course) {
  RuleReport report{said("three right answers in a row have one position"), {}, 0};
  std::string group;
  std::pair<int, int> last{0, 0};
  for (const CourseItem& each : course.items) {
    if (each.item->kind->options() == 0) continue;
    const std::string own =
        std::string(groupOf(each)) + std::to_string(each.unit) + std::to_string(each.lesson);
    if (std::exchange(group, own) != own) last = {0, 0};
    if (last.first == each.item->key && last.second == each.item->key) {
      report.found.push_back(
          {each.item->where,
           said("the third right answer in a row at position {}", each.item->key)});
    }
    last = {last.second, each.item->key};
  }
  return report;
}

RuleReport longestIsNoCue(const Course& course) {
  RuleReport report{said("the longest option is right too often"), {}, 0};
  for (const auto& [name, each] : byGroup(course)) {
    if (each.choices < fewestForAShare || each.longestRight * 100 <= each.choices * mostLongest)
      continue;
    report.found.push_back(
        {{name},
         said("the longest option is right in {} of {} choices", each.longestRight, each.choices)});
  }
  return report;
}

RuleReport bluePhraseIsNoCue(const Course& course) {
  RuleReport report{said("the blue phrase is right too seldom or too often"), {}, 0};
  for (const auto& [name, each] : byGroup(course)) {
    const std::size_t share = each.phraseRight * 100;
    // The vocabulary banks ask for another word of the same meaning.
    if (each.withPhrase < fewestForAShare || name.ends_with("vocabulary")) continue;
    if (share >= each.withPhrase * leastBlueRight && share <= each.withPhrase * mostBlueRight)
      continue;
    report.found.push_back({{name},
                            said("the blue phrase is right in {} of {} choices that have one",
                                 each.phraseRight, each.withPhrase)});
  }
  return report;
}

RuleReport shortFormsAreAccepted(const Course& course) {
  RuleReport report{said("a short form is not accepted"), {}, 0};
  for (const CourseItem& each : course.items) {
    if (!each.item->kind->isTyped() || each.item->heading == fullFormHeading) continue;
    for (const BlankInText& blank : blanksOf(*each.item)) {
      if (!takesShortForm(blank) && !hasThirdForm(blank)) continue;
      report.found.push_back(
          {each.item->where, said("\"{} {}\" has a short form that is not accepted", blank.before,
                                  blank.forms.front())});
    }
  }
  return report;
}

RuleReport hintsAreKept(const Course& course) {
  RuleReport report{said("a hint and its answer differ in a small word"), {}, 0};
  for (const CourseItem& each : course.items) {
    const std::vector<std::string>& hints = each.item->hints;
    const auto blanks = blanksOf(*each.item);
    if (hints.size() != blanks.size()) continue;
    for (std::size_t at = 0; at < blanks.size(); ++at) {
      const std::string& answer = blanks[at].forms.front();
      const auto hinted = wordsSaidBy(hints[at]);
      const auto answered = wordsSaidBy(answer);
      for (const std::string_view word : keptWords) {
        if (contains(hinted, word) == contains(answered, word)) continue;
        if (asksForWord(*each.item, blanks[at], word)) continue;
        report.found.push_back({each.item->where, said("the hint \"{}\" and the answer \"{}\" "
                                                       "differ in \"{}\"",
                                                       hints[at], answer, word)});
      }
    }
  }
  return report;
}

} // namespace talvora::pack
