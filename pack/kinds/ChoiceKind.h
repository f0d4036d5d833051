// Multiple choice: a stem and four options, one of them right.
#pragma once

#include "pack/Message.h"
#include "pack/kinds/ItemKind.h"

namespace talvora::pack {

class ChoiceKind final : public ItemKind {
 public:
  [[nodiscard]] std::string_view name() const override { return toSay("choice"); }
  [[nodiscard]] char digit() const override { return '1'; }
  [[nodiscard]] std::size_t options() const override { return 4; }
  [[nodiscard]] int explainable(const Item& item) const override;
  [[nodiscard]] std::string subjectOf(const Item& item, int number,
                                      const std::string& phrase) const override;
  void check(const Item& item, const ItemText& text, const Where& hints,
             Problems& problems) const override;
  [[nodiscard]] std::string storedTail(const Item& item) const override;
};

} // namespace talvora::pack
