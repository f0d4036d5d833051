#include "pack/words/WordCards.h"

#include "learner/LearnerWords.h"
#include "learner/SentenceFinder.h"
#include "pack/PackDictionary.h"
#include "pack/words/EntryText.h"
#include "pack/words/StableId.h"
#include "text/CharClass.h"
#include "text/Text.h"

namespace talvora::pack {

namespace {

constexpr std::size_t mostSenses = 6;
constexpr CharClass wordCharacters("[a-zA-Z0-9']");

/// What a pack knows of words and sentences.
class KnowingPack {
 public:
  KnowingPack(const std::string& folder, const LearnersList& list)
      : dictionary_(dictionaryFolderOf(folder, list.folder, list.files), problems_),
        texts_(folder, list.folder, list.files), fingerprint_(texts_.fingerprint()) {}

  /// A word whose place belongs to another pack is looked for in this one.
  [[nodiscard]] WordRow placed(WordRow row) {
    if (row.pack == fingerprint_) return row;
    if (!finder_) finder_.emplace(texts_);
    static_cast<void>(finder_->find(row));
    return row;
  }

  void describe(const WordRow& row, WordCard& card) const {
    if (row.where.place != 0) card.translation = readableText(texts_.translationOf(row.where));
    // Words of a phrase are not cut off as endings are.
    const bool isPhrase = row.word.find(' ') != std::string::npos;
    const auto number = isPhrase ? dictionary_.find(row.word) : dictionary_.findReduced(row.word);
    if (!number) return;
    EntryText entry = entryTextOf(dictionary_.entryAt(*number), mostSenses);
    card.pronunciation = std::move(entry.pronunciation);
    card.senses = std::move(entry.senses);
    const std::string head = readableText(dictionary_.headAt(*number));
    card.base = entry.base.empty() ? head : entry.base;
  }

 private:
  Problems problems_;
  PackDictionary dictionary_;
  TextCatalogue texts_;
  std::string fingerprint_;
  std::optional<SentenceFinder> finder_;
};

WordCard cardOf(const WordRow& row) {
  WordCard card;
  card.word = readableText(row.word);
  card.id = stableId("talvora " + lower(card.word));
  card.base = card.word;
  card.sentence = readableText(trim(row.where.words));
  card.title = readableText(row.where.title);
  card.spokenWord = row.word;
  card.spokenSentence = row.where.words;
  return card;
}

} // namespace

MarkedSentence markedSentence(const std::string& sentence, const std::string& word) {
  const std::string text = lower(sentence);
  const std::string wanted = lower(word);
  const auto isOutside = [&](std::size_t at) {
    return at >= text.size() || !wordCharacters.has(text[at]);
  };
  std::size_t at = wanted.empty() ? std::string::npos : text.find(wanted);
  for (; at != std::string::npos; at = text.find(wanted, at + 1)) {
    const std::size_t end = at + wanted.size();
    if ((at == 0 || isOutside(at - 1)) && isOutside(end))
      return {sentence.substr(0, at), sentence.substr(at, wanted.size()), sentence.substr(end)};
  }
  return {sentence, "", ""};
}

std::optional<std::vector<WordCard>> cardsOf(const LearnersList& list, const std::string& pack) {
  LearnerWords words(list.folder, list.files, list.calendar);
  const auto there = words.read();
  if (!there) return std::nullopt;
  std::optional<KnowingPack> known;
  if (!pack.empty()) known.emplace(pack, list);
  std::vector<WordCard> cards;
  for (WordRow& row : words.rowsOf(*there)) {
    if (row.word.empty()) continue;
    if (known) row = known->placed(std::move(row));
    WordCard card = cardOf(row);
    if (known) known->describe(row, card);
    cards.push_back(std::move(card));
  }
  return cards;
}

} // namespace talvora::pack
