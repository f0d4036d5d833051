// The word list and the entries of its words.
#include "pack/WordList.h"

#include "pack/EntryLines.h"
#include "text/WordForm.h"

#include <algorithm>
#include <numeric>

namespace talvora::pack {

namespace {

constexpr std::size_t mostBorrowedSenses = 3;

/// What an entry says of the word itself. How it is said stands behind the head word, and again at
/// a second word of the spelling that is said in another way.
std::string ownLines(const Word& word) {
  std::string lines;
  for (EntryBlock block : word.blocks) {
    const bool first = lines.empty();
    if (!first || word.opensWithOrigins()) {
      if (block.pronunciation == word.blocks.front().pronunciation) block.pronunciation.clear();
    }
    const std::string details = headDetails(block);
    const bool namedAgain = word.opensWithOrigins() && word.kind == WordKind::Own;
    if (!first || namedAgain) lines += "_" + word.head + (details.empty() ? "" : " ");
    lines += details + blockLines(block);
  }
  return lines;
}

bool inVietnamese(const std::vector<Sense>& senses) {
  return std::any_of(senses.begin(), senses.end(),
                     [](const Sense& sense) { return sense.language == Language::Vietnamese; });
}

} // namespace

std::optional<std::size_t> WordList::find(const std::string& form) const {
  return byForm_.find(
      form, [this](std::size_t number) -> const std::string& { return words_[number].form; });
}

std::optional<std::size_t> WordList::add(Word word) {
  if (full()) return std::nullopt;
  word.form = ChuanHoaTu(word.head);
  if (word.form.empty() || word.form.front() < 'a' || word.form.front() > 'z') return std::nullopt;
  if (find(word.form)) return std::nullopt;
  byForm_.add(word.form, words_.size());
  words_.push_back(std::move(word));
  return words_.size() - 1;
}

std::vector<std::size_t> WordList::sorted() const {
  std::vector<std::size_t> order(words_.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::sort(order.begin(), order.end(), [this](std::size_t left, std::size_t right) {
    return words_[left].form < words_[right].form;
  });
  return order;
}

std::vector<const Origin*> WordList::pathOf(const Origin& origin) const {
  std::vector<const Origin*> path{&origin};
  const Word* base = &words_[origin.base];
  while ((!base->hasSenses() || base->isBuilt()) && !base->origins.empty()) {
    path.push_back(&base->origins.front());
    base = &words_[path.back()->base];
  }
  return path;
}

std::vector<Sense> WordList::borrowedSenses(const Origin& origin) const {
  const Origin& last = *pathOf(origin).back();
  const std::vector<EntryBlock>& blocks = words_[last.base].blocks;
  std::vector<Sense> senses;
  std::vector<Sense> others;
  for (std::size_t place = 0; place < blocks.size(); ++place) {
    if (last.block.value_or(place) != place) continue;
    for (const Sense& sense : blocks[place].senses)
      (last.classes.has(sense.wordClass) ? senses : others).push_back(sense);
  }
  if (senses.empty()) senses = std::move(others);
  if (senses.size() > mostBorrowedSenses) senses.resize(mostBorrowedSenses);
  return senses;
}

bool WordList::hasVietnamese(const Word& word) const {
  return std::any_of(word.blocks.begin(), word.blocks.end(),
                     [](const EntryBlock& block) { return inVietnamese(block.senses); }) ||
         std::any_of(word.origins.begin(), word.origins.end(),
                     [this](const Origin& origin) { return inVietnamese(borrowedSenses(origin)); });
}

std::string WordList::entryOf(const Word& word) const {
  const std::string own = ownLines(word);
  std::string borrowed;
  for (const Origin& origin : word.origins) {
    borrowed += "_" + origin.relation;
    // "readers" belongs to "reader", and that is built from "read".
    for (const Origin* further : pathOf(origin)) {
      if (further != &origin && !further->affix.empty()) borrowed += "_" + further->relation;
    }
    borrowed += entryLines(borrowedSenses(origin), Examples::Without);
  }
  const std::string note = word.note.empty() ? "" : "_" + word.note;
  if (!word.opensWithOrigins()) return own + borrowed + note;
  return (word.hasSenses() ? word.blocks.front().pronunciation : "") + borrowed + own + note;
}

} // namespace talvora::pack
