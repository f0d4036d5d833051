#include "pack/ItemHeadings.h"

#include <algorithm>
#include <array>

namespace talvora::pack {

namespace {

struct NamedHeading {
  int code;
  std::string_view bank;   ///< empty where a bank has no such heading
  std::string_view lesson; ///< empty where a lesson's items have none
};

constexpr std::array<NamedHeading, 30> headings = {{
    {0, "none", "none"},
    {2, "articles", "articles"},
    {3, "a-an-one", "a-an-one"},
    {5, "present-simple-or-continuous", "present-simple"},
    {6, "past-simple-or-continuous", "present-perfect"},
    {7, "past-simple-or-present-perfect", "present-perfect-continuous"},
    {8, "present-perfect-or-continuous", "past-simple"},
    {9, "past-simple-or-past-perfect", "past-continuous"},
    {10, "replace", "replace"},
    {11, "choose", "choose"},
    {12, "mistake", "after-verb"},
    {13, "fill-word", "fill-word"},
    {14, "", "present-simple-with-auxiliary"},
    {15, "", "present-simple-without-auxiliary"},
    {16, "", "no-short-form"},
    {17, "", "short-form"},
    {18, "", "present-continuous"},
    {19, "", "past-perfect"},
    {20, "", "past-perfect-continuous"},
    {21, "", "future-simple"},
    {22, "", "future-continuous"},
    {23, "", "future-perfect"},
    {24, "", "future-perfect-continuous"},
    {25, "", "going-to"},
    {26, "", "add-ing"},
    {27, "", "irregular-verbs"},
    {28, "", "past-simple-without-auxiliary"},
    {29, "", "past-simple-with-auxiliary"},
    {30, "", "conditional"},
    {31, "", "exclamation"},
}};

std::string_view nameIn(const NamedHeading& heading, ItemPlace place) {
  return place == ItemPlace::Bank ? heading.bank : heading.lesson;
}

} // namespace

std::optional<int> headingCode(std::string_view name, ItemPlace place) {
  if (name.empty()) return std::nullopt;
  const auto found = std::find_if(headings.begin(), headings.end(),
                                  [&](const auto& each) { return nameIn(each, place) == name; });
  if (found == headings.end()) return std::nullopt;
  return found->code;
}

std::vector<std::string> headingNames(ItemPlace place) {
  std::vector<std::string> names;
  for (const NamedHeading& heading : headings) {
    const std::string_view name = nameIn(heading, place);
    if (!name.empty()) names.emplace_back(name);
  }
  return names;
}

std::string headingName(int code, ItemPlace place) {
  const auto found = std::find_if(headings.begin(), headings.end(),
                                  [&](const auto& each) { return each.code == code; });
  const std::string_view name = found == headings.end() ? "" : nameIn(*found, place);
  return name.empty() ? "none" : std::string(name);
}

} // namespace talvora::pack
