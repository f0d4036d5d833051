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

TEST(Phonetics, WritesWhatSchoolDictionariesWrite) {
  const auto shown = [](std::string_view phones, std::string_view word) {
    return phoneticOf(phonesOf(phones), word);
  };
  EXPECT_EQ(shown("g ow1", "go"), "/gou/");
  EXPECT_EQ(shown("w ao1 t er0", "water"), "/'wo:tə/");
  EXPECT_EQ(shown("hh aa1 t", "hot"), "/hot/");
  EXPECT_EQ(shown("f aa1 dh er0", "father"), "/'fa:ðə/");
  EXPECT_EQ(shown("k aa1 r", "car"), "/ka:/");
  EXPECT_EQ(shown("hh ih1 r", "here"), "/hiə/");
  EXPECT_EQ(shown("dh eh1 r", "there"), "/ðeə/");
  EXPECT_EQ(shown("v eh1 r iy0", "very"), "/'veri/");
  EXPECT_EQ(shown("p eh1 r ax0 n t", "parent"), "/'peərənt/");
  EXPECT_EQ(shown("s t uw1 d ax0 n t", "student"), "/'stju:dənt/");
  EXPECT_EQ(shown("w er1 iy0", "worry"), "/'wʌri/");
  EXPECT_EQ(shown("w aa1 n t ax0 d", "wanted"), "/'wontid/");
  EXPECT_EQ(shown("t ey1 b ax0 l", "table"), "/'teibl/");
  EXPECT_EQ(shown("l ae1 ng g w ax0 jh", "language"), "/'læŋgwidʒ/");
  EXPECT_EQ(shown("v ih1 zh ax0 n", "vision"), "/'viʒən/");
  EXPECT_EQ(shown("th ih1 ng", "thing"), "/θiŋ/");
  EXPECT_EQ(shown("ax0 n jh ah1 s t", "unjust"), "/ʌn'dʒʌst/");
  EXPECT_EQ(shown("ih0 r ey1 s", "erase"), "/i'reis/");
  EXPECT_EQ(shown("k ae1 zh ax0 w ax0 l t iy0", "casualty"), "/'kæʒuəlti/");
  EXPECT_EQ(shown("f aa1 r ax0 w ey1", "faraway"), "/'fa:rəwei/");
}

TEST(Phonetics, AnEndingIsWrittenInOneWay) {
  const auto shown = [](std::string_view phones, std::string_view word) {
    return phoneticOf(phonesOf(phones), word);
  };
  EXPECT_EQ(shown("eh1 n d l ax0 s", "endless"), "/'endlis/");
  EXPECT_EQ(shown("k eh1 r l ax0 s", "careless"), "/'keəlis/");
  EXPECT_EQ(shown("k eh1 r l ax0 s n ax0 s", "carelessness"), "/'keəlisnis/");
  EXPECT_EQ(shown("l ey1 t n ax0 s", "lateness"), "/'leitnis/");
  EXPECT_EQ(shown("b ay0 aa1 l ax0 jh ax0 s t", "biologist"), "/bai'olədʒist/");
  EXPECT_EQ(shown("k r iy0 ey0 t ih1 v ax0 t iy0", "creativity"), "/kriei'tiviti/");
  EXPECT_EQ(shown("ow0 ey1 s ax0 s", "oasis"), "/ou'eisis/");
  EXPECT_EQ(shown("m ae1 n ax0 jh er0", "manager"), "/'mænidʒə/");
  EXPECT_EQ(shown("aa1 r t ax0 k ax0 l", "article"), "/'a:tikl/");
  EXPECT_EQ(shown("t ih1 p ax0 k l iy0", "typically"), "/'tipikli/");
  EXPECT_EQ(shown("p ah1 z ax0 l d", "puzzled"), "/'pʌzld/");
  EXPECT_EQ(shown("s ay1 k ax0 l ih0 ng", "cycling"), "/'saikliŋ/");
  EXPECT_EQ(shown("t r ae1 v ax0 l ih0 ng", "travelling"), "/'trævəliŋ/");
}

TEST(Phonetics, AWeakVowelAheadOfAnotherIsShort) {
  const auto shown = [](std::string_view phones, std::string_view word) {
    return phoneticOf(phonesOf(phones), word);
  };
  EXPECT_EQ(shown("ae1 n y uw0 ax0 l", "annual"), "/'ænjuəl/");
  EXPECT_EQ(shown("ih0 v ae1 l y uw0 ey1 t", "evaluate"), "/i'væljueit/");
  EXPECT_EQ(shown("f l uw1 ax0 n t", "fluent"), "/'flu:ənt/");
  EXPECT_EQ(shown("m eh1 n y uw0", "menu"), "/'menju:/");
  EXPECT_EQ(shown("ih0 m iy1 d iy0 ih0 t l iy0", "immediately"), "/i'mi:diətli/");
  EXPECT_EQ(shown("w er1 iy0 ih0 ng", "worrying"), "/'wʌriiŋ/");
}

TEST(Phonetics, OneSyllableHasTheMainStress) {
  const auto shown = [](std::string_view phones, std::string_view word) {
    return phoneticOf(phonesOf(phones), word);
  };
  EXPECT_EQ(shown("ah1 n d er0 s t ae1 n d", "understand"), "/ʌndə'stænd/");
  EXPECT_EQ(shown("d ih1 k sh ax0 n eh1 r iy0", "dictionary"), "/'dikʃənəri/");
  EXPECT_EQ(shown("ih0 g z ae1 m ax0 n ey1 sh ax0 n", "examination"), "/igzæmi'neiʃən/");
  EXPECT_EQ(shown("r eh1 s t er0 aa1 n t", "restaurant"), "/'restəra:nt/");
}

TEST(FormPhones, AnEndingSoundsAfterWhatStandsAheadOfIt) {
  const auto said = [](std::string_view base, SpokenEnding ending) {
    std::string text;
    for (const std::string& phone : withEnding(phonesOf(base), ending))
      text += (text.empty() ? "" : " ") + phone;
    return text;
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
