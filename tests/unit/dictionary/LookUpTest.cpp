#include "DictionaryRun.h"

#include "text/WordForm.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace talvora {
namespace {

using test::DictionaryRun;
using test::Word;

std::vector<Word> someWords() {
  return {{"able", "_can"},      {"about", "_near"},        {"fly", "_to move in air"},
          {"make", "_to build"}, {"study", "_learn"},       {"run", "_fast"},
          {"walk", "_on foot"},  {"well-known", "_famous"}, {"x-ray", "_ray"},
          {"zoo", "_animals"},   {"zone", "_place"}};
}

class LookUpTest : public testing::Test {
 protected:
  DictionaryRun run{someWords()};
};

TEST_F(LookUpTest, FindsAWordAsItStands) {
  run.lookUp("Able");
  EXPECT_EQ(run.state.word.TuHienTai, "Able");
  EXPECT_EQ(run.state.word.TuDaBam, "Able");
  EXPECT_EQ(run.shown(), "Able \r - can\r");
  EXPECT_TRUE(run.state.word.NghiaHienTai.empty());
}

TEST_F(LookUpTest, FindsAReducedForm) {
  for (const auto& [clicked, found] : std::map<std::string, std::string>{
           {"flies", "fly"}, {"making", "make"}, {"studied", "study"}}) {
    run.lookUp(clicked);
    EXPECT_EQ(run.state.word.TuHienTai, found);
    EXPECT_EQ(run.state.word.TuDaBam, clicked);
    EXPECT_TRUE(run.shown().starts_with(found + " ")) << run.shown();
  }
}

TEST_F(LookUpTest, FindsAShortenedForm) {
  run.lookUp("running");
  EXPECT_EQ(run.state.word.TuHienTai, "run");
  run.lookUp("walked");
  EXPECT_EQ(run.state.word.TuHienTai, "walk");
  run.lookUp("Walks");
  EXPECT_EQ(run.state.word.TuHienTai, "Walk");
}

TEST_F(LookUpTest, AnEndlessWordIsShortenedFromTheLongestThatAListHolds) {
  // Letter by letter this takes as many searches as the word has letters.
  run.lookUp("walk" + std::string(2'000'000, 'q'));
  EXPECT_EQ(run.state.word.TuHienTai, "walk");
  EXPECT_EQ(run.shown(), "walk \r - on foot\r");
}

TEST_F(LookUpTest, AnEntryWithoutItsEndIsCutOff) {
  run.folder.write("data.avt", std::string(3'000'000, static_cast<char>('x' ^ 0xC0)));
  run.stores.MoDuLieu();
  run.lookUp("able");
  EXPECT_EQ(run.shown().size(), std::string("able ").size() + LongestText);
}

TEST_F(LookUpTest, DoesNotSearchAOneLetterRemainder) {
  run.lookUp("qq");
  EXPECT_FALSE(run.controls.RHD.Visible());
  EXPECT_EQ(run.state.word.TuHienTai, "qq");
}

TEST_F(LookUpTest, SearchesAWordOfOneLetter) {
  run.lookUp("q");
  EXPECT_EQ(run.shown(), "q q.\r");
}

TEST_F(LookUpTest, ShowsNothingForAStringUnknownToTheList) {
  run.lookUp("xylophone");
  EXPECT_FALSE(run.controls.RHD.Visible());
  EXPECT_TRUE(run.state.word.NghiaHienTai.empty());
  EXPECT_EQ(run.state.word.TuHienTai, "xylophone");
  EXPECT_FALSE(run.dictionary.lookUp().TimThay);
  // "xy", the last form that was searched, lies behind the section's words.
  EXPECT_EQ(run.dictionary.lookUp().ViTriGan, 0);
  run.lookUp("zonk");
  // The last form searched, "zo", lies ahead of "zone".
  EXPECT_EQ(run.dictionary.words().Chu(run.dictionary.lookUp().ViTriGan), "zone");
}

TEST_F(LookUpTest, ShowsNothingForAVietnameseSyllable) {
  run.lookUp("Cho");
  EXPECT_FALSE(run.controls.RHD.Visible());
  EXPECT_TRUE(run.dictionary.lookUp().TimThay);
}

TEST_F(LookUpTest, ShowsTheEntryThatIsAlreadyThereWithoutASearch) {
  run.state.atHand.take("able");
  run.state.atHand.takeEntry("given");
  run.dictionary.TraTu();
  EXPECT_EQ(run.shown(), "given");
}

TEST_F(LookUpTest, SkipsEverythingWithoutAWordAndAnEntry) {
  run.state.atHand.arm();
  run.lookUp("");
  EXPECT_FALSE(run.controls.RHD.Visible());
  EXPECT_TRUE(run.state.word.ChoGiai);
  run.lookUp("able");
  EXPECT_FALSE(run.state.word.ChoGiai);
}

TEST_F(LookUpTest, ClearsAMessageWhenItSearches) {
  run.state.atHand.take("able");
  run.state.atHand.showInstead("a translation");
  run.dictionary.TraTu();
  EXPECT_TRUE(run.state.word.ThongBaoHD.empty());
}

TEST_F(LookUpTest, FindsAHyphenatedLineByItsNormalForm) {
  LookUp lookUp(run.dictionary.words(), run.stores);
  EXPECT_EQ(lookUp.TimTu("well known", LayNghia::Yes)->entry, "_famous\r");
  EXPECT_TRUE(lookUp.TimThay);
  // A key does not go through the normal form.
  EXPECT_EQ(lookUp.TimTu("well-known", LayNghia::Yes)->entry, "");
  EXPECT_FALSE(lookUp.TimThay);
}

TEST_F(LookUpTest, GivesNothingForAnEmptyKey) {
  LookUp lookUp(run.dictionary.words(), run.stores);
  lookUp.ViTriGan = 7;
  lookUp.TimThay = true;
  EXPECT_FALSE(lookUp.TimTu("", LayNghia::Yes));
  EXPECT_FALSE(lookUp.TimThay);
  EXPECT_EQ(lookUp.ViTriGan, 7);
}

TEST_F(LookUpTest, AskingChangesNothing) {
  LookUp lookUp(run.dictionary.words(), run.stores);
  lookUp.ViTriGan = 7;
  run.state.atHand.take("word");
  run.state.atHand.takeEntry("entry");
  const auto answer = lookUp.ask("Well Known", LayNghia::Yes);
  ASSERT_TRUE(answer);
  EXPECT_TRUE(answer->TimThay);
  EXPECT_EQ(answer->entry, "_famous\r");
  EXPECT_FALSE(lookUp.ask("", LayNghia::Yes));
  const WordAnswer shortened = lookUp.askInAllForms("ablexyz");
  EXPECT_EQ(shortened.word, "able");
  const WordAnswer nothing = lookUp.askInAllForms("qqq");
  EXPECT_EQ(nothing.word, "qqq");
  EXPECT_TRUE(nothing.answer->entry.empty());
  EXPECT_EQ(lookUp.ViTriGan, 7);
  EXPECT_EQ(run.state.word.TuHienTai, "word");
  EXPECT_EQ(run.state.word.NghiaHienTai, "entry");
}

TEST_F(LookUpTest, LeavesTheEntryWhereItIsWhenItIsNotWanted) {
  LookUp lookUp(run.dictionary.words(), run.stores);
  EXPECT_EQ(lookUp.TimTu("able", LayNghia::No)->entry, "");
  EXPECT_TRUE(lookUp.TimThay);
}

TEST_F(LookUpTest, MapsLettersToTheirSections) {
  const LookUp& lookUp = run.dictionary.lookUp();
  const auto& slots = run.dictionary.words().ChiSoChu;
  const auto section = [&](std::size_t letter) {
    return LetterRange{slots[letter - 1], slots[letter] - 1};
  };
  EXPECT_EQ(lookUp.KhoangChuCai('a'), section(1));
  EXPECT_EQ(lookUp.KhoangChuCai('z'), section(26));
  for (const int code : {224, 225, 226})
    EXPECT_EQ(lookUp.KhoangChuCai(code), section(1)) << code;
  for (const int code : {232, 233, 234})
    EXPECT_EQ(lookUp.KhoangChuCai(code), section(5)) << code;
  for (const int code : {243, 245})
    EXPECT_EQ(lookUp.KhoangChuCai(code), section(15)) << code;
  const LetterRange whole{slots[0], slots[26] - 1};
  for (const int code : {0, int{'1'}, int{'A'}, int{'-'}, 227, 244, 255}) {
    EXPECT_EQ(lookUp.KhoangChuCai(code), whole) << code;
  }
}

TEST_F(LookUpTest, SearchesTheWholeListForAKeyThatStartsWithADigit) {
  LookUp lookUp(run.dictionary.words(), run.stores);
  lookUp.TimTu("1st", LayNghia::Yes);
  EXPECT_EQ(lookUp.TimDau, 1);
  EXPECT_EQ(lookUp.TimCuoi, run.dictionary.words().count());
  EXPECT_FALSE(lookUp.TimThay);
  EXPECT_EQ(lookUp.ViTriGan, 2);
}

TEST_F(LookUpTest, SettlesOnTheHigherOfTwoNeighbours) {
  LookUp lookUp(run.dictionary.words(), run.stores);
  lookUp.TimTu("abode", LayNghia::No);
  EXPECT_EQ(run.dictionary.words().Chu(lookUp.ViTriGan), "about");
}

TEST_F(LookUpTest, SearchesASectionOfOneLine) {
  LookUp lookUp(run.dictionary.words(), run.stores);
  lookUp.TimTu("q", LayNghia::Yes);
  EXPECT_EQ(lookUp.TimDau, lookUp.TimCuoi);
  EXPECT_TRUE(lookUp.TimThay);
  lookUp.TimTu("quick", LayNghia::Yes);
  EXPECT_FALSE(lookUp.TimThay);
}

TEST_F(LookUpTest, EndsAnEntryWithItsFile) {
  const std::string entries = test::encoded("endless");
  run.folder.write("data.avt", entries);
  run.stores.MoDuLieu();
  const LookUp& lookUp = run.dictionary.lookUp();
  EXPECT_EQ(lookUp.entryAt(1), "endless");
  EXPECT_EQ(lookUp.entryAt(8), "");
  EXPECT_EQ(lookUp.entryAt(-5), "");
}

TEST(LookUpSearch, ReadsAnEntryThroughItsExpansions) {
  DictionaryRun run(std::vector<Word>{{"tea", "\x19ra"}});
  run.lookUp("tea");
  EXPECT_EQ(run.shown(), "tea tra\r");
}

/// Words of few letters, so that many are alike.
std::vector<Word> randomWords(std::mt19937& random, int count) {
  std::vector<Word> words;
  for (int each = 0; each < count; ++each) {
    std::string line(2 + random() % 4, 'a');
    for (char& character : line)
      character = "abcxyz'- "[random() % 9];
    line.front() = "abcxyz"[random() % 6];
    if (ChuanHoaTu(line).size() > 1) words.push_back({line, "_" + std::to_string(each)});
  }
  return words;
}

TEST(LookUpSearch, FindsWhatANaiveSearchFinds) {
  std::mt19937 random(11);
  for (int round = 0; round < 25; ++round) {
    const std::vector<Word> words = randomWords(random, 120);
    DictionaryRun run(words);
    const WordList& list = run.dictionary.words();
    LookUp lookUp(list, run.stores);
    for (int probe = 0; probe < 300; ++probe) {
      std::string key(1 + random() % 5, 'a');
      for (char& character : key)
        character = "abcxyz' "[random() % 8];
      if (probe % 2 == 0) key = ChuanHoaTu(words[random() % words.size()].line);
      const std::string entry = lookUp.TimTu(key, LayNghia::Yes).value().entry;
      int first = 0;
      int next = 0;
      for (int i = lookUp.TimDau; i <= lookUp.TimCuoi; ++i) {
        const std::string form = ChuanHoaTu(list.Chu(i));
        if (first == 0 && form == key) first = i;
        if (next == 0 && key <= form) next = i;
      }
      ASSERT_EQ(lookUp.TimThay, first != 0) << key;
      if (first != 0) {
        EXPECT_EQ(ChuanHoaTu(list.Chu(lookUp.ViTriGan)), key);
        EXPECT_EQ(entry, lookUp.entryAt(list.ViTriNghia(lookUp.ViTriGan)));
      } else {
        // Ahead of a whole section the search settles on the higher of the first two lines.
        const int settled =
            next == lookUp.TimDau && lookUp.TimCuoi > lookUp.TimDau ? next + 1 : next;
        EXPECT_EQ(lookUp.ViTriGan, settled) << key;
      }
    }
  }
}

TEST(LookUpSearch, EndsOnListsThatAreNotSortedOrHaveNoLetters) {
  std::mt19937 random(5);
  for (int round = 0; round < 200; ++round) {
    const test::TestFolder folder;
    std::string text;
    const auto lines = random() % 8;
    for (std::size_t line = 0; line < lines; ++line) {
      text += std::string(random() % 3, static_cast<char>('a' + random() % 26)) + "\n";
    }
    folder.write("datatu.txt", text);
    folder.write("data.mtd", "");
    WordList words;
    words.NapTuDien(folder.path(), [] {});
    const Places places;
    const Stores stores(places);
    LookUp lookUp(words, stores);
    for (const char* key : {"a", "b", "mm", "z", "zz", "0"}) {
      lookUp.TimTu(key, LayNghia::Yes);
      EXPECT_LE(lookUp.ViTriGan, words.count());
      EXPECT_GE(lookUp.ViTriGan, 0);
    }
  }
}

TEST(WordForms, LeavesAWordOfThreeLettersThatIsItselfAnEnding) {
  for (const char* ending : {"ies", "ing", "ied"})
    EXPECT_EQ(RutGonDuoi(ending), ending);
}

} // namespace
} // namespace talvora
