// Reduction of words, and what is a name.
#include "pack/Lemmas.h"

#include "pack/Inflection.h"
#include "text/Text.h"

#include <algorithm>

namespace talvora::pack {

namespace {

ClassSet classesOf(const OwnEntry& entry) {
  ClassSet classes;
  for (const Sense& sense : entry.block.senses)
    classes.add(sense.wordClass == WordClass::Modal ? WordClass::Verb : sense.wordClass);
  return classes;
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
    heads_.try_emplace(head, Head{entry.block.level, head != entry.head, entry.formsFirst});
    for (const Form& form : inflections.formsOf(entry.head, classesOf(entry))) {
      const std::string text = lower(form.text);
      auto& bases = bases_[text];
      const bool isNew = std::find(bases.begin(), bases.end(), head) == bases.end();
      if (text != head && isNew) bases.push_back(head);
    }
  }
}

std::vector<std::string> Lemmas::of(const std::string& word) const {
  std::vector<std::string> found;
  const auto head = heads_.find(word);
  const auto bases = bases_.find(word);
  if (bases != bases_.end()) found = bases->second;
  if (head != heads_.end())
    found.insert(head->second.formsFirst ? found.end() : found.begin(), word);
  if (found.empty()) found.push_back(word);
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
