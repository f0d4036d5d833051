// Counting of answers.
#include "pack/AnswerStatistics.h"
#include "pack/kinds/ItemKind.h"

#include "text/Text.h"

#include <algorithm>

namespace talvora::pack {

namespace {

bool longestIsRight(const Item& item, std::size_t right) {
  for (std::size_t at = 0; at < item.options.size(); ++at) {
    if (at != right && item.options[at].size() >= item.options[right].size()) return false;
  }
  return true;
}

} // namespace

std::string bluePhraseOf(const Item& item) {
  const std::size_t from = item.question.find('*');
  if (item.kind->options() == 0 || from == std::string::npos) return {};
  const std::size_t to = std::min(item.question.find('_', from), item.question.size());
  return item.question.substr(from + 1, to - from - 1);
}

void countAnswer(AnswerStatistics& statistics, const Item& item) {
  if (item.kind->options() == 0 || item.key < 1) return;
  const auto right = static_cast<std::size_t>(item.key) - 1;
  if (right >= item.options.size() || right >= statistics.positions.size()) return;
  ++statistics.choices;
  ++statistics.positions[right];
  if (longestIsRight(item, right)) ++statistics.longestRight;
  const std::string phrase = bluePhraseOf(item);
  if (phrase.empty()) return;
  ++statistics.withPhrase;
  if (lower(phrase) == lower(item.options[right])) ++statistics.phraseRight;
}

} // namespace talvora::pack
