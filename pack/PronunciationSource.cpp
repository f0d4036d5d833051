// Parsing of pronunciations.
#include "pack/PronunciationSource.h"

#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "pack/StreamText.h"
#include "sound/Pronunciations.h"
#include "text/Contains.h"
#include "text/Text.h"

#include <unordered_map>

namespace talvora::pack {

namespace {

constexpr std::string_view equals = " = ";
constexpr std::string_view within = " : ";

/// Takes the class off the end of a word: "use v.".
std::optional<WordClass> takeClass(std::string_view& word) {
  for (const ClassName& name : ClassNames) {
    if (!word.ends_with(" " + std::string(name.source))) continue;
    word.remove_suffix(name.source.size() + 1);
    return name.wordClass;
  }
  return std::nullopt;
}

bool holds(std::string_view phrase, std::string_view word) {
  const auto words = spokenWordsOf(phrase);
  return contains(words, lower(word));
}

/// What is wrong with a rule as a whole; empty when nothing is.
std::string ruleFault(const PronunciationRule& rule) {
  if (rule.word.empty()) return said("a word must stand ahead of \" = \"");
  if (!rule.shown.empty()) {
    if (!rule.phrase.empty())
      return said("a notation holds for the word alone, not within a phrase");
    return streamText(rule.shown) ? "" : said("the notation has a letter that cannot be shown");
  }
  if (!rule.phrase.empty() && !holds(rule.phrase, rule.word))
    return said("the phrase does not have the word");
  if (rule.word.find(' ') != std::string::npos) return said("one word at a time can have phones");
  if (spokenWordsOf(rule.word).size() != rule.parts.size())
    return said("the phones have \" - \" where the word has its hyphen");
  for (const Phones& part : rule.parts)
    if (std::string fault = faultOf(part); !fault.empty()) return fault;
  return {};
}

/// What a line is about: of two about the same one would never be heard or shown.
std::string subjectOf(const PronunciationRule& rule) {
  const std::string wordClass =
      rule.wordClass ? std::to_string(static_cast<int>(*rule.wordClass)) : "";
  return lower(rule.word) + "\t" + wordClass + "\t" + lower(rule.phrase) + "\t" +
         (rule.shown.empty() ? "said" : "shown");
}

/// The phones of each part of a word with hyphens.
std::vector<Phones> partsIn(std::string_view sounds) {
  std::vector<Phones> parts(1);
  for (std::string& phone : phonesOf(sounds)) {
    if (phone == "-") {
      parts.emplace_back();
    } else {
      parts.back().push_back(std::move(phone));
    }
  }
  return parts;
}

} // namespace

std::vector<PronunciationRule> parsePronunciations(std::string_view text, const std::string& file,
                                                   Problems& problems) {
  std::vector<PronunciationRule> rules;
  std::unordered_map<std::string, int> subjects; // by what they are about, the line
  for (const SourceLine& line : linesOf(text)) {
    if (line.text.empty() || line.text.starts_with("//")) continue;
    const Where where{file, line.number, 1};
    const std::size_t middle = line.text.find(equals);
    if (middle == std::string_view::npos) {
      problems.add(where,
                   said("a pronunciation must be \"word = phones\" or \"word = /notation/\""));
      continue;
    }
    PronunciationRule rule;
    rule.where = where;
    std::string_view word = trim(line.text.substr(0, middle));
    rule.wordClass = takeClass(word);
    rule.word = word;
    std::string_view sounds = line.text.substr(middle + equals.size());
    const std::size_t phrase = sounds.find(within);
    if (phrase != std::string_view::npos) rule.phrase = trim(sounds.substr(phrase + within.size()));
    sounds = trim(sounds.substr(0, phrase));
    const bool notation = sounds.size() > 2 && sounds.starts_with('/') && sounds.ends_with('/');
    if (notation) {
      rule.shown = sounds;
    } else {
      rule.parts = partsIn(sounds);
      for (const Phones& part : rule.parts)
        rule.phones.insert(rule.phones.end(), part.begin(), part.end());
    }
    if (std::string fault = ruleFault(rule); !fault.empty()) {
      problems.add(where, std::move(fault));
      continue;
    }
    const auto [first, isNew] = subjects.emplace(subjectOf(rule), line.number);
    if (!isNew) {
      problems.add(where, said("line {} tells of this already", first->second));
      continue;
    }
    rules.push_back(std::move(rule));
  }
  return rules;
}

std::vector<PronunciationRule> readPronunciations(const std::filesystem::path& path,
                                                  Problems& problems) {
  const auto text = readWhole(path);
  return text ? parsePronunciations(*text, path.string(), problems)
              : std::vector<PronunciationRule>{};
}

} // namespace talvora::pack
