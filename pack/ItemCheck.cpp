// Counting of what an item is made of.
#include "pack/ItemCheck.h"

#include "pack/Message.h"

#include "formats/Limits.h"
#include "text/Text.h"

#include <algorithm>
#include <map>
#include <string>

namespace talvora::pack {

namespace {

constexpr std::size_t optionCount = 4;
constexpr int fewestPhrases = 2;
constexpr int mostPhrases = 6;
constexpr int mostBlanks = limit::Blanks;

void checkFill(const Item& item, const ItemText& text, const Where& hints, Problems& problems) {
  if (text.braces == 0) problems.add(item.where, said("a fill item has at least one blank"));
  if (text.braces > mostBlanks) problems.add(item.where, said("an item has at most 1000 blanks"));
  if (item.hints.empty() || text.braces == 0) return;
  const auto blanks = static_cast<std::size_t>(text.braces);
  if (item.hints.size() != blanks) {
    problems.add(hints, said("{} for {}; commas part the hints",
                             saidOf(item.hints.size(), "there is {} hint", "there are {} hints"),
                             saidOf(blanks, "{} blank", "{} blanks")));
  }
}

/// The program tells options from stem by digits in their places.
bool hasDigitsInAPhrase(const std::string& stored) {
  bool inPhrase = false;
  for (const char character : stored) {
    if (character == '*') inPhrase = true;
    if (character == '_') inPhrase = false;
    if (inPhrase && character >= '0' && character <= '9') return true;
  }
  return false;
}

/// Options that differ in their capitals alone make no choice, unless most of them do: then
/// capitals are what the item is about.
bool hasOptionsAlike(const std::vector<std::string>& options) {
  std::map<std::string, int> counts;
  for (const std::string& option : options)
    ++counts[lower(option)];
  return std::any_of(counts.begin(), counts.end(),
                     [](const auto& each) { return each.second == 2; });
}

void checkChoice(const Item& item, const ItemText& text, Problems& problems) {
  if (text.stored.empty()) problems.add(item.where, said("the stem is missing"));
  if (item.options.size() != optionCount) {
    problems.add(item.where,
                 said("a choice has four options and this one {}", item.options.size()));
  } else if (item.key == 0) {
    problems.add(item.where, said("the right option (\"+ ...\") is missing"));
  }
  if (hasOptionsAlike(item.options))
    problems.add(item.where, said("two options differ in their capitals alone"));
  if (text.marks > 0)
    problems.add(item.where, said("only a phrase of a mistake item begins with \"!\""));
  if (text.hasGap && text.braces > 0)
    problems.add(item.where, said("a stem has either a phrase in braces or a gap of \"_\""));
  if (hasDigitsInAPhrase(text.stored))
    problems.add(item.where, said("a phrase of a choice item has no digits"));
}

void checkMistake(const Item& item, const ItemText& text, Problems& problems) {
  if (text.marks != 1) problems.add(item.where, said("exactly one phrase begins with \"!\""));
  if (text.braces < fewestPhrases || text.braces > mostPhrases)
    problems.add(item.where, said("a mistake item has two to six phrases in braces"));
  if (text.hasGap) problems.add(item.where, said("\"_\" cannot stand in a mistake item"));
}

} // namespace

void checkWhole(const Item& item, const ItemText& text, const Where& hints, Problems& problems) {
  switch (item.form) {
  case ItemForm::Fill:
    checkFill(item, text, hints, problems);
    break;
  case ItemForm::Choice:
    checkChoice(item, text, problems);
    break;
  case ItemForm::Mistake:
    checkMistake(item, text, problems);
    break;
  case ItemForm::Order:
    if (item.options.empty()) problems.add(item.where, said("the sentences are missing"));
    break;
  }
}

} // namespace talvora::pack
