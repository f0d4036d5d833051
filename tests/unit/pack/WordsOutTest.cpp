// The words of the list on their way out of the program and back: tables, cards, entries as text.
#include "pack/words/CardDeck.h"
#include "pack/words/CardTables.h"
#include "pack/words/EntryText.h"
#include "pack/words/StableId.h"
#include "pack/words/Table.h"
#include "pack/words/WordCards.h"
#include "pack/words/WordListFile.h"

#include "pack/StreamText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

Fields fieldsOf(const std::string& text, char separator = ',') {
  const auto rows = tableRows(text, separator);
  return rows.empty() ? Fields() : rows.front().fields;
}

TEST(Table, FieldsThatNeedItStandInQuotationMarks) {
  EXPECT_EQ(tableRow({"a", "b,c", "say \"no\"", ""}, ','), "a,\"b,c\",\"say \"\"no\"\"\",\n");
  EXPECT_EQ(tableRow({"b,c"}, '\t'), "b,c\n");
}

TEST(Table, RowsComeBackAsTheyWereWritten) {
  const Fields fields = {"a", "two\nlines", "\"", "", ",;\t"};
  EXPECT_EQ(fieldsOf(tableRow(fields, ',')), fields);
  EXPECT_EQ(fieldsOf(tableRow(fields, '\t'), '\t'), fields);
}

TEST(Table, ARowKnowsItsLine) {
  const auto rows = tableRows("a\r\n\n\"b\nc\",d\ne", ',');
  ASSERT_EQ(rows.size(), 3U);
  EXPECT_EQ(rows[0].line, 1);
  EXPECT_EQ(rows[1].line, 3);
  EXPECT_THAT(rows[1].fields, ElementsAre("b\nc", "d"));
  EXPECT_EQ(rows[2].line, 5);
}

TEST(Table, AQuotationMarkThatIsNotClosedEndsWithItsText) {
  EXPECT_THAT(fieldsOf("a,\"b,c"), ElementsAre("a", "b,c"));
}

TEST(WordListFile, APlainListIsAWordALine) {
  const auto list = wordListFrom("\xEF\xBB\xBF"
                                 "Bank\nIreland\r\n\nin front of\n");
  ASSERT_EQ(list.words.size(), 3U);
  EXPECT_EQ(list.words[0].word, "bank");
  // A word that begins with "I" stays as it is, in the program too.
  EXPECT_EQ(list.words[1].word, "Ireland");
  EXPECT_EQ(list.words[2].word, "in front of");
  EXPECT_EQ(list.words[2].line, 4);
  EXPECT_THAT(list.refused, IsEmpty());
}

TEST(WordListFile, AColumnIsTakenByItsHeading) {
  const auto list = wordListFrom("Meaning;Word;Sentence\nbờ;bank;\"An old bank; here.\"\n");
  ASSERT_EQ(list.words.size(), 1U);
  EXPECT_EQ(list.words[0].word, "bank");
  EXPECT_EQ(list.words[0].sentence, "An old bank; here.");
}

TEST(WordListFile, ATableOfOursComesBack) {
  WordCard card;
  card.id = "63f4";
  card.word = "bank";
  card.sentence = "A \"bank\" & <more>.";
  card.title = "Phố";
  for (const std::string& table :
       {commaTableOf({{card, "", ""}}), cardTableOf({{card, "a.mp3", "b.mp3"}})}) {
    const auto list = wordListFrom(table);
    ASSERT_EQ(list.words.size(), 1U) << table;
    EXPECT_EQ(list.words[0].word, "bank");
    EXPECT_EQ(list.words[0].sentence, "A \"bank\" & <more>.");
    EXPECT_EQ(list.words[0].title, ownText("Phố"));
  }
}

TEST(WordListFile, WhatIsNoWordIsRefusedWithItsLine) {
  const auto list = wordListFrom("bank\nđường\n,\n42\nabcdefghijklmnopqrstu\n");
  EXPECT_EQ(list.words.size(), 1U);
  std::vector<int> lines;
  for (const RefusedLine& line : list.refused)
    lines.push_back(line.line);
  EXPECT_THAT(lines, ElementsAre(2, 3, 4, 5));
}

TEST(EntryText, AnEntryOfOursHasItsPronunciationAndItsSenses) {
  const auto text = entryTextOf(ownText("/gou/ (went, gone) A1_#động từ #1 đi: go home_^vd: We go. "
                                        "= Chúng tôi đi._2 trở nên_^cụm: #go on #tiếp tục"),
                                6);
  EXPECT_EQ(text.pronunciation, "/gou/");
  EXPECT_EQ(text.base, "");
  EXPECT_THAT(text.senses, ElementsAre("động từ 1 đi: go home", "2 trở nên"));
}

TEST(EntryText, AFormLeadsToItsBase) {
  const auto text = entryTextOf(ownText("_quá khứ của go_#động từ #1 đi_2 trở nên_3 diễn ra"), 2);
  EXPECT_EQ(text.base, "go");
  EXPECT_THAT(text.senses, ElementsAre("động từ 1 đi", "2 trở nên"));
}

TEST(EntryText, AWordThatIsAlsoAFormStaysItself) {
  EXPECT_EQ(
      entryTextOf(ownText("/'betə/ A1_#tính từ #tốt hơn_so sánh hơn của good_#tính từ #tốt"), 6)
          .base,
      "");
}

TEST(WordCards, TheWordIsMarkedWhereItStandsByItself) {
  const auto parts = markedSentence("The bankers like the Bank.", "bank");
  EXPECT_EQ(parts.before, "The bankers like the ");
  EXPECT_EQ(parts.word, "Bank");
  EXPECT_EQ(parts.after, ".");
  EXPECT_EQ(markedSentence("The bankers.", "bank").word, "");
}

TEST(WordCards, AnIdentityDependsOnTheTextAlone) {
  EXPECT_EQ(stableId("talvora bank"), "63f4b2f9f2f8edf3");
  EXPECT_NE(stableId("talvora bank"), stableId("talvora banks"));
}

TEST(CardDeck, AFieldIsSummedUpAsFlashCardProgramsDo) {
  // The first four bytes of the SHA-1 of "abc", as its standard gives it.
  EXPECT_EQ(fieldSum("abc"), 0xA9993E36U);
}

TEST(CardDeck, TheSameWordsGiveTheSameDeck) {
  WordCard card;
  card.id = stableId("talvora bank");
  card.word = "bank";
  const std::vector<SpokenCard> cards = {{card, "", ""}};
  EXPECT_EQ(deckOf(cards, {}, 1), deckOf(cards, {}, 1));
  EXPECT_THAT(deckOf(cards, {}, 1), HasSubstr("collection.anki2"));
}

} // namespace
} // namespace talvora::pack
