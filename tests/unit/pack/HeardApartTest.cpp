// Which options of a listening item a voice keeps apart; needs the voices' own lexicon.
#include "pack/HeardApart.h"

#include "pack/OptionProblems.h"
#include "pack/WordPhones.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

TEST(DrillChecks, KnowWhatTheVoiceKeepsApart) {
  EXPECT_THAT(wordPhones("ship"), ElementsAre("sh", "ih", "p"));
  const auto reason = [](const std::string& heard, const std::string& other) {
    return notHeardApart(heard, other, Speaker::Rms);
  };
  EXPECT_THAT(reason("I can find it.", "I can't find it."), HasSubstr("can/can't"));
  EXPECT_THAT(reason("The jug is full.", "The jug is fool."), HasSubstr("full/fool"));
  EXPECT_THAT(reason("It's their house.", "It's there house."), HasSubstr("their/there"));
  EXPECT_EQ(reason("It's a ship.", "It's a sheep."), "");
  EXPECT_EQ(reason("I can find it.", "I can't find them."), "");
  EXPECT_EQ(reason("I can find it.", "I can find it now."), "");
  EXPECT_EQ(reason("I can find it.", "I can find it."), "");
}

TEST(DrillChecks, KnowEachVoiceByItself) {
  const auto apart = [](const std::string& heard, const std::string& other, Speaker speaker) {
    return notHeardApart(heard, other, speaker).empty();
  };
  EXPECT_FALSE(apart("It's a van.", "It's a fan.", Speaker::Rms));
  EXPECT_TRUE(apart("It's a van.", "It's a fan.", Speaker::Slt));
  EXPECT_TRUE(apart("It's a path.", "It's a bath.", Speaker::Rms));
  EXPECT_THAT(notHeardApart("It's a path.", "It's a bath.", Speaker::Slt),
              HasSubstr("the voice of slt does not keep path/bath apart"));
}

TEST(DrillChecks, AskTheVoiceThatSaysTheSentence) {
  const ListeningUnit items = {
      itemOf("It's a van.", "It's a van.", {"It's a fan.", "It's a car.", "It's a bus."})};
  const auto soundProblems = [&](const UnitVoices& voices) {
    auto lines = optionProblems(1, items, voices);
    std::erase_if(lines, [](const std::string& line) { return !line.starts_with("u:"); });
    return lines;
  };
  EXPECT_THAT(soundProblems({{1, {Speaker::Rms}}}), ElementsAre(HasSubstr("van/fan")));
  EXPECT_THAT(soundProblems({{1, {Speaker::Slt}}}), ElementsAre());
  EXPECT_THAT(soundProblems({{1, {}}}), ElementsAre()) << "the live voice is slt";
  EXPECT_THAT(soundProblems({}), ElementsAre()) << "a person reads the unit";
}

} // namespace
} // namespace talvora::pack
