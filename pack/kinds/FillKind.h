// Fill in: blanks to be typed into, with hints or without.
#pragma once

#include "pack/Message.h"
#include "pack/kinds/ItemKind.h"

namespace talvora::pack {

class FillKind final : public ItemKind {
 public:
  [[nodiscard]] std::string_view name() const override { return toSay("fill"); }
  [[nodiscard]] char digit() const override { return '4'; }
  [[nodiscard]] bool hasHints() const override { return true; }
  [[nodiscard]] bool isTyped() const override { return true; }
  [[nodiscard]] BraceUse braces() const override { return BraceUse::Answer; }
  [[nodiscard]] std::string subjectOf(const Item& item, int number,
                                      const std::string& phrase) const override;
  void check(const Item& item, const ItemText& text, const Where& hints,
             Problems& problems) const override;
  /// Without hints the length of a blank would tell its answer: all of a question get one length.
  [[nodiscard]] std::string storedQuestion(const Item& item) const override;
};

} // namespace talvora::pack
