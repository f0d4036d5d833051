// A kind of exercise item, as all of talvora-pack sees it: how its source is written, what must be
// right about it, and how it is stored.
#pragma once

#include "pack/Item.h"
#include "pack/ItemText.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace talvora::pack {

class ItemKind {
 public:
  ItemKind() = default;
  ItemKind(const ItemKind&) = delete;
  ItemKind& operator=(const ItemKind&) = delete;
  virtual ~ItemKind() = default;

  /// What a source calls the kind; tables have it in the user's language.
  [[nodiscard]] virtual std::string_view name() const = 0;
  /// With what a record of the kind begins.
  [[nodiscard]] virtual char digit() const = 0;

  // -- What its source has.

  /// Whether items of the kind stand in banks as well, and not only among a lesson's.
  [[nodiscard]] virtual bool standsInBanks() const { return true; }
  [[nodiscard]] virtual bool hasHeading() const { return true; }
  [[nodiscard]] virtual bool hasHints() const { return false; }
  /// How many options it offers; 0 for none.
  [[nodiscard]] virtual std::size_t options() const { return 0; }
  /// Whether it has sentences with their translations in the place of a question.
  [[nodiscard]] virtual bool hasSentences() const { return false; }
  [[nodiscard]] virtual bool isExplained() const { return true; }
  /// Whether the learner types what stands in the braces.
  [[nodiscard]] virtual bool isTyped() const { return false; }
  [[nodiscard]] virtual BraceUse braces() const { return BraceUse::Phrase; }
  /// How many things of an item can be explained each by itself.
  [[nodiscard]] virtual int explainable(const Item& item) const;
  /// What explanation `number` is about ("blank 2 (goes / went)"); `phrase` stands in its braces.
  [[nodiscard]] virtual std::string subjectOf(const Item& item, int number,
                                              const std::string& phrase) const;

  // -- The item as a whole.

  /// Takes the question, and what its text tells of the key, into an item that has been read.
  virtual void finish(Item& item, ItemText& text) const;
  /// Reports what an item lacks or has too much of. Its hints are at `hints`.
  virtual void check(const Item& item, const ItemText& text, const Where& hints,
                     Problems& problems) const = 0;

  // -- Its record.

  /// The question as it is stored.
  [[nodiscard]] virtual std::string storedQuestion(const Item& item) const;
  /// What stands behind the question, ahead of the key's letter.
  [[nodiscard]] virtual std::string storedTail(const Item&) const { return {}; }
};

} // namespace talvora::pack
