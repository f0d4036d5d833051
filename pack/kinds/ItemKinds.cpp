// The table of the kinds.
#include "pack/kinds/ItemKinds.h"

#include "pack/kinds/ChoiceKind.h"
#include "pack/kinds/FillKind.h"
#include "pack/kinds/MistakeKind.h"
#include "pack/kinds/OrderKind.h"

#include <algorithm>
#include <array>

namespace talvora::pack {

namespace {

template <class Kind>
const ItemKind* only() {
  static const Kind kind;
  return &kind;
}

const ItemKind* findKind(auto matches) {
  const auto kinds = itemKinds();
  const auto found = std::find_if(kinds.begin(), kinds.end(),
                                  [&](const ItemKind* each) { return matches(*each); });
  return found == kinds.end() ? nullptr : *found;
}

} // namespace

std::span<const ItemKind* const> itemKinds() {
  static const std::array kinds = {
      only<FillKind>(),
      only<ChoiceKind>(),
      only<MistakeKind>(),
      only<OrderKind>(),
  };
  return kinds;
}

const ItemKind* itemKindNamed(std::string_view name) {
  return findKind([&](const ItemKind& kind) { return kind.name() == name; });
}

const ItemKind* itemKindOf(char digit) {
  return findKind([&](const ItemKind& kind) { return kind.digit() == digit; });
}

} // namespace talvora::pack
