// Reading of the WordNet database.
#include "pack/WordNet.h"

#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace talvora::pack {
namespace {

/// A database of two words in a folder of its own.
class SmallDatabase : public testing::Test {
 protected:
  void SetUp() override {
    for (const char* part : {"noun", "verb", "adj", "adv"}) {
      write("index." + std::string(part), "  1 licence\n");
      write("data." + std::string(part), "  1 licence\n");
      write(std::string(part) + ".exc", "");
    }
    const std::string first =
        "00000000 15 n 02 New_York 0 Gotham 0 000 | a city; \"in New York\"  \n";
    const std::string second =
        "000000" + std::to_string(first.size()) + " 15 n 01 ox 0 000 | a `tame' animal  \n";
    write("data.noun", first + second);
    write("index.noun", "  1 licence\nnew_york n 1 0 1 0 00000000  \nox n 1 1 @ 1 0 000000" +
                            std::to_string(first.size()) + "  \n");
    write("noun.exc", "oxen ox\ncrying ox\n");
  }

  void write(const std::string& name, const std::string& text) {
    std::ofstream(folder_.path() / name) << text;
  }

  test::TemporaryFolder folder_;
};

TEST_F(SmallDatabase, GivesSpellingsDefinitionsAndExceptions) {
  Problems problems;
  const WordNet wordNet = readWordNet(folder_.path(), problems);
  ASSERT_TRUE(problems.none()) << describe(problems.all().front());
  ASSERT_EQ(wordNet.words.size(), 2U);
  EXPECT_EQ(wordNet.words[0].head, "New York");
  EXPECT_EQ(wordNet.words[0].senses.at(0).text, "a city");
  EXPECT_EQ(wordNet.words[1].senses.at(0).text, "a 'tame' animal");
  ASSERT_EQ(wordNet.exceptions.at("ox").size(), 1U);
  EXPECT_EQ(wordNet.exceptions.at("ox")[0].form, "oxen");
}

TEST_F(SmallDatabase, AnIndexThatDoesNotFitItsDataIsReported) {
  write("index.noun", "ox n 1 1 @ 1 0 00000007  \n");
  Problems problems;
  static_cast<void>(readWordNet(folder_.path(), problems));
  ASSERT_EQ(problems.all().size(), 1U);
  EXPECT_EQ(problems.all()[0].message, "the line does not fit its database");
}

TEST(WordNet, AMissingDatabaseIsReported) {
  Problems problems;
  static_cast<void>(readWordNet("/nowhere/at/all", problems));
  EXPECT_FALSE(problems.none());
}

TEST(WordNet, DefinitionsAreCutAndCleaned) {
  EXPECT_EQ(definitionOf("a thing; \"it was a thing\"; \"two\""), "a thing");
  EXPECT_EQ(definitionOf("marked # here"), "");
  EXPECT_EQ(definitionOf("caf\xC3\xA9"), "");
  EXPECT_EQ(definitionOf("\"only an example\""), "");
  const std::string cut = definitionOf("word " + std::string(60, 'a') + " " + std::string(60, 'b'));
  EXPECT_EQ(cut, "word " + std::string(60, 'a') + "...");
}

} // namespace
} // namespace talvora::pack
