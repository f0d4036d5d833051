// Reduction of words, and what is a name.
#include "pack/Lemmas.h"

#include "pack/Inflection.h"
#include "text/Contains.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

namespace talvora::pack {

namespace {

ClassSet classesOf(const OwnEntry& entry) {
  ClassSet classes;
  for (const Sense& sense : entry.block.senses)
    classes.add(sense.wordClass == WordClass::Modal ? WordClass::Verb : sense.wordClass);
  return classes;
}

/// Adverbs that do not mean what their adjective means.
constexpr std::array<std::string_view, 6> estranged = {"hardly", "lately",  "nearly",
                                                       "barely", "shortly", "likely"};

/// How the adjective of an adverb in -ly may be spelled: "quick", "happy", "gentle".
std::vector<std::string> adjectivesOf(const std::string& adverb) {
  const std::string stem = adverb.substr(0, adverb.size() - 2);
  std::vector<std::string> adjectives = {stem, stem + "le"};
  if (stem.ends_with('i')) adjectives.push_back(stem.substr(0, stem.size() - 1) + "y");
  return adjectives;
}

bool isParticiple(std::string_view word) {
  return word.ends_with("ing") || word.ends_with("ed");
}

std::string textOf(const TextWord& word) {
  return lower(word.text);
}

} // namespace

Lemmas::Lemmas(const std::vector<OwnEntry>& own, const std::unordered_set<std::string>& met) {
  const WordNet nothing;
  const Inflections inflections(own, nothing, met);
  for (const OwnEntry& entry : own) {
    const std::string head = lower(entry.head);
    heads_.try_emplace(
        head, Head{entry.block.level, head != entry.head, entry.formsFirst, classesOf(entry)});
    for (const Form& form : inflections.formsOf(entry.head, classesOf(entry))) {
      const std::string text = lower(form.text);
      auto& bases = bases_[text];
      const bool isNew = !contains(bases, head);
      if (text != head && isNew) bases.push_back(head);
    }
  }
  for (const OwnEntry& entry : own) {
    const std::string head = lower(entry.head);
    if (classesOf(entry).has(WordClass::Adverb)) joinAdverb(entry);
    const auto bases = bases_.find(head);
    if (bases == bases_.end() || !isParticiple(head)) continue;
    for (const std::string& base : bases->second)
      join(base, head);
  }
}

void Lemmas::joinAdverb(const OwnEntry& adverb) {
  const std::string head = lower(adverb.head);
  const bool isEstranged = contains(estranged, head);
  if (!head.ends_with("ly") || isEstranged) return;
  for (const std::string& adjective : adjectivesOf(head)) {
    const auto found = heads_.find(adjective);
    if (found == heads_.end() || !found->second.classes.has(WordClass::Adjective)) continue;
    join(head, adjective);
    join(adjective, head);
    return;
  }
}

void Lemmas::join(const std::string& head, const std::string& other) {
  related_[head].push_back(other);
}

std::vector<std::string> Lemmas::of(const std::string& word) const {
  std::vector<std::string> found;
  const auto head = heads_.find(word);
  const auto bases = bases_.find(word);
  if (bases != bases_.end()) found = bases->second;
  if (head != heads_.end())
    found.insert(head->second.formsFirst ? found.end() : found.begin(), word);
  if (found.empty()) found.push_back(word);
  const std::size_t own = found.size();
  for (std::size_t at = 0; at < own; ++at) {
    const auto kin = related_.find(found[at]);
    if (kin == related_.end()) continue;
    std::copy_if(kin->second.begin(), kin->second.end(), std::back_inserter(found),
                 [&found](const std::string& each) { return !contains(found, each); });
  }
  return found;
}

bool Lemmas::hasEntry(const std::string& head) const {
  return heads_.count(head) != 0;
}

std::string Lemmas::levelOf(const std::string& head) const {
  const auto found = heads_.find(head);
  return found != heads_.end() ? found->second.level : "";
}

std::vector<std::string> Lemmas::heads() const {
  std::vector<std::string> all;
  for (const auto& [head, about] : heads_) {
    if (!about.capital) all.push_back(head);
  }
  std::sort(all.begin(), all.end());
  return all;
}

NameFinder::NameFinder(const ReadingSource& readings) {
  for (const auto& [slot, text] : readings.texts) {
    for (const std::string_view sentence : sentencesOf(text)) {
      for (const TextWord& word : textWords(sentence)) {
        words_.insert(textOf(word));
        if (!hasCapital(word)) small_.insert(word.text);
        if (hasCapital(word) && !word.opens) inside_.insert(textOf(word));
      }
    }
  }
}

// "May" opens a sentence as a name or as a verb; within one only the name has a capital.
bool NameFinder::isName(const TextWord& word) const {
  if (!hasCapital(word) || word.text == "I") return false;
  if (!word.opens) return true;
  return inside_.count(textOf(word)) != 0 && small_.count(textOf(word)) == 0;
}

} // namespace talvora::pack
