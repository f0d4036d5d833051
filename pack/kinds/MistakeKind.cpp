#include "pack/kinds/MistakeKind.h"

#include "pack/Message.h"

namespace talvora::pack {

namespace {

constexpr int fewestPhrases = 2;
constexpr int mostPhrases = 6;

} // namespace

std::string MistakeKind::subjectOf(const Item& item, int number, const std::string& phrase) const {
  return ItemKind::subjectOf(item, number, phrase) +
         (number == item.key ? said(", the mistake") : "");
}

void MistakeKind::finish(Item& item, ItemText& text) const {
  item.key = text.marked;
  ItemKind::finish(item, text);
}

void MistakeKind::check(const Item& item, const ItemText& text, const Where&,
                        Problems& problems) const {
  if (text.marks != 1) problems.add(item.where, said("exactly one phrase begins with \"!\""));
  if (text.braces < fewestPhrases || text.braces > mostPhrases)
    problems.add(item.where, said("a mistake item has two to six phrases in braces"));
  if (text.hasGap) problems.add(item.where, said("\"_\" cannot stand in a mistake item"));
}

} // namespace talvora::pack
