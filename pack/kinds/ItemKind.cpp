// What most kinds have alike.
#include "pack/kinds/ItemKind.h"

#include <algorithm>
#include <utility>

namespace talvora::pack {

int ItemKind::explainable(const Item& item) const {
  return static_cast<int>(std::count(item.question.begin(), item.question.end(), '*'));
}

std::string ItemKind::subjectOf(const Item&, int number, const std::string& phrase) const {
  return std::to_string(number) + ". " + phrase;
}

void ItemKind::finish(Item& item, ItemText& text) const {
  item.question = std::move(text.stored);
}

std::string ItemKind::storedQuestion(const Item& item) const {
  return item.question;
}

} // namespace talvora::pack
