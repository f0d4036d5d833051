#include "pack/kinds/OrderKind.h"

#include "pack/Message.h"

#include <utility>

namespace talvora::pack {

void OrderKind::finish(Item& item, ItemText&) const {
  for (const std::string& sentence : std::exchange(item.options, {}))
    item.question += (item.question.empty() ? "_" : " _") + sentence;
}

void OrderKind::check(const Item& item, const ItemText&, const Where&, Problems& problems) const {
  if (item.options.empty()) problems.add(item.where, said("the sentences are missing"));
}

} // namespace talvora::pack
