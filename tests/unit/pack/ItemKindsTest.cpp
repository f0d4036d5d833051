// The kinds of item as the compiler has them, beside those of the program.
#include "pack/kinds/ItemKinds.h"
#include "exercises/ItemRecord.h"

#include <gtest/gtest.h>

#include <set>

namespace talvora::pack {
namespace {

TEST(ItemKinds, AreToldApartByNameAndByTheirRecordsDigit) {
  std::set<std::string_view> names;
  std::set<char> digits;
  for (const ItemKind* kind : itemKinds()) {
    EXPECT_TRUE(names.insert(kind->name()).second) << kind->name();
    EXPECT_TRUE(digits.insert(kind->digit()).second) << kind->digit();
    EXPECT_EQ(itemKindNamed(kind->name()), kind);
    EXPECT_EQ(itemKindOf(kind->digit()), kind);
  }
  EXPECT_EQ(itemKindNamed("essay"), nullptr);
  EXPECT_EQ(itemKindOf('0'), nullptr);
}

TEST(ItemKinds, AreAllKnownToTheProgram) {
  for (const ItemKind* kind : itemKinds()) {
    const std::string record = {kind->digit(), '0', '1'};
    EXPECT_NE(readHeader(record).kind, talvora::ItemKind::None) << kind->name();
  }
}

} // namespace
} // namespace talvora::pack
