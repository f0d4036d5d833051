// Word ordering: sentences whose words come shuffled.
#pragma once

#include "pack/Message.h"
#include "pack/kinds/ItemKind.h"

namespace talvora::pack {

/// Until such an item is finished, its sentences stand among its options.
class OrderKind final : public ItemKind {
 public:
  [[nodiscard]] std::string_view name() const override { return toSay("order"); }
  [[nodiscard]] char digit() const override { return '3'; }
  [[nodiscard]] bool standsInBanks() const override { return false; }
  [[nodiscard]] bool hasHeading() const override { return false; }
  [[nodiscard]] bool hasSentences() const override { return true; }
  [[nodiscard]] bool isExplained() const override { return false; }
  [[nodiscard]] int explainable(const Item&) const override { return 0; }
  void finish(Item& item, ItemText& text) const override;
  void check(const Item& item, const ItemText& text, const Where& hints,
             Problems& problems) const override;
};

} // namespace talvora::pack
