#include "exercises/ItemKindTable.h"

#include "exercises/BT_ChonABCD_.h"
#include "exercises/BT_Chonsai.h"
#include "exercises/BT_DienTu.h"
#include "exercises/OrderingItem.h"

#include <array>
#include <memory>
#include <string_view>

namespace talvora {

namespace {

template <class Page>
std::unique_ptr<ItemKindPage> make(ItemServices& services) {
  return std::make_unique<Page>(services);
}

struct KindRow {
  std::string_view digits; ///< with which its records begin; 0 stands for any other
  std::unique_ptr<ItemKindPage> (*make)(ItemServices& services);
};

constexpr std::array<KindRow, 4> rows = {{
    {"045", make<BT_DienTu>},
    {"1", make<BT_ChonABCD_>},
    {"2", make<BT_Chonsai>},
    {"3", make<OrderingItem>},
}};

} // namespace

void addItemKinds(ItemKinds& kinds, ItemServices& services) {
  for (const KindRow& row : rows)
    kinds.add(row.digits, row.make(services));
}

} // namespace talvora
