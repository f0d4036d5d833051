// Which words of the course a click explains in Vietnamese.
#include "pack/WordCoverage.h"
#include "pack/ClickedWords.h"
#include "pack/FilledList.h"
#include "pack/StreamText.h"

#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

using Words = std::vector<std::string>;

MarkedLine lineOf(std::string_view source) {
  Problems problems;
  MarkedLine line = parseMarkedLine(source, {}, LineKind::Lesson, problems);
  EXPECT_TRUE(problems.none());
  return line;
}

WordList listOf(const std::string& source) {
  Problems problems;
  WordSources sources;
  sources.own = parseDictionary(source, "d.txt", problems);
  sources.wordNet.words = {
      {"hue", {WordClass::Noun}, {{WordClass::Noun, Language::English, "a"}}},
      {"bats", {WordClass::Noun}, {{WordClass::Noun, Language::English, "b"}}}};
  WordList list = fillWordList(sources, 1000, Filling::Full, problems);
  EXPECT_TRUE(problems.none());
  return list;
}

CoverageReport coverageOfWords(const Words& words, const Names& names = {}) {
  return coverageOf({{"texts", words}}, listOf("bat\n  n. con dơi\n\nthirty\n  num. ba mươi\n"),
                    names);
}

TEST(ClickedWords, AreTakenAsAClickTakesThem) {
  EXPECT_EQ(clickedWords("Don't go: (the) second-hand car/bike, Lan's, \"yes\"!"),
            (Words{"Don't", "go", "the", "second-hand", "car", "bike", "Lan's", "yes"}));
}

TEST(ClickedWords, LeaveOutWhatIsNoWord) {
  EXPECT_EQ(clickedWords("S + V-ing, A or I: at 9 on the 3rd, -ness, 've, a *key_"),
            (Words{"A", "or", "I", "at", "on", "the", "a", "key"}));
  EXPECT_EQ(clickedWords(ownText("con mèo is a cat")), Words{});
}

TEST(ClickedWords, OfALineAreThoseOfItsEnglishParts) {
  EXPECT_EQ(clickedWords(lineOf("*be* đi với *going to* và *đang*: >> I *am* here")),
            (Words{"be", "going", "to", "I", "am", "here"}));
  EXPECT_EQ(clickedWords(lineOf("She sleeps. >> Cô ấy ngủ.")), (Words{"She", "sleeps"}));
}

TEST(WordCoverage, AnEntryOfOursExplains) {
  const WordList list = listOf("bat\n  n. con dơi\n\nthirty\n  num. ba mươi\n");
  EXPECT_TRUE(isExplained(list, "bat"));
  EXPECT_TRUE(isExplained(list, "thirty-five"));
  EXPECT_TRUE(isExplained(list, "bat's"));
  EXPECT_FALSE(isExplained(list, "hue"));
  EXPECT_FALSE(isExplained(list, "bats"));
  // The program would show "bat" for it.
  EXPECT_FALSE(isExplained(list, "bath"));
  EXPECT_FALSE(isExplained(list, "qx"));
}

TEST(WordCoverage, CountsRunningWordsThatAreLookedUp) {
  // "trong" is kept out of the look-up.
  const auto report =
      coverageOfWords({"Bat", "bat", "owls", "owls", "hue", "trong", "Emma"}, {"emma"});
  ASSERT_EQ(report.corpora.size(), 1U);
  const Coverage& coverage = report.corpora[0];
  EXPECT_EQ(coverage.words, 5U);
  EXPECT_EQ(coverage.missing, 3U);
  EXPECT_EQ(coverage.missingWords, (std::map<std::string, std::size_t>{{"owls", 2}, {"hue", 1}}));
  EXPECT_TRUE(report.names.empty());
  EXPECT_EQ(coverageLines(report), "  texts: 3 of 5 running words, 60.00 %\n    owls:2 hue\n");
}

TEST(WordCoverage, OneWordInTwoHundredMayBeMissing) {
  Words words(199, "bat");
  words.emplace_back("owl");
  Problems problems;
  checkCoverage(coverageOfWords(words), problems);
  EXPECT_TRUE(problems.none());
  words.pop_back();
  words.back() = "owl";
  checkCoverage(coverageOfWords(words), problems);
  ASSERT_EQ(problems.all().size(), 1U);
  EXPECT_EQ(problems.all()[0].message,
            "1 of 199 running words have no Vietnamese sense, more than 1 in 200: owl");
}

TEST(WordCoverage, ANameHasAnEntryOrIsListed) {
  Words words(1000, "bat");
  words.emplace_back("Emma");
  words.emplace_back("Hue");
  words.emplace_back("hue");
  Problems problems;
  checkCoverage(coverageOfWords(words), problems);
  ASSERT_EQ(problems.all().size(), 1U);
  EXPECT_EQ(problems.all()[0].message,
            "the name \"emma\" has no entry and does not stand in names.txt");
  Problems listed;
  checkCoverage(coverageOfWords(words, {"emma"}), listed);
  EXPECT_TRUE(listed.none());
}

TEST(WordCoverage, AListedNameHasNoEntry) {
  Problems problems;
  checkCoverage(coverageOfWords({"Bat"}, {"bat"}), problems);
  ASSERT_EQ(problems.all().size(), 1U);
  EXPECT_EQ(problems.all()[0].message, "\"bat\" has an entry and need not stand here");
}

} // namespace
} // namespace talvora::pack
