// The word list and the entries of its words.
#include "pack/WordList.h"

#include "text/WordForm.h"

#include <algorithm>
#include <numeric>

namespace talvora::pack {

namespace {

constexpr std::size_t mostBorrowedSenses = 3;

/// The first senses of a word for the entry of another one; those of the classes asked for, or of
/// all when it has none of these.
std::string borrowedLines(const Word& root, ClassSet classes) {
  std::vector<Sense> senses;
  for (const Sense& sense : root.senses) {
    if (classes.has(sense.wordClass)) senses.push_back(sense);
  }
  if (senses.empty()) senses = root.senses;
  if (senses.size() > mostBorrowedSenses) senses.resize(mostBorrowedSenses);
  return entryLines(senses, Examples::Without);
}

} // namespace

std::optional<std::size_t> WordList::find(const std::string& form) const {
  const auto found = byForm_.find(form);
  return found != byForm_.end() ? std::optional(found->second) : std::nullopt;
}

std::optional<std::size_t> WordList::add(Word word) {
  if (full()) return std::nullopt;
  word.form = ChuanHoaTu(word.head);
  if (word.form.empty() || word.form.front() < 'a' || word.form.front() > 'z') return std::nullopt;
  if (!byForm_.emplace(word.form, words_.size()).second) return std::nullopt;
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

const Word& WordList::rootOf(const Word& word) const {
  const Word* root = &word;
  while (root->senses.empty() && !root->origins.empty())
    root = &words_[root->origins.front().base];
  return *root;
}

bool WordList::hasVietnamese(const Word& word) const {
  const auto inVietnamese = [](const Word& root) {
    return std::any_of(root.senses.begin(), root.senses.end(),
                       [](const Sense& sense) { return sense.language == Language::Vietnamese; });
  };
  return inVietnamese(word) ||
         std::any_of(word.origins.begin(), word.origins.end(), [&](const Origin& origin) {
           return inVietnamese(rootOf(words_[origin.base]));
         });
}

std::string WordList::entryOf(const Word& word) const {
  const std::string own = entryLines(word.senses, Examples::With);
  std::string borrowed;
  for (const Origin& origin : word.origins) {
    borrowed += "_" + origin.relation + borrowedLines(rootOf(words_[origin.base]), origin.classes);
  }
  const std::string note = word.note.empty() ? "" : "_" + word.note;
  return (word.kind == WordKind::OwnForm ? borrowed + own : own + borrowed) + note;
}

} // namespace talvora::pack
