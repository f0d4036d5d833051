#include "pack/kinds/FillKind.h"

#include "formats/Limits.h"
#include "pack/BlankWidth.h"
#include "pack/Message.h"

namespace talvora::pack {

std::string FillKind::subjectOf(const Item&, int number, const std::string& phrase) const {
  return said("blank {} ({})", number, phrase.empty() ? said("stays empty") : phrase);
}

void FillKind::check(const Item& item, const ItemText& text, const Where& hints,
                     Problems& problems) const {
  if (text.braces == 0) problems.add(item.where, said("a fill item has at least one blank"));
  if (text.braces > limit::Blanks)
    problems.add(item.where, said("an item has at most 1000 blanks"));
  if (item.hints.empty() || text.braces == 0) return;
  const auto blanks = static_cast<std::size_t>(text.braces);
  if (item.hints.size() != blanks) {
    problems.add(hints, said("{} for {}; commas part the hints",
                             saidOf(item.hints.size(), "there is {} hint", "there are {} hints"),
                             saidOf(blanks, "{} blank", "{} blanks")));
  }
}

std::string FillKind::storedQuestion(const Item& item) const {
  return item.hints.empty() ? withEvenBlanks(item.question) : item.question;
}

} // namespace talvora::pack
