#include "exercises/ItemStore.h"

#include "formats/Integers.h"
#include "formats/PackFiles.h"
#include "platform/Files.h"
#include "text/Text.h"

#include <algorithm>

namespace talvora {

void ItemStore::DocSoCau(EventLoop& events) {
  if (TongCau_ > 0) return;
  const auto counts = stores_.hold(packfile::ItemCounts);
  for (std::size_t section = 1; section <= Sections; ++section) {
    events.letEventsRun();
    SoCau_[section] = countAt(counts->text(), section);
  }
  TongCau_ = itemsBefore(Sections + 1);
}

int ItemStore::countOf(int section) const noexcept {
  if (section < 1 || section > Sections) return 0;
  return std::max<int>(SoCau_[static_cast<std::size_t>(section)], 0);
}

int ItemStore::itemsOf(int section) const noexcept {
  return std::max(countOf(section), 1);
}

int ItemStore::itemsBefore(int section) const noexcept {
  int items = 0;
  for (int each = 1; each < section; ++each)
    items += itemsOf(each);
  return items;
}

int ItemStore::bankItemsBefore(int bank) const noexcept {
  int items = 0;
  for (int each = 1; each < bank; ++each)
    items += countOf(each);
  return items;
}

std::string ItemStore::record(std::int64_t number) const {
  const std::int64_t position = stores_.fileOf(file::ItemPositions).integer(number);
  std::string text;
  PieceReader reader(stores_.fileOf(file::Items), position + 1);
  while (const auto piece = reader.next()) {
    if (*piece == "@") break;
    text += *piece;
  }
  return text;
}

void ItemStore::declare(Variables& variables) const {
  variables.addTable("SoCau", &SoCau_);
  variables.add("TongCau", &TongCau_);
}

} // namespace talvora
