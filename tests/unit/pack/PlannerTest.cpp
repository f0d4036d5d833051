// The book of words and the sheets that texts are written against.
#include "pack/Planner.h"

#include "pack/Told.h"
#include "support/TestFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

using test::TestFolder;
using testing::ElementsAre;
using testing::HasSubstr;

std::vector<std::string> textsOf(const std::vector<TextWord>& words) {
  std::vector<std::string> texts;
  for (const TextWord& word : words)
    texts.push_back((word.opens ? "^" : "") + word.text);
  return texts;
}

// -- Running words.

TEST(TextWords, CutsAtHyphensAndApostrophes) {
  EXPECT_THAT(textsOf(textWords("Lan's cat can't see thirty-five birds.")),
              ElementsAre("^Lan", "cat", "can", "see", "thirty", "five", "birds"));
  EXPECT_THAT(textsOf(textWords("At 10 o'clock they won't come to the boys' room.")),
              ElementsAre("^At", "o'clock", "they", "will", "come", "to", "the", "boys", "room"));
}

TEST(TextWords, TellsWhatOpensASentenceOrASpeech) {
  EXPECT_THAT(textsOf(textWords("She says, \x93Too late.\x94 Then she runs.")),
              ElementsAre("^She", "says", "^Too", "late", "^Then", "she", "runs"));
}

// -- The plan.

TEST(CoursePlan, ReadsSeriesAndFindsThemBySlot) {
  Problems problems;
  const auto plan = parsePlan("// comment\n4-14 free A1 150-180 8-10 - aims\n"
                              "16-40 story A1 80-120 6-8 2 holds\n"
                              "42-78 story A1 80-120 6-8 2 known,sentence\n",
                              "plan.txt", problems);
  EXPECT_THAT(told(problems), ElementsAre());
  ASSERT_EQ(plan.size(), 3U);
  EXPECT_EQ(seriesOf(plan, 15), nullptr);
  ASSERT_NE(seriesOf(plan, 40), nullptr);
  EXPECT_EQ(seriesOf(plan, 40)->newLemmas, 2);
  EXPECT_TRUE(seriesOf(plan, 40)->holds(Budget::Return));
  EXPECT_TRUE(seriesOf(plan, 42)->holds(Budget::Known));
  EXPECT_FALSE(seriesOf(plan, 42)->holds(Budget::Return));
  EXPECT_FALSE(seriesOf(plan, 4)->holds(Budget::Words));
  EXPECT_FALSE(seriesOf(plan, 4)->newLemmas.has_value());
}

TEST(CoursePlan, TellsWhereARowIsWrong) {
  Problems problems;
  static_cast<void>(parsePlan("4 free A1 150-180 8-10 - aims\n5-6 tale A7 9-1 8-10 x soon\n1-9\n"
                              "6-7 topic B1 1-2 1-2 3 aims\n",
                              "p", problems));
  EXPECT_THAT(told(problems),
              ElementsAre(HasSubstr("p:1:1: slots are two numbers"),
                          HasSubstr("p:2:5: a series is"), HasSubstr("p:2:10: a level is"),
                          HasSubstr("p:2:13: words a text are"),
                          HasSubstr("p:2:22: new lemmas are"), HasSubstr("p:2:24: a row closes"),
                          HasSubstr("p:3:1: a row is"), HasSubstr("p:4:1: the slots of a series")));
}

// -- Lemmas and names.

ReadingText textOf(const std::vector<std::string>& sentences) {
  ReadingText text{"T", {{}}};
  for (const std::string& sentence : sentences)
    text.paragraphs.front().push_back({sentence, "x"});
  return text;
}

std::vector<OwnEntry> dictionary() {
  Problems problems;
  return parseDictionary(
      "be\n  v. là\n  forms: was, been\n\nbuild\n  v. xây\n  forms: built, built\n\n"
      "building\n  n. nhà\n\nboat\n  n. thuyền\n\nMonday\n  n. thứ hai\n",
      "d", problems);
}

TEST(Lemmas, LeadsFormsToTheirHeadWords) {
  const Lemmas lemmas(dictionary(), {"boats", "building", "builds"});
  EXPECT_THAT(lemmas.of("boats"), ElementsAre("boat"));
  EXPECT_THAT(lemmas.of("been"), ElementsAre("be"));
  EXPECT_THAT(lemmas.of("building"), ElementsAre("building", "build"));
  EXPECT_THAT(lemmas.of("lotus"), ElementsAre("lotus"));
  EXPECT_FALSE(lemmas.hasEntry("lotus"));
  EXPECT_THAT(lemmas.heads(), ElementsAre("be", "boat", "build", "building"));
}

TEST(Lemmas, CountTheNextOfKinAsKnown) {
  Problems problems;
  const auto own = parseDictionary("quick\n  adj. nhanh\n\nquickly\n  adv. nhanh\n\n"
                                   "hard\n  adj. cứng\n\nhardly\n  adv. hầu như không\n\n"
                                   "gentle\n  adj. dịu\n\ngently\n  adv. dịu dàng\n\n"
                                   "swim\n  v. bơi\n  forms: swam, swum\n\n"
                                   "swimming\n  n. môn bơi\n",
                                   "d", problems);
  const Lemmas lemmas(own, {"swimming"});
  EXPECT_THAT(lemmas.of("quickly"), ElementsAre("quickly", "quick"));
  EXPECT_THAT(lemmas.of("quick"), ElementsAre("quick", "quickly"));
  EXPECT_THAT(lemmas.of("gently"), ElementsAre("gently", "gentle"));
  EXPECT_THAT(lemmas.of("hardly"), ElementsAre("hardly")) << "it means something else";
  EXPECT_THAT(lemmas.of("swam"), ElementsAre("swim", "swimming"));
  EXPECT_THAT(lemmas.of("swimming"), ElementsAre("swimming", "swim"));
}

TEST(Lemmas, TakesLevelsAndTheCommonerReadingFromTheEntry) {
  Problems problems;
  const auto own = parseDictionary("saw B1\n  n. cái cưa\n  forms-first\n\nsee A1\n  v. thấy\n"
                                   "  forms: saw, seen\n",
                                   "d", problems);
  const Lemmas lemmas(own, {});
  EXPECT_THAT(lemmas.of("saw"), ElementsAre("see", "saw"));
  EXPECT_EQ(lemmas.levelOf("saw"), "B1");
  EXPECT_EQ(lemmas.levelOf("lotus"), "");
}

TEST(NameFinder, KnowsNamesByTheirCapitals) {
  ReadingSource readings;
  readings.texts[4] =
      textOf({"Hue is old.", "We love Hue.", "May I come in May?", "He may go.", "Boats pass."});
  const NameFinder names(readings);
  EXPECT_TRUE(names.isName({"Hue", true}));
  EXPECT_TRUE(names.isName({"May", false}));
  EXPECT_FALSE(names.isName({"May", true})) << "it is met in small letters as well";
  EXPECT_FALSE(names.isName({"Boats", true})) << "it only opens a sentence";
  EXPECT_FALSE(names.isName({"I", false}));
}

// -- The book.

LemmaBook bookOf(const ReadingSource& readings, const std::vector<int>& slots) {
  const Lemmas lemmas(dictionary(), NameFinder(readings).words());
  return {readings, slots, lemmas};
}

TEST(LemmaBook, CountsWhatATextBrings) {
  ReadingSource readings;
  readings.texts[4] = textOf({"The boat was old."});
  readings.texts[5] = textOf({"Old boats were built.", "Minh builds the boat."});
  const LemmaBook book = bookOf(readings, {4, 5, 6});
  EXPECT_THAT(book.knownBefore(5), ElementsAre("be", "boat", "old", "the"));
  const TextWords* text = book.textAt(5);
  ASSERT_NE(text, nullptr);
  EXPECT_EQ(text->words, 8);
  EXPECT_EQ(text->sentences, 2);
  EXPECT_THAT(text->newLemmas, ElementsAre("build", "minh"))
      << "only one place shows the name, and it opens a sentence";
  EXPECT_EQ(text->lemmas.at("build"), 2);
  EXPECT_EQ(text->unknown, 2);
  EXPECT_DOUBLE_EQ(text->knownShare(), 75);
  EXPECT_EQ(text->longest, "Old boats were built.");
  EXPECT_EQ(book.textAt(6), nullptr);
  EXPECT_EQ(book.openAhead(6), 0);
}

std::vector<std::string> lemmasOf(const std::vector<DueLemma>& due) {
  std::vector<std::string> lemmas;
  for (const DueLemma& each : due)
    lemmas.push_back(each.lemma + " " + std::to_string(each.lastSlot));
  return lemmas;
}

TEST(LemmaBook, AsksForANewLemmaInEachWindow) {
  ReadingSource readings;
  readings.texts[4] = textOf({"boat"});
  readings.texts[6] = textOf({"boats"});
  // Slot 5 is a heading and counts as no text.
  std::vector<int> slots{4};
  for (int slot = 6; slot <= 60; ++slot)
    slots.push_back(slot);
  const LemmaBook book = bookOf(readings, slots);
  EXPECT_THAT(lemmasOf(book.dueAt(6)), ElementsAre("boat 8"));
  EXPECT_THAT(lemmasOf(book.dueAt(7)), ElementsAre("boat 15"));
  EXPECT_THAT(lemmasOf(book.dueAt(15)), ElementsAre("boat 15"));
  EXPECT_THAT(lemmasOf(book.dueAt(16)), ElementsAre());
}

TEST(LemmaBook, MissesALemmaOnlyWhenTheWindowIsWritten) {
  ReadingSource readings;
  readings.texts[4] = textOf({"boat"});
  readings.texts[5] = textOf({"the"});
  readings.texts[6] = textOf({"the"});
  const std::vector<int> slots{4, 5, 6, 7, 8};
  EXPECT_THAT(lemmasOf(bookOf(readings, slots).missedOf(4)), ElementsAre());
  readings.texts[7] = textOf({"the"});
  EXPECT_THAT(lemmasOf(bookOf(readings, slots).missedOf(4)), ElementsAre("boat 7"));
  readings.texts[7] = textOf({"the boat"});
  EXPECT_THAT(lemmasOf(bookOf(readings, slots).missedOf(4)), ElementsAre());
}

// -- The sheets.

TEST(Planner, WritesASheetForAnOpenSlotAndForAText) {
  TestFolder folder;
  folder.write("plan.txt", "4-6 story A1 5-9 4-6 1 aims\n");
  folder.write("reading/004-old.txt", "title: Old\n\nThe boat was old.\n= Thuyền cũ.\n");
  folder.write("reading/005-new.txt",
               "title: New\n\nWe build a boat.\n= Ta đóng thuyền.\nWe build.\n= Ta đóng.\n");
  folder.write("dictionary/b.txt", "boat\n  n. thuyền\n\nbuild\n  v. xây\n");
  Problems problems;
  const Planner planner = readPlanner(folder.path(), problems);
  EXPECT_THAT(told(problems), ElementsAre());
  EXPECT_THAT(overview(planner),
              HasSubstr("5    6      3.0         50.0     3    1     0       7"));
  const std::string written = sheet(planner, 5, Detail::Full);
  EXPECT_THAT(written, HasSubstr("2 sentences, 3.0 words a sentence (too few)"));
  EXPECT_THAT(written, HasSubstr("New lemmas: 3 of at most 1 (too many)\n"
                                 "  we 2x NO-ENTRY, build 2x, a 1x ONCE NO-ENTRY\n"));
  EXPECT_THAT(written, HasSubstr("Returned: 1 lemmas that were due\n  boat\n"));
  EXPECT_THAT(written, HasSubstr("Known by then: 4 lemmas from 1 texts\n  boat, old, the, was\n"));
  const std::string open = sheet(planner, 6, Detail::Short);
  EXPECT_THAT(open, HasSubstr("Slot 6: open\nSeries 4-6, story, A1: 5 to 9 words"));
  EXPECT_THAT(open, HasSubstr("within 3 texts: 6\n  a 6, build 6, old 6, the 6, was 6, we 6\n"));
}

} // namespace
} // namespace talvora::pack
