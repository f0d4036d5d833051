#include "fronts/PageTraits.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace talvora {

namespace {

bool isList(std::string_view name) {
  constexpr std::array lists = {"R1", "RVP1", "RN1", "RW1", "RTD", "Rchon"};
  return std::find(lists.begin(), lists.end(), name) != lists.end();
}

} // namespace

PageTraits traitsOf(const Surface& surface) {
  const std::string& name = surface.Name();
  PageTraits traits;
  traits.isList = isList(name);
  // The guide takes no key but Esc; a list shows its line.
  traits.showsCaret = !traits.isList && name != "Rcachhoc";
  if (name == "RVP1") traits.blueSign = PageTraits::BlueSign::Tick;
  if (name == "Rxep") traits.blueSign = PageTraits::BlueSign::Underline;
  return traits;
}

} // namespace talvora
