// Keeping of the book of words.
#include "pack/LemmaBook.h"

#include "text/Text.h"

#include <algorithm>

namespace talvora::pack {

double TextWords::wordsASentence() const noexcept {
  return sentences > 0 ? static_cast<double>(words) / sentences : 0.0;
}

double TextWords::knownShare() const noexcept {
  const int counted = words - names;
  return counted > 0 ? 100.0 * (counted - unknown) / counted : 100.0;
}

LemmaBook::LemmaBook(const ReadingSource& readings, std::vector<int> slots, const Lemmas& lemmas)
    : textSlots_(std::move(slots)) {
  const NameFinder names(readings);
  for (const auto& [slot, text] : readings.texts)
    read(slot, text, lemmas, names);
}

void LemmaBook::read(int slot, const ReadingText& text, const Lemmas& lemmas,
                     const NameFinder& names) {
  TextWords& found = texts_[slot];
  for (const std::string_view sentence : sentencesOf(text)) {
    const auto words = textWords(sentence);
    const auto count = static_cast<int>(words.size());
    ++found.sentences;
    found.words += count;
    if (count > found.longestWords) {
      found.longestWords = count;
      found.longest = sentence;
    }
    for (const TextWord& word : words) {
      if (names.isName(word)) {
        ++found.names;
        continue;
      }
      const std::string lemma = lemmaOf(lower(word.text), lemmas);
      if (meetings_[lemma].empty()) {
        ++found.unknown;
        found.newLemmas.push_back(lemma);
      }
      if (++found.lemmas[lemma] == 1) meetings_[lemma].push_back({slot, 0});
      ++meetings_[lemma].back().count;
    }
  }
}

// Of the head words that a form may belong to, the reader thinks of the one that he has met.
std::string LemmaBook::lemmaOf(const std::string& word, const Lemmas& lemmas) const {
  const auto heads = lemmas.of(word);
  const auto met = std::find_if(heads.begin(), heads.end(), [this](const std::string& head) {
    return meetings_.count(head) != 0;
  });
  return met != heads.end() ? *met : heads.front();
}

const TextWords* LemmaBook::textAt(int slot) const {
  const auto found = texts_.find(slot);
  return found != texts_.end() ? &found->second : nullptr;
}

std::vector<std::string> LemmaBook::knownBefore(int slot) const {
  std::vector<std::string> known;
  for (const auto& [lemma, meetings] : meetings_) {
    if (meetings.front().slot < slot) known.push_back(lemma);
  }
  return known;
}

int LemmaBook::firstSlotOf(const std::string& lemma) const {
  const auto found = meetings_.find(lemma);
  return found != meetings_.end() ? found->second.front().slot : 0;
}

int LemmaBook::openAhead(int slot) const {
  return static_cast<int>(std::count_if(textSlots_.begin(), textSlots_.end(), [&](int each) {
    return each < slot && texts_.count(each) == 0;
  }));
}

int LemmaBook::slotBehind(int slot, int texts) const {
  const auto at = std::lower_bound(textSlots_.begin(), textSlots_.end(), slot);
  const auto left = static_cast<int>(textSlots_.end() - at) - 1;
  return left < 0 ? slot : *(at + std::min(texts, left));
}

int LemmaBook::textsBetween(int slot, int later) const {
  return static_cast<int>(std::lower_bound(textSlots_.begin(), textSlots_.end(), later) -
                          std::lower_bound(textSlots_.begin(), textSlots_.end(), slot));
}

// A lemma returns once within each window: it needs one later text by the end of the first, two by
// the end of the second and three by the end of the third.
std::vector<DueLemma> LemmaBook::dueAt(int slot) const {
  std::vector<DueLemma> due;
  for (const auto& [lemma, meetings] : meetings_) {
    const int first = meetings.front().slot;
    if (first >= slot) continue;
    const auto ahead = std::count_if(meetings.begin(), meetings.end(),
                                     [slot](const Meeting& each) { return each.slot < slot; });
    const auto returns = static_cast<std::size_t>(ahead - 1);
    if (returns >= ReturnWindows.size()) continue;
    const int window = ReturnWindows.at(returns);
    if (textsBetween(first, slot) <= window)
      due.push_back({lemma, window, slotBehind(first, window)});
  }
  std::stable_sort(due.begin(), due.end(), [](const DueLemma& left, const DueLemma& right) {
    return left.lastSlot < right.lastSlot;
  });
  return due;
}

std::vector<DueLemma> LemmaBook::missedOf(int slot) const {
  std::vector<DueLemma> missed;
  const TextWords* text = textAt(slot);
  if (text == nullptr) return missed;
  for (const std::string& lemma : text->newLemmas) {
    const auto& meetings = meetings_.at(lemma);
    for (std::size_t window = 0; window < ReturnWindows.size(); ++window) {
      const int texts = ReturnWindows.at(window);
      const int last = slotBehind(slot, texts);
      if (textsBetween(slot, last) < texts) break; // The course ends first.
      const auto written =
          static_cast<int>(std::distance(texts_.lower_bound(slot), texts_.upper_bound(last)));
      if (written <= textsBetween(slot, last)) break;
      const auto returns =
          std::count_if(meetings.begin(), meetings.end(),
                        [last](const Meeting& each) { return each.slot <= last; }) -
          1;
      if (returns <= static_cast<std::ptrdiff_t>(window)) {
        missed.push_back({lemma, ReturnWindows.at(window), last});
        break;
      }
    }
  }
  return missed;
}

} // namespace talvora::pack
