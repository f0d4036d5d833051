// Rules about the sentences of items: what repeats, how long they are, which words they use.
#include "pack/CourseRules.h"
#include "pack/Message.h"
#include "pack/kinds/ItemKind.h"
#include "text/CharClass.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>
#include <unordered_map>
#include <unordered_set>

namespace talvora::pack {

namespace {

constexpr std::size_t commonRun = 6;
// Of a shorter sentence three quarters are no more than a phrase.
constexpr std::size_t shortestCopy = 4;
constexpr std::size_t wornShare = 2; ///< of 100 items

struct LengthRange {
  std::string_view group;
  std::size_t least;
  std::size_t most;
};

constexpr std::array<LengthRange, 5> ranges = {{{"test-a", 4, 14},
                                                {"test-b", 7, 20},
                                                {"toefl", 14, 24},
                                                {"toefl-vocabulary", 9, 20},
                                                {"b-vocabulary", 9, 20}}};
constexpr LengthRange usualRange = {"", 6, 30};

constexpr std::array<std::string_view, 14> wornWords = {
    "bus",  "train", "phone",   "market", "film",     "coffee", "doctor",
    "rice", "uncle", "station", "party",  "umbrella", "exam",   "snow"};

/// Unknown words of 1,000 that pass.
constexpr std::size_t unknownWords = 5;
constexpr std::size_t unknownAcademicWords = 20;

std::string runAt(const std::vector<std::string>& words, std::size_t from, std::size_t length) {
  std::string run;
  for (std::size_t at = from; at < from + length; ++at)
    run += words[at] + " ";
  return run;
}

std::string placed(const Where& where) {
  return where.file + ":" + std::to_string(where.line);
}

/// The English stretches of a lesson's line: an example, or the part ahead of its translation.
std::vector<std::vector<std::string>> examplesOf(const MarkedLine& line) {
  const std::size_t cut = std::min(line.blueFrom.value_or(line.text.size()), line.text.size());
  const std::string_view text = line.text;
  return {englishWordsOf(text.substr(0, cut)), englishWordsOf(text.substr(cut))};
}

/// How many words in a row of a sentence count as the sentence itself.
std::size_t copyLength(std::size_t words) {
  return std::max(shortestCopy, (words * 3 + 3) / 4);
}

LengthRange rangeOf(std::string_view group) {
  const auto found = std::find_if(ranges.begin(), ranges.end(),
                                  [&](const LengthRange& range) { return range.group == group; });
  return found == ranges.end() ? usualRange : *found;
}

/// A word without "'s" or "'ll".
std::string withoutShortForm(const std::string& word) {
  return word.substr(0, word.find('\''));
}

/// Names stand with a capital and never in small letters.
std::set<std::string> namesIn(const Course& course) {
  std::set<std::string> capital;
  std::set<std::string> small;
  const auto scan = [&](std::string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
      const bool starts = Letters.has(text[at]) && (at == 0 || !Letters.has(text[at - 1]));
      if (!starts) continue;
      std::size_t end = at;
      while (end < text.size() && Letters.has(text[end]))
        ++end;
      const bool isCapital = text[at] >= 'A' && text[at] <= 'Z';
      (isCapital ? capital : small).insert(lower(text.substr(at, end - at)));
    }
  };
  for (const CourseItem& each : course.items) {
    scan(each.item->question);
    std::for_each(each.item->options.begin(), each.item->options.end(), scan);
  }
  std::set<std::string> names;
  std::set_difference(capital.begin(), capital.end(), small.begin(), small.end(),
                      std::inserter(names, names.end()));
  return names;
}

} // namespace

RuleReport sentencesDiffer(const Course& course) {
  // The pattern "if it had not been for" is itself six words long.
  RuleReport report{said("two items have six words in a row in common"), {}, 2};
  std::unordered_map<std::string, std::size_t> firsts;
  for (std::size_t number = 0; number < course.items.size(); ++number) {
    const CourseItem& each = course.items[number];
    std::optional<std::size_t> twin;
    for (std::size_t at = 0; at + commonRun <= each.words.size(); ++at) {
      const auto [first, isNew] = firsts.emplace(runAt(each.words, at, commonRun), number);
      if (!isNew && first->second != number && !twin) twin = first->second;
    }
    if (!twin) continue;
    report.found.push_back({each.item->where, said("six words in a row stand in the item at {} too",
                                                   placed(course.items[*twin].item->where))});
  }
  return report;
}

RuleReport sentencesDifferFromExamples(const Course& course) {
  RuleReport report{said("an item is a lesson's example"), {}, 0};
  std::vector<std::vector<std::string>> examples;
  for (const auto& [slot, lesson] : course.lessons.lessons) {
    for (const MarkedLine& line : lesson.lines) {
      for (auto& example : examplesOf(line))
        examples.push_back(std::move(example));
    }
  }
  std::map<std::size_t, std::unordered_set<std::string>> runs; ///< by their length
  for (const CourseItem& each : course.items) {
    const std::size_t length = copyLength(each.words.size());
    if (each.words.size() < length || !runs.emplace(length, 0).second) continue;
    for (const auto& example : examples) {
      for (std::size_t at = 0; at + length <= example.size(); ++at)
        runs[length].insert(runAt(example, at, length));
    }
  }
  for (const CourseItem& each : course.items) {
    const std::size_t length = copyLength(each.words.size());
    for (std::size_t at = 0; at + length <= each.words.size(); ++at) {
      const std::string run = runAt(each.words, at, length);
      if (runs[length].count(run) == 0) continue;
      report.found.push_back({each.item->where, said("\"{}...\" is a lesson's example", run)});
      break;
    }
  }
  return report;
}

RuleReport lengthsFit(const Course& course) {
  RuleReport report{said("a sentence is shorter or longer than its bank's are"), {}, 0};
  report.allowed = course.items.size() * 7 / 100;
  for (const CourseItem& each : course.items) {
    if (each.item->kind->hasSentences()) continue;
    const LengthRange range = rangeOf(groupOf(each));
    const std::size_t length = each.words.size();
    if (length >= range.least && length <= range.most) continue;
    report.found.push_back({each.item->where, said("{} words; here {} to {} are usual", length,
                                                   range.least, range.most)});
  }
  return report;
}

RuleReport wordsAreInTheDictionary(const Course& course) {
  RuleReport report{said("a bank has too many words that our dictionary lacks"), {}, 5};
  struct Count {
    std::size_t words = 0;
    std::map<std::string, Where> unknown;
    std::size_t missing = 0;
  };
  std::map<std::string_view, Count> counts;
  const auto names = namesIn(course);
  for (const CourseItem& each : course.items) {
    Count& count = counts[groupOf(each)];
    for (const std::string& word : each.words) {
      ++count.words;
      const std::string plain = withoutShortForm(word);
      if (course.words.find(word) || course.words.find(plain) || names.count(plain) > 0) continue;
      ++count.missing;
      count.unknown.emplace(word, each.item->where);
    }
  }
  for (const auto& [group, count] : counts) {
    const bool academic = group.starts_with("toefl");
    if (count.missing * 1000 <= count.words * (academic ? unknownAcademicWords : unknownWords))
      continue;
    std::string list;
    for (const auto& [word, where] : count.unknown)
      list += (list.empty() ? "" : ", ") + word;
    report.found.push_back(
        {{std::string(group)},
         said("{} of {} words are not in our dictionary: {}", count.missing, count.words, list)});
  }
  return report;
}

RuleReport wornWordsAreRare(const Course& course) {
  RuleReport report{said("a worn word stands in more than 2 of 100 items of a bank"), {}, 25};
  std::map<std::string_view, std::map<std::string, std::size_t>> uses;
  std::map<std::string_view, std::size_t> sizes;
  for (const CourseItem& each : course.items) {
    ++sizes[groupOf(each)];
    const std::set<std::string> words(each.words.begin(), each.words.end());
    for (const std::string_view worn : wornWords)
      uses[groupOf(each)][std::string(worn)] += words.count(std::string(worn));
  }
  for (const auto& [group, words] : uses) {
    const std::size_t most = std::max<std::size_t>(1, sizes[group] * wornShare / 100);
    for (const auto& [word, count] : words) {
      if (count <= most) continue;
      report.found.push_back({{std::string(group)},
                              said("\"{}\" stands in {} items; {} are enough", word, count, most)});
    }
  }
  return report;
}

} // namespace talvora::pack
