// The pages of all kinds of items, found by kind or by surface.
#pragma once

#include "exercises/ItemKindPage.h"
#include "exercises/ItemState.h"

#include <memory>
#include <string_view>
#include <vector>

namespace talvora {

class ItemKinds {
 public:
  /// Adds the page that shows the records which begin with one of the digits; 0 stands for any
  /// that no other page has.
  void add(std::string_view digits, std::unique_ptr<ItemKindPage> page);

  /// The page of a kind. Throws std::logic_error when there is none.
  [[nodiscard]] ItemKindPage& of(ItemKind kind) const;
  /// The page that owns a surface; null for a surface of no kind.
  [[nodiscard]] ItemKindPage* on(const Surface& surface) const noexcept;
  template <class Use>
  void each(Use use) const {
    for (const Entry& entry : entries_)
      use(*entry.page);
  }

 private:
  struct Entry {
    std::string_view digits;
    std::unique_ptr<ItemKindPage> page;
  };
  std::vector<Entry> entries_;
};

} // namespace talvora
