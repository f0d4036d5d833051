#include "stores/Stores.h"

#include "platform/FatalFailure.h"
#include "stores/ByteCode.h"
#include "support/TestFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <span>
#include <vector>

namespace talvora {
namespace {

using test::TestFolder;

class StoresTest : public testing::Test {
 protected:
  StoresTest() {
    folder.writeEmptyStores();
    places.ThuMuc = folder.path();
  }

  TestFolder folder;
  Places places;
  Stores stores{places};
};

TEST_F(StoresTest, IntegersAreSignedAndLittleEndian) {
  folder.write("data.vt", std::string("\x01\x02\x03\x04\xFF\xFF\xFF\xFF", 8));
  stores.MoDuLieu();
  EXPECT_EQ(stores.fileOf(file::TextPositions).integer(1), 0x04030201);
  EXPECT_EQ(stores.fileOf(file::TextPositions).integer(2), -1);
}

TEST_F(StoresTest, ReadingPastAnEndOrAheadOfTheStartGives0) {
  folder.write("data.vt", "\x01\x02\x03\x04\x05");
  folder.write("data.av", "A");
  stores.MoDuLieu();
  const RecordFile& positions = stores.fileOf(file::TextPositions);
  const RecordFile& texts = stores.fileOf(file::Texts);
  for (const std::int64_t record :
       {std::int64_t{-1}, std::int64_t{0}, std::int64_t{2}, std::int64_t{1} << 60}) {
    EXPECT_EQ(positions.integer(record), 0);
    EXPECT_TRUE(texts.from(record, {}).empty());
  }
  EXPECT_EQ(texts.from(1, {}).front(), 'A');
}

TEST_F(StoresTest, AReaderStopsAtTheEndOfItsFile) {
  folder.writeStream("data.av", std::string("a\xA6") + "b");
  stores.MoDuLieu();
  PieceReader reader(stores.fileOf(file::Texts), 1);
  EXPECT_EQ(reader.next(), "a");
  EXPECT_EQ(reader.nextRecord(), 2);
  EXPECT_EQ(reader.next(), ". ");
  EXPECT_EQ(reader.next(), "b");
  EXPECT_EQ(reader.next(), std::nullopt);
  EXPECT_EQ(reader.next(), std::nullopt);
}

/// A file that never lies in memory as a whole.
class DistantBytes final : public FileMapping {
 public:
  explicit DistantBytes(std::vector<unsigned char> content) : content_(std::move(content)) {}

  [[nodiscard]] std::span<const unsigned char> bytes() const noexcept override {
    ADD_FAILURE() << "nobody needs all of it";
    return {};
  }
  [[nodiscard]] std::span<const unsigned char>
  from(std::size_t offset, std::span<unsigned char> room) const noexcept override {
    const std::size_t count = std::min(room.size(), content_.size() - offset);
    std::copy_n(content_.begin() + static_cast<std::ptrdiff_t>(offset), count, room.begin());
    return room.first(count);
  }

 private:
  std::vector<unsigned char> content_;
};

TEST(PieceReader, ReadsAFileThatDoesNotLieInMemory) {
  std::vector<unsigned char> stored;
  std::string plain;
  for (int letter = 0; letter < 1000; ++letter) {
    plain += static_cast<char>('a' + letter % 23);
    stored.push_back(GiaiMaByte(static_cast<unsigned char>(plain.back())));
  }
  const RecordFile stream(
      std::make_shared<MappedFile>(std::make_unique<DistantBytes>(std::move(stored))));
  std::string read;
  PieceReader reader(stream, 101);
  while (const auto piece = reader.next())
    read += *piece;
  EXPECT_EQ(read, plain.substr(100));
  EXPECT_EQ(reader.nextRecord(), 1001);
}

TEST_F(StoresTest, WhatAByteStoodForIsRememberedWhicheverStreamItCameFrom) {
  folder.writeStream("data.av", "a\xBC");
  folder.writeStream("dataN.av", "\x10");
  stores.MoDuLieu();
  Variables variables;
  stores.declare(variables);
  const auto remembered = [&] {
    return std::get<std::string>((*variables.find("ChuoiByte"))().value);
  };
  EXPECT_EQ(remembered(), "");
  PieceReader texts(stores.fileOf(file::Texts), 1);
  while (texts.next()) {
  }
  EXPECT_EQ(remembered(), "__");
  const RecordFile ownStore = stores.open("\\dataN.av");
  PieceReader items(ownStore, 1);
  EXPECT_TRUE(items.next());
  EXPECT_EQ(remembered(), " ngh");
}

TEST_F(StoresTest, AMissingFileIsNamed) {
  folder.remove("datavp.n");
  try {
    stores.MoDuLieu();
    FAIL() << "no failure";
  } catch (const FatalFailure& failure) {
    EXPECT_THAT(failure.what(), testing::HasSubstr("datavp.n"));
  }
}

TEST_F(StoresTest, APageThatIsTooLongIsNamed) {
  folder.write("page.rtf", std::string(LongestPage, 'x'));
  EXPECT_EQ(stores.holdPage("page.rtf")->bytes().size(), LongestPage);
  folder.write("page.rtf", std::string(LongestPage + 1, 'x'));
  try {
    static_cast<void>(stores.holdPage("page.rtf"));
    FAIL() << "no failure";
  } catch (const FatalFailure& failure) {
    EXPECT_THAT(failure.what(), testing::HasSubstr("page.rtf: is too long for a page"));
  }
}

TEST_F(StoresTest, TheLearnersFilesAreCreatedWhenMissing) {
  stores.MoDuLieu();
  EXPECT_TRUE(folder.has("data.c"));
  EXPECT_TRUE(folder.has("data.Kcu"));
  EXPECT_EQ(stores.readSetting(setting::RunCounter), 0);
}

TEST_F(StoresTest, SettingsAreWrittenAtOnce) {
  stores.MoDuLieu();
  stores.writeSetting(setting::SpeakingCaret, -5);
  EXPECT_EQ(folder.read("data.Kcu").size(), 32U);
  EXPECT_EQ(folder.read("data.Kcu").substr(28), "\xFB\xFF\xFF\xFF");
  stores.writeSetting(setting::ReadingCaret, 70000);
  EXPECT_EQ(stores.readSetting(setting::ReadingCaret), 70000);
  EXPECT_EQ(stores.readSetting(setting::SpeakingCaret), -5);
  EXPECT_EQ(stores.readSetting(100), 0);
}

TEST_F(StoresTest, AStoreIsChosenByItsNumberAndTheSection) {
  places.MucMenu = 1;
  stores.ChonKho(file::TextPositions);
  EXPECT_EQ(stores.FileVanBan, file::Texts);
  EXPECT_EQ(stores.SoBai, 408);
  places.MucMenu = 5;
  stores.ChonKho(file::TextPositions);
  EXPECT_EQ(stores.SoBai, 14);
  places.MucMenu = 7;
  stores.ChonKho(file::SpeakingPositions);
  EXPECT_EQ(stores.FileVanBan, file::SpeakingTexts);
  EXPECT_EQ(stores.SoBai, 2025);
}

TEST_F(StoresTest, Section5ReadsTheWholePositionTable) {
  std::vector<std::int32_t> positions(900);
  for (std::size_t at = 0; at < positions.size(); ++at) {
    positions[at] = static_cast<std::int32_t>(at + 1);
  }
  folder.writeIntegers("data.vt", positions);
  stores.MoDuLieu();
  places.MucMenu = 5;
  stores.ChonKho(file::TextPositions);
  stores.NapViTriBai();
  EXPECT_EQ(stores.ViTriBai[0], 0);
  EXPECT_EQ(stores.ViTriBai[1], 1);
  EXPECT_EQ(stores.ViTriBai[817], 817);
  EXPECT_EQ(stores.ViTriBai[818], 0);
}

} // namespace
} // namespace talvora
