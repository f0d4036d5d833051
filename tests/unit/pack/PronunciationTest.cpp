// How words are said: the source, the notation, and what the voice is told.
#include "pack/EntryLines.h"
#include "pack/Heteronyms.h"
#include "pack/PhonesReport.h"
#include "pack/PronunciationRules.h"
#include "pack/StreamText.h"
#include "pack/Voice.h"

#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

std::string problemOf(std::string_view text) {
  Problems problems;
  static_cast<void>(parsePronunciations(text, "p.txt", problems));
  return problems.all().size() == 1 ? describe(problems.all()[0]) : "(not one)";
}

TEST(PronunciationSource, ReadsWordsClassesPhrasesAndNotations) {
  const auto rules = rulesOf("// x\n\nHue = hh w ey1\nuse v. = y uw1 z\n"
                             "lives = l ih1 v z : she lives nearby\nthe = /ðə/\n");
  ASSERT_EQ(rules.size(), 4U);
  EXPECT_EQ(rules[0].word, "Hue");
  EXPECT_EQ(rules[0].phones, (Phones{"hh", "w", "ey1"}));
  EXPECT_EQ(rules[1].wordClass, WordClass::Verb);
  EXPECT_EQ(rules[2].phrase, "she lives nearby");
  EXPECT_EQ(rules[3].shown, "/ðə/");
}

TEST(PronunciationSource, ReportsWhatIsWrong) {
  EXPECT_EQ(problemOf("Hue\n"),
            "p.txt:1:1: a pronunciation must be \"word = phones\" or \"word = /notation/\"");
  EXPECT_EQ(problemOf("Hue = hh w eh\n"), "p.txt:1:1: \"eh\" is no phone");
  EXPECT_EQ(problemOf("Hue = hh w ey2\n"), "p.txt:1:1: \"ey2\" is no phone");
  EXPECT_EQ(problemOf("Hue = hh w\n"), "p.txt:1:1: a word needs a vowel");
  EXPECT_EQ(problemOf("live = l ih1 v : she lives\n"),
            "p.txt:1:1: the phrase does not have the word");
  EXPECT_EQ(problemOf("Hoi An = hh oy1\n"), "p.txt:1:1: one word at a time can have phones");
  EXPECT_EQ(problemOf("the = /ð₫/\n"), "p.txt:1:1: the notation has a letter that cannot be shown");
}

TEST(PronunciationSource, AWordHasOneLineOfAKind) {
  EXPECT_EQ(problemOf("Nghe = ng ey1\n\nnghe = ng eh1\n"),
            "p.txt:3:1: line 1 tells of this already");
  EXPECT_EQ(problemOf("use v. = y uw1 z\nuse v. = y uw1 s\n"),
            "p.txt:2:1: line 1 tells of this already");
  EXPECT_EQ(
      rulesOf("use = y uw1 z\nuse = /ju:z/\nuse n. = y uw1 s\nuse = y uw1 s : no use\n").size(),
      4U);
}

TEST(PronunciationSource, AWordWithHyphensHasThePhonesOfItsParts) {
  const auto rules = rulesOf("X-ray = eh1 k s - r ey0\n");
  ASSERT_EQ(rules.size(), 1U);
  EXPECT_EQ(rules[0].parts, (std::vector<Phones>{{"eh1", "k", "s"}, {"r", "ey0"}}));
  EXPECT_EQ(problemOf("X-ray = eh1 k s r ey0\n"),
            "p.txt:1:1: the phones have \" - \" where the word has its hyphen");
  EXPECT_EQ(problemOf("X-ray = eh1 k s - r\n"), "p.txt:1:1: a word needs a vowel");
  const Pronouncer pronouncer(rules);
  EXPECT_EQ(joined(pronouncer.phonesOfWord("X-ray", WordClass::Noun)), "eh1 k s r ey0");
  EXPECT_EQ(pronouncer.shownOf("X-ray", WordClass::Noun), "/'eksrei/");
  EXPECT_EQ(pronouncer.correctionsFor({}).write(),
            "within\tx\teh1 k s\tx ray\nwithin\tray\tr ey0\tx ray\n");
}

TEST(Pronouncer, AWordAloneGoesBeforeTheSameWordInSentences) {
  Problems problems;
  const auto entries = parseDictionary("use\n  n. cách dùng\n", "d.txt", problems);
  const Pronouncer pronouncer(rulesOf("use n. = y uw1 s\nuse = y uw1 z : use\n"));
  const Pronunciations told = pronouncer.correctionsFor(entries);
  EXPECT_EQ(told.write(), "within\tuse\ty uw1 z\tuse\nalone\tuse\ty uw1 s\n");
  const auto phones = [&](std::string_view text) { return told.lexiconFor(text).at(0).phones; };
  EXPECT_EQ(phones("use"), "y uw1 s");
  EXPECT_EQ(phones("They use it."), "y uw1 z");
}

TEST(Heteronyms, APhraseSettlesThemAndElseTheLineForTheWord) {
  const Pronouncer pronouncer(rulesOf("use v. = y uw1 z\nuse n. = y uw1 s\nuse = y uw1 z : use\n"
                                      "use = y uw1 s : no use\ntear v. = t eh1 r\n"
                                      "tear n. = t ih1 r\nHue = hh w ey1\n"));
  const auto told = [&](std::string_view sentence) {
    std::string list;
    for (const SaidWord& said : heteronymsIn(sentence, pronouncer))
      list += said.word + " (" + joined(said.phones) + ") ";
    return list;
  };
  EXPECT_EQ(told("Use it, it is of no use in Hue."), "use (y uw1 z) use (y uw1 s) ");
  EXPECT_EQ(told("Do not tear it."), "tear () ");
  EXPECT_EQ(told("No, use it."), "use (y uw1 s) ")
      << "a comma parts no phrase for the voice either";
}

TEST(Heteronyms, ALineForTheWordGivesWayToAnEarlierPhrase) {
  const Pronouncer pronouncer(rulesOf("use = y uw1 s : no use\nuse = y uw1 z : use\n"));
  const auto told = heteronymsIn("There is no use.", pronouncer);
  ASSERT_EQ(told.size(), 1U);
  EXPECT_EQ(joined(told[0].phones), "y uw1 s");
  EXPECT_EQ(pronouncer.correctionsFor({}).lexiconFor("There is no use.").at(0).phones, "y uw1 s")
      << "the voice says it so too";
}

TEST(FormPhones, AnEndingSoundsAfterWhatStandsAheadOfIt) {
  const auto said = [](std::string_view base, SpokenEnding ending) {
    return joined(withEnding(phonesOf(base), ending));
  };
  EXPECT_EQ(said("k ae1 t", SpokenEnding::S), "k ae1 t s");
  EXPECT_EQ(said("d ao1 g", SpokenEnding::S), "d ao1 g z");
  EXPECT_EQ(said("b aa1 k s", SpokenEnding::S), "b aa1 k s ih0 z");
  EXPECT_EQ(said("s t aa1 p", SpokenEnding::Ed), "s t aa1 p t");
  EXPECT_EQ(said("w aa1 ch", SpokenEnding::Ed), "w aa1 ch t");
  EXPECT_EQ(said("p l ey1", SpokenEnding::Ed), "p l ey1 d");
  EXPECT_EQ(said("n iy1 d", SpokenEnding::Ed), "n iy1 d ih0 d");
  EXPECT_EQ(said("g ow1", SpokenEnding::Ing), "g ow1 ih0 ng");
}

TEST(FormPhones, OnlyRegularFormsAreSpokenByRule) {
  Problems problems;
  WordSources words;
  words.own = parseDictionary("feed\n  v. cho ăn\n  forms: fed, fed\n\nchild\n  n. đứa trẻ\n"
                              "  forms: children\n\nwalk\n  v. đi bộ\n  n. cuộc đi bộ\n",
                              "d.txt", problems);
  words.known = {"feeds", "feeding", "walks", "walked"};
  std::string told;
  for (const SpokenForm& form : spokenFormsOf(words))
    told += form.text + " ";
  EXPECT_EQ(told, "feeds feeding walks walks walked ");
}

TEST(Pronouncer, AFormThatTheLexiconLacksIsSaidAsItsHeadWord) {
  const Pronouncer pronouncer(rulesOf("Hue = hh w ey1\nmooncakes = m uw1 n\n"));
  const auto written = [&](const std::vector<SpokenForm>& forms) {
    return pronouncer.correctionsFor({}, forms).write();
  };
  EXPECT_NE(written({{"hues", "Hue", SpokenEnding::S, WordClass::Noun}}).find("hues\thh w ey1 z"),
            std::string::npos);
  // The lexicon has "cats", and a rule goes before the ending.
  EXPECT_EQ(written({{"cats", "cat", SpokenEnding::S, WordClass::Noun}}).find("cats"),
            std::string::npos);
  EXPECT_EQ(written({{"mooncakes", "cat", SpokenEnding::S, WordClass::Noun}}).find("k ae1 t"),
            std::string::npos);
}

} // namespace
} // namespace talvora::pack
