// What the compiler writes and the program reads, record by record.
#include "formats/Integers.h"
#include "formats/LearnerFiles.h"
#include "formats/Settings.h"
#include "pack/OtherStores.h"
#include "stores/SettingsFile.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <limits>
#include <string>

namespace talvora {
namespace {

TEST(Integers, ReadBackAsTheyAreWritten) {
  constexpr std::array<std::int32_t, 6> values = {0,
                                                  1,
                                                  -1,
                                                  0x01020304,
                                                  std::numeric_limits<std::int32_t>::max(),
                                                  std::numeric_limits<std::int32_t>::min()};
  std::string table;
  for (const std::int32_t value : values)
    appendInteger(table, static_cast<std::uint32_t>(value));
  ASSERT_EQ(table.size(), values.size() * IntegerSize);
  for (std::size_t record = 1; record <= values.size(); ++record)
    EXPECT_EQ(integerAt(table, record), values[record - 1]);
  EXPECT_EQ(integerAt(table, 0), 0);
  EXPECT_EQ(integerAt(table, values.size() + 1), 0);
  EXPECT_EQ(integerAt(std::string_view("\1\2\3"), 1), 0) << "a record that is cut off";
}

TEST(Counts, ReadBackAsTheyAreWritten) {
  std::string table;
  for (const std::size_t value : {0U, 25U, 256U, 32767U})
    appendCount(table, value);
  EXPECT_EQ(table.size(), 4 * CountSize);
  EXPECT_EQ(countAt(table, 2), 25);
  EXPECT_EQ(countAt(table, 3), 256);
  EXPECT_EQ(countAt(table, 4), 32767);
  EXPECT_EQ(countAt(table, 5), 0);
  EXPECT_EQ(countAt(table, 0), 0);
}

TEST(Settings, OfANewPackAreThoseThatTheProgramBeginsWith) {
  const auto files = pack::firstSettings();
  ASSERT_EQ(files.front().name, learnerfile::Settings);
  test::TestFolder folder;
  folder.write(files.front().name, files.front().bytes);
  SettingsFile settings(systemFiles());
  settings.open(folder.path() + "/" + files.front().name, SettingsFile::IfMissing::BeginEmpty);
  for (int record = 1; record <= static_cast<int>(setting::Count); ++record)
    EXPECT_EQ(settings.read(record), firstSettings()[static_cast<std::size_t>(record - 1)]);
  EXPECT_EQ(settings.read(setting::SoundOn), 1);
  EXPECT_EQ(settings.read(setting::SpeedLevel), 5);
  EXPECT_EQ(settings.read(static_cast<int>(setting::Count) + 1), 0);
}

} // namespace
} // namespace talvora
