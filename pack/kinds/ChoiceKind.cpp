#include "pack/kinds/ChoiceKind.h"

#include "pack/Message.h"
#include "pack/StreamText.h"
#include "text/Text.h"

#include <algorithm>
#include <map>
#include <vector>

namespace talvora::pack {

namespace {

constexpr char lineEnd = '\r';

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

} // namespace

int ChoiceKind::explainable(const Item& item) const {
  return static_cast<int>(item.options.size());
}

std::string ChoiceKind::subjectOf(const Item& item, int number, const std::string&) const {
  const auto at = static_cast<std::size_t>(number) - 1;
  return std::string(1, static_cast<char>('A' + at)) + ". " + utf8Of(item.options.at(at)) +
         (number == item.key ? said(", right") : "");
}

void ChoiceKind::check(const Item& item, const ItemText& text, const Where&,
                       Problems& problems) const {
  if (text.stored.empty()) problems.add(item.where, said("the stem is missing"));
  if (item.options.size() != options()) {
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

std::string ChoiceKind::storedTail(const Item& item) const {
  std::string tail(1, lineEnd);
  for (const std::string& option : item.options)
    tail += '+' + option + lineEnd;
  return tail;
}

} // namespace talvora::pack
