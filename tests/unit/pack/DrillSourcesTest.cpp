#include "formats/Integers.h"
#include "pack/AnalysisSource.h"
#include "pack/AnalysisStore.h"
#include "pack/ListeningSource.h"
#include "pack/ListeningStore.h"
#include "pack/SpeakingSource.h"
#include "pack/StreamText.h"
#include "pack/Told.h"
#include "support/TestFolder.h"
#include "surface/RichText.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

using testing::ElementsAre;

constexpr std::string_view TwoItems = "// comment\n3: She sells bread.\n+ She sells it.\n"
                                      "- She buys it.\n- She eats it.\n- She hides it.\n\n"
                                      "1: Good morning.\n+ Một.\n- Hai.\n- Ba.\n- Bốn.\n";

// -- Listening units.

TEST(ListeningSource, ReadsItemsAndWritesThemBack) {
  Problems problems;
  const ListeningUnit unit = parseListeningUnit(TwoItems, "unit-1.txt", problems);
  EXPECT_THAT(told(problems), ElementsAre());
  ASSERT_EQ(unit.size(), 2U);
  EXPECT_EQ(unit[0].number, 3);
  EXPECT_EQ(unit[0].sentence, "She sells bread.");
  EXPECT_EQ(unit[0].right, "She sells it.");
  EXPECT_EQ(unit[0].wrong[2], "She hides it.");
  EXPECT_EQ(writeListeningUnit(unit), std::string(TwoItems.substr(11)));
}

TEST(ListeningSource, TellsWhereAnItemIsWrong) {
  const auto problemsOf = [](const std::string& text) {
    Problems problems;
    static_cast<void>(parseListeningUnit(text, "u", problems));
    return told(problems);
  };
  EXPECT_THAT(problemsOf(""), ElementsAre("u: the unit has no items"));
  EXPECT_THAT(problemsOf("She sells.\n+ a\n- b\n- c\n- d\n"),
              ElementsAre(testing::StartsWith("u:1:1: an item begins with its sentence")));
  EXPECT_THAT(problemsOf("1: He \"said\" so.\n+ a\n- b\n- c\n- d\n"),
              ElementsAre("u:1:7: \"\"\" cannot be spoken"));
  EXPECT_THAT(problemsOf("1: He said so.\n+ a\n- b\n- b\n- a\n"),
              ElementsAre("u:4:3: the item has this answer already",
                          "u:5:3: the item has this answer already"));
  EXPECT_THAT(problemsOf("1: He said so.\n+ a\n- b\n- c\n"),
              ElementsAre("u:5:1: the item above has not one sentence and four answers"));
  EXPECT_THAT(problemsOf("1: He said so.\n- a\n- b\n- c\n- d\n"),
              ElementsAre("u:2:1: an item is its sentence, one \"+ \" and three \"- \""));
  EXPECT_THAT(problemsOf("1: He said so.\n+ a_b\n- -b\n- c\n- d\n"),
              ElementsAre("u:2:4: \"_\" is a mark and cannot stand in this text",
                          "u:3:3: an answer cannot begin with a hyphen"));
}

TEST(ListeningSource, SentencesMustStandInTheScript) {
  Problems problems;
  ReadingSource scripts;
  scripts.texts[400] = parseReadingText(
      "title: One\n\nGood day.\n= Chào.\nI am Lan.\n= Tôi là Lan.\n", "400", problems);
  ListeningSource source;
  source.units[1] = parseListeningUnit("2: I am Lan.\n+ a\n- b\n- c\n- d\n\n"
                                       "1: Good night.\n+ a\n- b\n- c\n- d\n\n"
                                       "3: Bye.\n+ a\n- b\n- c\n- d\n",
                                       "u", problems);
  source.units[2] = parseListeningUnit("1: Hello.\n+ a\n- b\n- c\n- d\n", "v", problems);
  ASSERT_TRUE(problems.none());
  checkAgainstScripts(source, scripts, problems);
  EXPECT_THAT(told(problems), ElementsAre("u:7:4: sentence 1 of text 400 is \"Good day.\"",
                                          "u:13:4: there is no sentence 3 of text 400",
                                          "v:1:4: sentence 1 of text 400 is \"Good day.\""));
}

TEST(ListeningSource, ReadsThePage) {
  Problems problems;
  const ListeningPageText page =
      parseListeningPage("instruction: Nghe câu.\nlabels: 1) 2) 3) 4)\n", "t", problems);
  EXPECT_TRUE(problems.none());
  EXPECT_EQ(writeListeningPage(page), "instruction: Nghe câu.\nlabels: 1) 2) 3) 4)\n");
  static_cast<void>(parseListeningPage("labels: A B C D\nx\n", "t", problems));
  EXPECT_THAT(told(problems), ElementsAre(testing::StartsWith("t:1:9: there must be four labels"),
                                          testing::StartsWith("t:2:1: a line must be"),
                                          "t: the page has no instruction", testing::_));
}

class ListeningStoreTest : public testing::Test {
 protected:
  ListeningStoreTest() {
    source.page = defaultListeningPage();
    for (const int unit : {1, 2, 4})
      source.units[unit] = parseListeningUnit(TwoItems, "u", problems);
    source.units[2][0].sentence = "Second unit.";
  }

  /// Unit and sentence of a record.
  std::string head(const TextStore& store, std::size_t record) {
    const auto plain = storedUntil(store.stream, integerAt(store.positions, record), '@');
    const std::size_t end = plain->find('\r', plain->find('\r') + 1);
    return plain->substr(0, end);
  }

  Problems problems;
  ListeningSource source;
};

TEST_F(ListeningStoreTest, EveryUnitIsPlayedFromTheRecordAheadOfItsOwn) {
  const TextStore store = compileListeningItems(source);
  EXPECT_EQ(store.positions.size(), 4U * 556);
  EXPECT_EQ(head(store, 1), "1 3\rShe sells bread.");
  EXPECT_EQ(head(store, 2), "1 1\rGood morning.");
  EXPECT_EQ(head(store, 3), "1 3\rSecond unit.");
  EXPECT_EQ(head(store, 4), "2 1\rGood morning.");
  EXPECT_EQ(head(store, 5), "2 1\r" + openSlotTitle());
  EXPECT_EQ(head(store, 6), "3 3\rShe sells bread.");
  EXPECT_EQ(head(store, 556), "10 1\r" + openSlotTitle());
}

TEST_F(ListeningStoreTest, GivesTheSourcesBack) {
  const TextStore store = compileListeningItems(source);
  const ListeningSource back =
      decodeListening(store.positions, store.stream, compileListeningPage(source.page), problems);
  EXPECT_THAT(told(problems), ElementsAre());
  ASSERT_EQ(back.units.size(), 3U);
  for (const auto& [unit, items] : source.units) {
    EXPECT_EQ(writeListeningUnit(back.units.at(unit)), writeListeningUnit(items));
  }
  EXPECT_EQ(writeListeningPage(back.page), writeListeningPage(source.page));
}

TEST_F(ListeningStoreTest, AFullStoreGivesTheSourcesBack) {
  source.units.clear();
  for (int unit = 1; unit <= 9; ++unit) {
    const ListeningUnit two = parseListeningUnit(TwoItems, "u", problems);
    const std::size_t items = unit == 9 ? 555 - 8 * 62 : 62;
    while (source.units[unit].size() < items)
      source.units[unit].push_back(two.front());
  }
  const TextStore store = compileListeningItems(source);
  const ListeningSource back =
      decodeListening(store.positions, store.stream, compileListeningPage(source.page), problems);
  EXPECT_TRUE(problems.none());
  for (int unit = 1; unit <= 9; ++unit)
    EXPECT_EQ(back.units.at(unit).size(), source.units[unit].size());
}

TEST_F(ListeningStoreTest, ThePagesPlacesStandWhereTheProgramCounts) {
  const std::string text = readRichText(compileListeningPage(source.page), {}).text;
  EXPECT_EQ(text.substr(2, 35), defaultListeningPage().instruction);
  EXPECT_EQ(text.substr(40, 16), "A. \rB. \rC. \rD. \r");
  EXPECT_GE(text.size(), 57U);
}

TEST_F(ListeningStoreTest, DamagedItemsAreNamed) {
  const TextStore store = compileListeningItems(source);
  static_cast<void>(decodeListening(store.positions, store.stream.substr(0, 30), "", problems));
  EXPECT_THAT(told(problems), ElementsAre("dataABCD.rtf: the page is too short",
                                          "dataN.av: item 1 cannot be read"));
}

// -- Speaking texts.

TEST(SpeakingSource, TextsAndHeadingsGoThroughTheStoreAndBack) {
  const test::TestFolder folder;
  const std::string text = "title: Hello\n\nGood morning.\n= Chào.\n";
  folder.write("2025-hello.txt", text);
  folder.write("headings.txt", "2024\tChào hỏi\n");
  Problems problems;
  const ReadingSource source = readSpeaking(folder.path(), problems);
  EXPECT_THAT(told(problems), ElementsAre());
  const TextStore store = compileSpeakingTexts(source);
  EXPECT_EQ(store.positions.size(), 4U * (2 * 2025 + 1));
  const ReadingSource back = decodeSpeaking(store.positions, store.stream, problems);
  EXPECT_EQ(writeReadingText(back.texts.at(2025)), text);
  EXPECT_EQ(back.headings.count(2024), 1U);
  EXPECT_TRUE(problems.none());
}

TEST(SpeakingSource, NamesHaveFourDigits) {
  const test::TestFolder folder;
  folder.write("002-hello.txt", "title: A\n\nB.\n= C.\n");
  folder.write("2026-hello.txt", "title: A\n\nB.\n= C.\n");
  Problems problems;
  static_cast<void>(readSpeaking(folder.path(), problems));
  EXPECT_THAT(told(problems),
              testing::Each(testing::HasSubstr("NNNN-slug.txt with a slot from 0001 to 2025")));
  EXPECT_EQ(problems.all().size(), 2U);
}

// -- Analyses.

std::string block(const std::string& word, const std::string& more = "") {
  return "word: " + word +
         "\nclass: c\nposition: p\nfunction: f\nidea: i\nneeded: n\nbecause: b?\n" + more;
}

ReadingSource textFour(Problems& problems) {
  ReadingSource readings;
  readings.texts[4] =
      parseReadingText("title: T\n\nI get up, Lan.\n= A.\n“Then I eat.”\n= B.\n", "4", problems);
  return readings;
}

TEST(AnalysisSource, ReadsBlocksAndWritesThemBack) {
  Problems problems;
  const std::string source = block("I") + "\n" + block("get up", "lesson: 12\nlesson: 7\n");
  const Analysis analysis = parseAnalysis(source, "01.txt", problems);
  EXPECT_THAT(told(problems), ElementsAre());
  ASSERT_EQ(analysis.size(), 2U);
  EXPECT_EQ(analysis[1].field(AnalysisField::Word), "get up");
  EXPECT_THAT(analysis[1].lessons, ElementsAre(12, 7));
  EXPECT_EQ(writeAnalysis(analysis), source);
}

TEST(AnalysisSource, TellsWhereABlockIsWrong) {
  const auto problemsOf = [](const std::string& text) {
    Problems problems;
    static_cast<void>(parseAnalysis(text, "a", problems));
    return told(problems);
  };
  EXPECT_THAT(problemsOf(""), ElementsAre("a: the analysis has no stretches"));
  EXPECT_THAT(problemsOf("word: I\nclass: c\n\n"),
              ElementsAre("a:3:1: \"position: ...\" is missing in the block above"));
  EXPECT_THAT(problemsOf(block("I", "lesson: 358\n")),
              ElementsAre("a:8:9: a lesson is a number from 1 to 357"));
  EXPECT_THAT(problemsOf(block("I", "lessons: 3\n")),
              ElementsAre("a:8:1: \"lesson: ...\" must stand here"));
  EXPECT_THAT(problemsOf(block("I&you")),
              ElementsAre("a:1:8: \"&\" is a mark and cannot stand in this text"));
}

TEST(AnalysisSource, CutsTheTextIntoItsStretches) {
  Problems problems;
  ReadingSource readings = textFour(problems);
  AnalysisSource source;
  source.analyses[1] = parseAnalysis(block("I") + "\n" + block("get up") + "\n" + block("Lan.") +
                                         "\n" + block("Then") + "\n" + block("I eat"),
                                     "01", problems);
  markStretches(source, readings, problems);
  EXPECT_THAT(told(problems), ElementsAre());
  const Paragraph& paragraph = readings.texts.at(4).paragraphs.front();
  EXPECT_EQ(paragraph[0].english, "I|get up,|Lan.");
  EXPECT_EQ(utf8Of(paragraph[1].english), "“Then|I eat.”");
  unmarkStretches(readings);
  EXPECT_EQ(readings.texts.at(4).paragraphs.front()[0].english, "I get up, Lan.");
}

TEST(AnalysisSource, StretchesThatDoNotFitTheTextAreTold) {
  const auto problemsOf = [](const std::string& text, int slot = 1) {
    Problems problems;
    ReadingSource readings = textFour(problems);
    AnalysisSource source;
    source.analyses[slot] = parseAnalysis(text, "01", problems);
    markStretches(source, readings, problems);
    return told(problems);
  };
  EXPECT_THAT(problemsOf(block("We")), ElementsAre("01:1:7: text 4 has \"I\" here"));
  EXPECT_THAT(problemsOf(block("I get up Lan Then")),
              ElementsAre("01:1:7: text 4 has \"I get up, Lan.\" here"));
  EXPECT_THAT(problemsOf(block("I get up, Lan")),
              ElementsAre("01:1:7: text 4 goes on: \"“Then I eat.”\""));
  EXPECT_THAT(problemsOf(block("I get up, Lan") + "\n" + block("Then I eat") + "\n" + block("x")),
              ElementsAre("01:17:7: text 4 has no such stretch: it is at its end"));
  EXPECT_THAT(problemsOf(block("I"), 2), ElementsAre("01:1:7: text 5 is not there"));
}

TEST(AnalysisStore, GivesTheSourcesBack) {
  Problems problems;
  AnalysisSource source;
  source.analyses[1] =
      parseAnalysis(block("I", "lesson: 3\n") + "\n" + block("Đi"), "01", problems);
  source.analyses[11] = parseAnalysis(block("End"), "11", problems);
  const TextStore store = compileAnalysisTexts(source);
  EXPECT_EQ(store.positions.size(), 44U);
  const AnalysisSource back = decodeAnalyses(store.positions, store.stream, problems);
  EXPECT_THAT(told(problems), ElementsAre());
  ASSERT_EQ(back.analyses.size(), 2U);
  EXPECT_EQ(writeAnalysis(back.analyses.at(1)), writeAnalysis(source.analyses.at(1)));
  EXPECT_EQ(writeAnalysis(back.analyses.at(11)), writeAnalysis(source.analyses.at(11)));
}

TEST(AnalysisStore, AnEntryIsLaidOutAsTheProgramReadsIt) {
  Problems problems;
  AnalysisSource source;
  source.analyses[1] = parseAnalysis(block("I", "lesson: 3\n") + "\n" + block("go"), "1", problems);
  const TextStore store = compileAnalysisTexts(source);
  EXPECT_EQ(storedUntil(store.stream, 0, '@'),
            "\r| I\r| c\r| p\r| f\r| i\r| n | b?\r?3\r^\r| go\r| c\r| p\r| f\r| i\r| n | b?\r");
}

TEST(AnalysisStore, DamagedAnalysesAreNamed) {
  Problems problems;
  std::string stream;
  appendStored(stream, "\r| half@");
  static_cast<void>(decodeAnalyses(std::string(44, '\0'), stream, problems));
  EXPECT_EQ(problems.all().size(), 11U);
  EXPECT_EQ(told(problems).front(), "dataPt.v: analysis 1 cannot be read");
}

} // namespace
} // namespace talvora::pack
