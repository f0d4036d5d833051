// How the voice says words: needs its own lexicon.
#include "pack/EntryLines.h"
#include "pack/PronunciationRules.h"
#include "pack/StreamText.h"
#include "pack/Voice.h"

#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

TEST(Pronouncer, AWordWithHyphensIsSaidPartByPart) {
  const Pronouncer pronouncer({});
  EXPECT_EQ(joined(pronouncer.phonesOfWord("T-shirt", WordClass::Noun)), "t iy1 sh er1 t");
}

TEST(Pronouncer, AClassThatIsSaidInItsOwnWaySaysSo) {
  Problems problems;
  auto entries = parseDictionary("use A1\n  v. dùng\n  n. [u] cách dùng\n\n"
                                 "walk\n  v. đi bộ\n  n. cuộc đi bộ\n",
                                 "d.txt", problems);
  Pronouncer({}).pronounce(entries);
  EXPECT_EQ(utf8Of(headDetails(entries[0].block) + blockLines(entries[0].block)),
            "/ju:z/ A1_#động từ #dùng_#danh từ, không đếm được #/ju:s/ cách dùng");
  EXPECT_EQ(utf8Of(headDetails(entries[1].block) + blockLines(entries[1].block)),
            "/wo:k/_#động từ #đi bộ_#danh từ #cuộc đi bộ");
}

TEST(Pronouncer, TheSourceGoesBeforeTheLexicon) {
  const Pronouncer pronouncer(
      rulesOf("Hue = hh w ey1\nuse n. = y uw1 z\nthe = /ðə/\nlive = l ay1 v : I live\n"));
  EXPECT_EQ(pronouncer.shownOf("Hue", WordClass::Noun), "/hwei/");
  EXPECT_EQ(pronouncer.shownOf("use", WordClass::Noun), "/ju:z/");
  EXPECT_EQ(pronouncer.shownOf("the", WordClass::Determiner), "/ðə/");
  EXPECT_EQ(pronouncer.shownOf("live", WordClass::Verb), "/liv/");
  EXPECT_EQ(pronouncer.shownOf("ice-cream", WordClass::Noun), "/ais kri:m/");
  EXPECT_EQ(pronouncer.shownOf("TV", WordClass::Noun), "/ti:'vi:/");
  EXPECT_EQ(pronouncer.shownOf("she'd", WordClass::Phrase), "/ʃi:d/");
}

TEST(Pronouncer, AClickedHeadWordIsSaidAsItsCommonestClassIs) {
  Problems problems;
  const auto entries = parseDictionary("use\n  v. dùng\n  n. cách dùng\n\nwalk\n  v. đi bộ\n\n"
                                       "Dr\n  abbr. bác sĩ\n",
                                       "d.txt", problems);
  const Pronouncer pronouncer(rulesOf("Dr abbr. = d aa1 k t er0\nlives = l ih1 v z : she lives\n"
                                      "used v. = y uw1 z d\nHue = hh w ey1\nthe = /ðə/\n"));
  EXPECT_EQ(pronouncer.correctionsFor(entries).write(),
            "alone\tuse\ty uw1 z\nalone\tdr\td aa1 k t er0\n"
            "within\tlives\tl ih1 v z\tshe lives\nalone\tused\ty uw1 z d\n"
            "everywhere\thue\thh w ey1\n");
}

TEST(Pronouncer, TheVoiceSaysEveryCorrectedWordAsItWasTaught) {
  Problems problems;
  const auto entries =
      parseDictionary("use\n  v. dùng\n\ncollect\n  v. sưu tầm\n", "d.txt", problems);
  const Pronouncer pronouncer(rulesOf("Nguyen = ng w iy1 n\nisn't = ih1 z ax0 n t\n"));
  const Pronunciations corrections = pronouncer.correctionsFor(entries);
  Voice::learn(corrections);
  const Voice voice(Speaker::Slt);
  const auto syllablesOf = [&](const std::string& text) {
    return voice.speak(corrections.prepared(text), 1.0F).syllables;
  };
  EXPECT_EQ(syllablesOf("Use"), 1);
  EXPECT_EQ(syllablesOf("collect"), 2);
  EXPECT_EQ(syllablesOf("Mr Nguyen came"), 4);
  EXPECT_EQ(syllablesOf("isn't"), 2) << "one as the voice has it";
  Voice::learn({});
}

} // namespace
} // namespace talvora::pack
