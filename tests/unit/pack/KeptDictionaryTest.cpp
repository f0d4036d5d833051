// A pack's dictionary is kept exactly as long as its sources and its files are what they were.
#include "pack/KeptDictionary.h"

#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

namespace talvora::pack {
namespace {

void write(const std::filesystem::path& path, const std::string& text) {
  std::filesystem::create_directories(path.parent_path());
  std::ofstream(path, std::ios::binary) << text;
}

/// A tree of sources, and a pack whose dictionary was made of it.
class KeptDictionaryTest : public testing::Test {
 protected:
  void SetUp() override {
    options.source = folder / "content";
    options.wordNet = folder / "wordnet";
    options.wordNetLicence = folder / "licence";
    options.wordLists = {folder / "list"};
    options.earlierPack = folder / "pack";
    write(options.source / "dictionary" / "a.txt", "bank\n");
    write(options.source / "reading" / "1.txt", "A text.\n");
    write(options.wordNet / "index.noun", "bank n\n");
    write(options.wordLists.front(), "banks\n");
    makePack();
  }

  void makePack() const {
    std::vector<PackFile> files;
    for (const char* name : {"datatu.txt", "data.mtd", "data.avt", "datatuD.txt", "dataD.vt",
                             "dataD.av", "pronunciation.txt"}) {
      files.push_back({name, std::string("bytes of ") + name});
    }
    KeptDictionary(options).addNote(files);
    for (const PackFile& file : files)
      write(*options.earlierPack / file.name, file.bytes);
  }
  [[nodiscard]] bool stands() const { return KeptDictionary(options).stands(); }

  const test::TemporaryFolder own;
  const std::filesystem::path& folder = own.path();
  Options options;
};

TEST_F(KeptDictionaryTest, IsKeptWhenNothingChanged) {
  EXPECT_TRUE(stands());
}

TEST_F(KeptDictionaryTest, IsKeptWhenATextWasCorrected) {
  write(options.source / "reading" / "1.txt", "A better text.\n");
  EXPECT_TRUE(stands());
}

TEST_F(KeptDictionaryTest, IsMadeAnewWhenASourceChanged) {
  write(options.source / "dictionary" / "a.txt", "bank, too\n");
  EXPECT_FALSE(stands());
}

TEST_F(KeptDictionaryTest, IsMadeAnewWhenASourceCameOrWent) {
  write(options.source / "dictionary" / "b.txt", "");
  EXPECT_FALSE(stands());
  std::filesystem::remove(options.source / "dictionary" / "b.txt");
  EXPECT_TRUE(stands());
  std::filesystem::remove(options.wordNet / "index.noun");
  EXPECT_FALSE(stands());
}

TEST_F(KeptDictionaryTest, IsMadeAnewWhenAWordListOrAPronunciationChanged) {
  write(options.source / "pronunciation.txt", "");
  EXPECT_FALSE(stands());
  std::filesystem::remove(options.source / "pronunciation.txt");
  EXPECT_TRUE(stands());
  write(options.source / "accepted.txt", "banked\n");
  EXPECT_FALSE(stands());
  std::filesystem::remove(options.source / "accepted.txt");
  EXPECT_TRUE(stands());
  write(options.wordLists.front(), "banks\nbanked\n");
  EXPECT_FALSE(stands());
}

TEST_F(KeptDictionaryTest, IsMadeAnewWhenAFileOfThePackIsNotWhatWasMade) {
  write(*options.earlierPack / "data.avt", "other bytes");
  EXPECT_FALSE(stands());
  std::filesystem::remove(*options.earlierPack / "data.avt");
  EXPECT_FALSE(stands());
}

TEST_F(KeptDictionaryTest, IsMadeAnewWithoutItsNote) {
  std::filesystem::remove(*options.earlierPack / KeptDictionary::NoteName);
  EXPECT_FALSE(stands());
}

TEST_F(KeptDictionaryTest, IsNeverKeptForASmallListOrWithoutAPack) {
  options.smallWordList = 200;
  EXPECT_FALSE(stands());
  options.smallWordList.reset();
  options.earlierPack.reset();
  EXPECT_FALSE(stands());
}

} // namespace
} // namespace talvora::pack
