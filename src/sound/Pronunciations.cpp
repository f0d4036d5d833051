// Which correction holds for a word of a text, and the file of them.
#include "sound/Pronunciations.h"

#include "text/CharClass.h"
#include "text/Contains.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <utility>

namespace talvora {

namespace {

constexpr CharClass wordCharacters("[a-zA-Z']");
constexpr std::array<std::string_view, 3> whereNames = {"everywhere", "alone", "within"};

/// A word of a text and where it stands.
struct Place {
  std::string word;
  std::size_t begin;
  std::size_t end;
};

std::vector<Place> placesOf(std::string_view text) {
  std::vector<Place> places;
  for (std::size_t at = 0; at < text.size();) {
    if (!wordCharacters.has(text[at]) || text[at] == '\'') {
      ++at;
      continue;
    }
    std::size_t end = at;
    while (end < text.size() && wordCharacters.has(text[end]))
      ++end;
    std::size_t last = end;
    while (text[last - 1] == '\'')
      --last;
    places.push_back({lower(text.substr(at, last - at)), at, last});
    at = end;
  }
  return places;
}

/// A spelling that no text has: the word with a tail that numbers the correction. A vowel stands at
/// both ends, for the voice names the letters of what it finds unspeakable ("collectqzk"), although
/// its lexicon has it.
std::string ownSpelling(const SpokenCorrection& correction, std::size_t number) {
  std::string spelling = "e" + correction.word;
  std::erase(spelling, '\'');
  spelling += "qz";
  do {
    spelling += static_cast<char>('a' + number % 26);
    number /= 26;
  } while (number > 0);
  return spelling + "e";
}

/// True when the words from a place on are those of the phrase.
bool standsAt(const std::vector<std::string>& phrase, const std::vector<Place>& places,
              std::size_t first) {
  if (first + phrase.size() > places.size()) return false;
  for (std::size_t word = 0; word < phrase.size(); ++word) {
    if (places[first + word].word != phrase[word]) return false;
  }
  return true;
}

} // namespace

std::vector<std::string> spokenWordsOf(std::string_view text) {
  std::vector<std::string> words;
  for (Place& place : placesOf(text))
    words.push_back(std::move(place.word));
  return words;
}

Pronunciations::Pronunciations(std::vector<SpokenCorrection> corrections)
    : corrections_(std::move(corrections)) {}

Pronunciations Pronunciations::read(std::string_view text) {
  std::vector<SpokenCorrection> corrections;
  for (const std::string& line : split(text, '\n')) {
    const auto fields = split(line, '\t');
    if (fields.size() < 3) continue;
    const auto* const name = std::find(whereNames.begin(), whereNames.end(), fields[0]);
    if (name == whereNames.end()) continue;
    SpokenCorrection correction{static_cast<SpokenWhere>(std::distance(whereNames.begin(), name)),
                                fields[1], fields[2]};
    if (fields.size() > 3) correction.phrase = spokenWordsOf(fields[3]);
    corrections.push_back(std::move(correction));
  }
  return Pronunciations(std::move(corrections));
}

std::string Pronunciations::write() const {
  std::string text;
  for (const SpokenCorrection& each : corrections_) {
    text += std::string(whereNames.at(static_cast<std::size_t>(each.where))) + "\t" + each.word +
            "\t" + each.phones;
    for (std::size_t word = 0; word < each.phrase.size(); ++word)
      text += (word == 0 ? "\t" : " ") + each.phrase[word];
    text += "\n";
  }
  return text;
}

std::string Pronunciations::prepared(std::string_view text) const {
  const auto places = placesOf(text);
  std::vector<std::string> spellings(places.size());
  for (std::size_t number = 0; number < corrections_.size(); ++number) {
    const SpokenCorrection& each = corrections_[number];
    if (each.where == SpokenWhere::Everywhere) continue;
    const bool alone = each.where == SpokenWhere::Alone;
    const std::vector<std::string> phrase = alone ? std::vector{each.word} : each.phrase;
    if (alone && places.size() != 1) continue;
    for (std::size_t first = 0; first < places.size(); ++first) {
      if (!standsAt(phrase, places, first)) continue;
      for (std::size_t word = 0; word < phrase.size(); ++word)
        if (phrase[word] == each.word) spellings[first + word] = ownSpelling(each, number);
    }
  }
  std::string result;
  std::size_t from = 0;
  for (std::size_t place = 0; place < places.size(); ++place) {
    if (spellings[place].empty()) continue;
    result += text.substr(from, places[place].begin - from);
    result += spellings[place];
    from = places[place].end;
  }
  return result.append(text.substr(from));
}

std::vector<LexiconEntry> Pronunciations::lexicon() const {
  std::vector<LexiconEntry> entries;
  for (std::size_t number = 0; number < corrections_.size(); ++number) {
    const SpokenCorrection& each = corrections_[number];
    const bool everywhere = each.where == SpokenWhere::Everywhere;
    entries.push_back({everywhere ? each.word : ownSpelling(each, number), each.phones});
  }
  return entries;
}

std::vector<LexiconEntry> Pronunciations::lexiconFor(std::string_view text) const {
  const auto words = spokenWordsOf(prepared(text));
  std::vector<LexiconEntry> entries = lexicon();
  std::erase_if(entries,
                [&words](const LexiconEntry& entry) { return !contains(words, entry.word); });
  return entries;
}

} // namespace talvora
