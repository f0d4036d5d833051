// Looking at the words of patterns and examples.
#include "pack/PatternRules.h"

#include "sound/Pronunciations.h"
#include "text/Contains.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <iterator>

namespace talvora::pack {

namespace {

/// Words that count the noun behind them.
constexpr std::array<std::string_view, 5> counting = {"a", "an", "another", "each", "every"};
/// "A little water" counts nothing.
constexpr std::string_view amount = "little";
/// What may stand behind a noun that is the last of its group.
constexpr std::array<std::string_view, 15> behindNoun = {
    "about", "against", "and", "at", "between", "by",   "for", "from",
    "in",    "of",      "on",  "or", "to",      "that", "with"};

using Words = std::vector<std::string>;

std::string joinedFrom(const Words& words, std::size_t first, std::size_t end) {
  std::string text;
  for (std::size_t at = first; at < end; ++at)
    text += (at == first ? "" : " ") + words[at];
  return text;
}

/// Whether a word may stand between an article and the noun that it counts: a child is counted in
/// "a child's growth".
bool describes(std::string_view word) {
  return word != amount && !word.ends_with("'s");
}

/// The word that counts a noun at a place, with none or one between; the place when nothing does.
std::size_t countingAhead(const Words& words, std::size_t noun) {
  if (noun > 0 && contains(counting, words[noun - 1])) return noun - 1;
  const bool further =
      noun > 1 && describes(words[noun - 1]) && contains(counting, words[noun - 2]);
  return further ? noun - 2 : noun;
}

/// Where a noun is counted: with its article, when no other noun follows that the article counts.
Words countedIn(const Words& noun, const Words& words) {
  Words found;
  for (std::size_t at = 0; at + noun.size() <= words.size(); ++at) {
    const std::size_t end = at + noun.size();
    if (!std::equal(noun.begin(), noun.end(), words.begin() + static_cast<long>(at))) continue;
    const std::size_t first = countingAhead(words, at);
    const bool endsGroup = end == words.size() || contains(behindNoun, words[end]);
    if (first < at && endsGroup) found.push_back(joinedFrom(words, first, end));
  }
  return found;
}

/// Regular plurals of a noun among words.
Words pluralsIn(const std::string& noun, const Words& words) {
  Words plurals = {noun + "s", noun + "es"};
  if (noun.ends_with('y')) plurals.push_back(noun.substr(0, noun.size() - 1) + "ies");
  Words found;
  std::ranges::copy_if(words, std::back_inserter(found),
                       [&plurals](const std::string& word) { return contains(plurals, word); });
  return found;
}

} // namespace

std::vector<std::string> patternsOf(const Sense& sense) {
  std::vector<std::string> patterns;
  for (const std::string& each : split(sense.pattern, ',')) {
    const std::string_view pattern = trim(each);
    if (!pattern.empty()) patterns.emplace_back(pattern);
  }
  return patterns;
}

std::vector<std::string> patternsAmongPhrases(const EntryBlock& block) {
  std::vector<std::string> found;
  for (const Sense& sense : block.senses) {
    for (std::string& pattern : patternsOf(sense)) {
      const bool again = std::ranges::any_of(block.phrases, [&pattern](const FixedPhrase& phrase) {
        return lower(phrase.english) == lower(pattern);
      });
      if (again) found.push_back(std::move(pattern));
    }
  }
  return found;
}

std::vector<std::string> countedUncountables(std::string_view head, const Sense& sense) {
  if (sense.use != NounUse::Uncountable) return {};
  const std::string english = sense.example.substr(0, sense.example.find(" = "));
  Words found;
  Words texts = patternsOf(sense);
  texts.push_back(english);
  for (const std::string& text : texts) {
    const Words words = spokenWordsOf(text);
    std::ranges::move(countedIn(spokenWordsOf(head), words), std::back_inserter(found));
    std::ranges::move(pluralsIn(lower(head), words), std::back_inserter(found));
  }
  return found;
}

} // namespace talvora::pack
