#include "exercises/ItemKinds.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace talvora {

void ItemKinds::add(std::string_view digits, std::unique_ptr<ItemKindPage> page) {
  entries_.push_back({digits, std::move(page)});
}

ItemKindPage& ItemKinds::of(ItemKind kind) const {
  const char digit = static_cast<char>('0' + static_cast<int>(kind));
  const auto found = std::find_if(entries_.begin(), entries_.end(), [digit](const Entry& entry) {
    return entry.digits.find(digit) != std::string_view::npos;
  });
  if (found == entries_.end()) throw std::logic_error("no page for a kind of item");
  return *found->page;
}

ItemKindPage* ItemKinds::on(const Surface& surface) const noexcept {
  const auto found = std::find_if(entries_.begin(), entries_.end(), [&](const Entry& entry) {
    return &entry.page->surface() == &surface;
  });
  return found == entries_.end() ? nullptr : found->page.get();
}

} // namespace talvora
