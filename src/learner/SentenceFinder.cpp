#include "learner/SentenceFinder.h"

#include "text/CharClass.h"
#include "text/Text.h"

#include <algorithm>
#include <cstdlib>
#include <tuple>
#include <utility>

namespace talvora {

namespace {

/// From this likeness on a sentence of the same text is the old one, changed.
constexpr double LikeInText = 0.5;
/// The same for one of another text, of which there are many more to be like by chance.
constexpr double LikeElsewhere = 0.6;
constexpr CharClass WordCharacters("[a-z']");

bool isOfWord(char character) {
  return WordCharacters.has(character) || static_cast<unsigned char>(character) >= 0x80;
}

/// How far a sentence stands from where another one stood; the smaller the nearer.
auto distance(const SentencePlace& from, const SentencePlace& to) {
  return std::tuple(from.kind != to.kind, from.title != to.title, std::abs(from.text - to.text),
                    std::abs(from.sentence - to.sentence));
}

bool sameText(const SentencePlace& one, const SentencePlace& other) {
  return one.kind == other.kind && one.title == other.title && !one.title.empty();
}

} // namespace

SentenceFinder::SentenceFinder(const TextCatalogue& catalogue) : sentences_(catalogue.all()) {
  for (std::size_t at = 0; at < sentences_.size(); ++at) {
    SentencePlace& each = sentences_[at];
    each.title = asWritten(each.title);
    each.words = asWritten(each.words);
    if (each.words.empty()) continue;
    byText_.emplace(each.words, at);
    const Words words = wordsOf(each.words);
    for (const std::string& word : std::set<std::string>(words.begin(), words.end()))
      byWord_.emplace(word, at);
  }
}

SentenceFinder::Words SentenceFinder::wordsOf(std::string_view text) {
  Words words;
  std::string word;
  for (const char character : lower(text) + ' ') {
    if (isOfWord(character)) {
      word += character;
    } else if (!word.empty()) {
      words.insert(std::exchange(word, {}));
    }
  }
  return words;
}

double SentenceFinder::likenessOf(const Words& one, const Words& other) {
  if (one.empty() || other.empty()) return 0;
  std::size_t common = 0;
  auto at = one.begin();
  auto beside = other.begin();
  while (at != one.end() && beside != other.end()) {
    if (*at == *beside) {
      ++common;
      ++at;
      ++beside;
    } else if (*at < *beside) {
      ++at;
    } else {
      ++beside;
    }
  }
  return 2.0 * static_cast<double>(common) / static_cast<double>(one.size() + other.size());
}

const SentencePlace* SentenceFinder::same(const WordRow& row) const {
  const SentencePlace* best = nullptr;
  const auto [first, last] = byText_.equal_range(row.where.words);
  for (auto each = first; each != last; ++each) {
    const SentencePlace& found = sentences_[each->second];
    if (best == nullptr || distance(row.where, found) < distance(row.where, *best)) best = &found;
  }
  return best;
}

const SentencePlace* SentenceFinder::likest(const WordRow& row, bool inSameText,
                                            double least) const {
  const Words wanted = wordsOf(row.where.words);
  const Words parts = wordsOf(row.word);
  if (parts.empty()) return nullptr;
  const SentencePlace* best = nullptr;
  double bestLikeness = least;
  const auto [first, last] = byWord_.equal_range(*parts.begin());
  for (auto each = first; each != last; ++each) {
    const SentencePlace& found = sentences_[each->second];
    if (inSameText && !sameText(row.where, found)) continue;
    const Words words = wordsOf(found.words);
    if (!std::includes(words.begin(), words.end(), parts.begin(), parts.end())) continue;
    const double likeness = likenessOf(wanted, words);
    if (likeness < bestLikeness) continue;
    const bool better = best == nullptr || likeness > bestLikeness ||
                        distance(row.where, found) < distance(row.where, *best);
    if (!better) continue;
    best = &found;
    bestLikeness = likeness;
  }
  return best;
}

Found SentenceFinder::find(WordRow& row) const {
  const auto take = [&](const SentencePlace& found, Found how) {
    row.where = found;
    return how;
  };
  const SentencePlace* const equal = row.where.words.empty() ? nullptr : same(row);
  if (equal != nullptr && sameText(row.where, *equal)) return take(*equal, Found::InItsText);
  if (const auto* near = likest(row, true, LikeInText)) return take(*near, Found::NearestInText);
  if (equal != nullptr) return take(*equal, Found::InAnotherText);
  if (const auto* like = likest(row, false, LikeElsewhere))
    return take(*like, Found::LikeInOtherText);
  row.where.place = 0;
  return Found::Nowhere;
}

} // namespace talvora
