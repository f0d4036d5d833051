// Find the mistake: two to six phrases, one of them wrong.
#pragma once

#include "pack/Message.h"
#include "pack/kinds/ItemKind.h"

namespace talvora::pack {

class MistakeKind final : public ItemKind {
 public:
  [[nodiscard]] std::string_view name() const override { return toSay("mistake"); }
  [[nodiscard]] char digit() const override { return '2'; }
  [[nodiscard]] BraceUse braces() const override { return BraceUse::Candidate; }
  [[nodiscard]] std::string subjectOf(const Item& item, int number,
                                      const std::string& phrase) const override;
  void finish(Item& item, ItemText& text) const override;
  void check(const Item& item, const ItemText& text, const Where& hints,
             Problems& problems) const override;
  [[nodiscard]] std::string storedTail(const Item&) const override { return "\r+\r"; }
};

} // namespace talvora::pack
