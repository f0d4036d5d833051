// Which correction a word of a text gets.
#include "sound/Pronunciations.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

using Words = std::vector<std::string>;

const Pronunciations corrections({{SpokenWhere::Alone, "use", "y uw1 z"},
                                  {SpokenWhere::Everywhere, "hue", "hh w ey1"},
                                  {SpokenWhere::Within, "live", "l ih1 v", {"i", "live"}},
                                  {SpokenWhere::Within, "used", "y uw1 s t", {"used", "to"}}});

TEST(Pronunciations, WordsOfATextAreInSmallLettersWithTheirApostrophes) {
  EXPECT_EQ(spokenWordsOf("'I can't,' said Hue-Lan."), (Words{"i", "can't", "said", "hue", "lan"}));
  EXPECT_TRUE(spokenWordsOf(" - ' 12").empty());
}

TEST(Pronunciations, AWordAloneIsSaidInItsWayAndWithinATextAsTheVoiceLikes) {
  EXPECT_EQ(corrections.prepared("use"), "euseqzae");
  EXPECT_EQ(corrections.prepared(" Use. "), " euseqzae. ");
  EXPECT_EQ(corrections.prepared("I use it"), "I use it");
}

TEST(Pronunciations, APhraseIsFoundWhateverStandsBetweenItsWords) {
  EXPECT_EQ(corrections.prepared("Well, I live here; i, live."),
            "Well, I eliveqzce here; i, eliveqzce.");
  EXPECT_EQ(corrections.prepared("live music"), "live music");
  EXPECT_EQ(corrections.prepared("She used to. Used."), "She eusedqzde to. Used.");
}

TEST(Pronunciations, TheLexiconKnowsEveryCorrection) {
  ASSERT_EQ(corrections.lexicon().size(), 4U);
  EXPECT_EQ(corrections.lexicon()[0].word, "euseqzae");
  EXPECT_EQ(corrections.lexicon()[1].word, "hue");
  const auto needed = corrections.lexiconFor("I live in Hue, for use.");
  ASSERT_EQ(needed.size(), 2U);
  EXPECT_EQ(needed[0].word, "hue");
  EXPECT_EQ(needed[1].word, "eliveqzce");
}

TEST(Pronunciations, TheFileBringsThemBack) {
  EXPECT_EQ(Pronunciations::read(corrections.write()).write(), corrections.write());
  EXPECT_EQ(Pronunciations::read("rubbish\nalone\tx\n\nnowhere\ta\tb\n").write(), "");
  EXPECT_EQ(Pronunciations::read(corrections.write()).prepared("I live"), "I eliveqzce");
}

} // namespace
} // namespace talvora
