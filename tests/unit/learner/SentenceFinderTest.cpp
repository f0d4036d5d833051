// A sentence is found again in a pack with other texts.
#include "learner/SentenceFinder.h"

#include "support/ProgramRun.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::ProgramRun;
using test::StoredText;

/// A text of sentences, as its store has it.
StoredText textOf(int slot, const std::string& title, const std::vector<std::string>& sentences) {
  std::string text = title + "\r";
  for (const std::string& each : sentences)
    text += "_" + each;
  return {slot, text + "\r", ""};
}

const std::vector<std::string> Bank = {"The bank stands by the river. ", "We go there every day. "};

class SentenceFinderTest : public testing::Test {
 protected:
  SentenceFinderTest() { run.writeTexts({}, true); }

  /// The row of a word in the pack as it is now.
  WordRow rowIn(const std::string& word, int text, int sentence) {
    const TextCatalogue catalogue = this->catalogue();
    for (const SentencePlace& each : catalogue.all()) {
      if (each.kind == TextKind::Reading && each.text == text && each.sentence == sentence) {
        return {word, catalogue.fingerprint(), each};
      }
    }
    throw std::runtime_error("no such sentence");
  }
  /// The row of a word in a pack whose text it is.
  WordRow rowOfBank() {
    run.writeTexts({textOf(4, "One", Bank)});
    return rowIn("bank", 4, 2);
  }
  TextCatalogue catalogue() { return {run.folder.path(), run.folder.path(), systemFiles()}; }
  Found find(WordRow& row) { return SentenceFinder(catalogue()).find(row); }

  ProgramRun run;
};

TEST_F(SentenceFinderTest, ACatalogueTellsEachSentenceWithItsPlace) {
  run.writeTexts({textOf(1, "One", Bank)});
  const TextCatalogue catalogue = this->catalogue();
  const auto first = catalogue.at(6);
  ASSERT_TRUE(first);
  EXPECT_EQ(*first, (SentencePlace{TextKind::Reading, 1, 2, "One", Bank[0], 6}));
  EXPECT_EQ(catalogue.at(7), std::nullopt) << "in the middle of a sentence";
  EXPECT_EQ(catalogue.at(0), std::nullopt);
  EXPECT_EQ(catalogue.at(1'000'000), std::nullopt);
  EXPECT_EQ(catalogue.at(std::numeric_limits<std::int32_t>::min()), std::nullopt);
  EXPECT_EQ(catalogue.titleOf(TextKind::Reading, 1), "One");
  EXPECT_EQ(catalogue.listLine(TextKind::Reading, 1), "\t\tOne\r");
  EXPECT_EQ(catalogue.fingerprint().size(), 16U);
}

TEST_F(SentenceFinderTest, EverySentenceHasThePlaceThatTheCatalogueGivesIt) {
  run.writeTexts({textOf(1, "One", Bank), textOf(7, "Seven", {"Again. ", "And again`Third. "})});
  const TextCatalogue catalogue = this->catalogue();
  for (const SentencePlace& each : catalogue.all())
    EXPECT_EQ(catalogue.at(each.place), each) << each.title << " " << each.sentence;
}

TEST_F(SentenceFinderTest, AnotherPackHasAnotherFingerprint) {
  run.writeTexts({textOf(1, "One", Bank)});
  const std::string before = catalogue().fingerprint();
  EXPECT_EQ(catalogue().fingerprint(), before);
  run.writeTexts({textOf(1, "One", {Bank[0] + "x"})});
  EXPECT_NE(catalogue().fingerprint(), before);
}

TEST_F(SentenceFinderTest, WhatOnlyMovedIsFoundInItsText) {
  WordRow row = rowOfBank();
  run.writeTexts({textOf(1, "New", {"A new text."}), textOf(5, "One", {"First. ", Bank[0]})});
  EXPECT_EQ(find(row), Found::InItsText);
  EXPECT_EQ(row.where.text, 5);
  EXPECT_EQ(row.where.sentence, 3);
  EXPECT_EQ(catalogue().at(row.where.place)->words, Bank[0]);
}

TEST_F(SentenceFinderTest, OfTheSameSentenceInTwoTextsItsOwnIsTaken) {
  run.writeTexts({textOf(4, "One", Bank), textOf(2, "Other", Bank)});
  WordRow row = rowIn("bank", 4, 2);
  run.writeTexts({textOf(4, "Other", Bank), textOf(9, "One", Bank)});
  EXPECT_EQ(find(row), Found::InItsText);
  EXPECT_EQ(row.where.text, 9);
}

TEST_F(SentenceFinderTest, ASentenceThatWasChangedIsTheLikestOfItsText) {
  WordRow row = rowOfBank();
  run.writeTexts({textOf(4, "One", {"The river is long. ", "The old bank stands by the river. "})});
  EXPECT_EQ(find(row), Found::NearestInText);
  EXPECT_EQ(row.where.words, "The old bank stands by the river. ");
}

TEST_F(SentenceFinderTest, ASentenceWithoutTheWordIsNotItsSentence) {
  WordRow row = rowOfBank();
  run.writeTexts({textOf(4, "One", {"The banks stands by the river. "})});
  EXPECT_EQ(find(row), Found::Nowhere);
  EXPECT_EQ(row.where.place, 0);
  EXPECT_EQ(row.where.words, Bank[0]) << "kept as a text";
}

TEST_F(SentenceFinderTest, ATextThatIsCalledOtherwiseHasTheSameSentence) {
  WordRow row = rowOfBank();
  run.writeTexts({textOf(2, "Called otherwise", Bank)});
  EXPECT_EQ(find(row), Found::InAnotherText);
  EXPECT_EQ(row.where.title, "Called otherwise");
}

TEST_F(SentenceFinderTest, InTheSpeakingTextsToo) {
  WordRow row = rowOfBank();
  run.writeTexts({});
  run.writeTexts({textOf(9, "Talk", Bank)}, true);
  EXPECT_EQ(find(row), Found::InAnotherText);
  EXPECT_EQ(row.where.kind, TextKind::Speaking);
  EXPECT_LT(row.where.place, 0);
}

TEST_F(SentenceFinderTest, TheLikestSentenceOfAnotherTextIsTheLastHope) {
  WordRow row = rowOfBank();
  run.writeTexts({textOf(6, "Two", {"A bank. ", "The bank stood by the river. "})});
  EXPECT_EQ(find(row), Found::LikeInOtherText);
  EXPECT_EQ(row.where.words, "The bank stood by the river. ");
}

TEST_F(SentenceFinderTest, AWordOfWhichNothingIsKnownIsFoundNowhere) {
  run.writeTexts({textOf(4, "One", Bank)});
  WordRow row;
  row.word = "bank";
  row.where.place = 5;
  EXPECT_EQ(find(row), Found::Nowhere);
}

} // namespace
} // namespace talvora
