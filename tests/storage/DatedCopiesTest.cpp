// Dated copies of what the learner owns.
#include "learner/DatedCopies.h"

#include "learner/VocabularyFile.h"
#include "support/TestFolder.h"
#include "tests/support/FaultyFiles.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

using test::FaultyFiles;
using test::TestFolder;
using Names = std::vector<std::string>;

class TestCalendar final : public Calendar {
 public:
  [[nodiscard]] Moment now() const override { return moment; }

  Moment moment{2026, 3, 31, 18, 5, 9};
};

Names namesOf(const std::vector<DatedCopy>& copies) {
  Names names;
  for (const DatedCopy& each : copies)
    names.push_back(each.name);
  return names;
}

class DatedCopiesTest : public testing::Test {
 protected:
  void writeWords(int count) const {
    folder.write("data.c", std::string(static_cast<std::size_t>(count) * 24, 'w'));
  }

  TestFolder folder;
  FaultyFiles files;
  TestCalendar calendar;
  DatedCopies copies{folder.path(), files, calendar};
};

TEST_F(DatedCopiesTest, ACopyIsNamedAfterItsMoment) {
  writeWords(2);
  folder.write("words.txt", "rows");
  EXPECT_EQ(copies.keep(), std::nullopt);
  ASSERT_EQ(namesOf(copies.all()), Names{"2026-03-31_18-05-09"});
  EXPECT_EQ(copies.all()[0].words, 2U);
  EXPECT_EQ(copies.read("2026-03-31_18-05-09", "data.c"), folder.read("data.c"));
  EXPECT_EQ(copies.read("2026-03-31_18-05-09", "words.txt"), "rows");
  EXPECT_EQ(copies.read("2026-03-31_18-05-09", "data.Kcu"), std::nullopt);
}

TEST_F(DatedCopiesTest, WhatHasNotChangedIsNotCopiedAgain) {
  writeWords(1);
  EXPECT_EQ(copies.keep(), std::nullopt);
  calendar.moment.day = 30;
  EXPECT_EQ(copies.keep(), std::nullopt);
  EXPECT_EQ(copies.all().size(), 1U);
  writeWords(2);
  EXPECT_EQ(copies.keep(), std::nullopt);
  EXPECT_EQ(copies.all().size(), 2U);
}

TEST_F(DatedCopiesTest, NoWordIsNothingToCopy) {
  EXPECT_EQ(copies.keep(), std::nullopt);
  writeWords(0);
  EXPECT_EQ(copies.keep(), std::nullopt);
  EXPECT_TRUE(copies.all().empty());
}

TEST_F(DatedCopiesTest, TwoOfOneMomentHaveTwoNames) {
  for (int words = 1; words <= 3; ++words) {
    writeWords(words);
    EXPECT_EQ(copies.keep(), std::nullopt);
  }
  EXPECT_EQ(namesOf(copies.all()),
            (Names{"2026-03-31_18-05-09", "2026-03-31_18-05-09-02", "2026-03-31_18-05-09-03"}));
}

TEST_F(DatedCopiesTest, HalfACopyIsNoneAtWhateverCallItBrokeOff) {
  writeWords(1);
  folder.write("words.txt", "rows");
  EXPECT_EQ(copies.keep(), std::nullopt);
  const int calls = files.calls;
  EXPECT_GE(calls, 8);
  for (int call = 1; call <= calls; ++call) {
    writeWords(call + 1);
    calendar.moment.second = call % 60;
    calendar.moment.minute = 30;
    files.calls = 0;
    files.failFrom = files.failTo = call;
    EXPECT_TRUE(copies.keep()) << call;
    files.failNever();
    for (const DatedCopy& each : copies.all())
      EXPECT_EQ(each.name, "2026-03-31_18-05-09") << call;
  }
}

TEST_F(DatedCopiesTest, FoldersOfOtherNamesAreLeftAlone) {
  writeWords(1);
  folder.write("backups/mine/data.c", std::string(24, 'm'));
  folder.write("backups/2026-13-31_18-05-09/data.c", std::string(24, 'm'));
  EXPECT_EQ(copies.keep(), std::nullopt);
  EXPECT_EQ(copies.all().size(), 1U);
  EXPECT_TRUE(folder.has("backups/mine/data.c"));
}

TEST_F(DatedCopiesTest, ALookThatFailsLosesNoCopyThatIsThere) {
  writeWords(1);
  EXPECT_EQ(copies.keep(), std::nullopt);
  files.looksCount = true;
  files.calls = 0;
  writeWords(2);
  calendar.moment.hour = 19;
  EXPECT_EQ(copies.keep(), std::nullopt);
  const int calls = files.calls;
  for (int call = 1; call <= calls; ++call) {
    writeWords(call + 2);
    files.calls = 0;
    files.failFrom = files.failTo = call;
    static_cast<void>(copies.keep());
    files.failNever();
    const Names names = namesOf(copies.all());
    ASSERT_GE(names.size(), 2U) << call;
    EXPECT_EQ(names[0], "2026-03-31_18-05-09") << call;
    EXPECT_EQ(copies.read(names[1], "data.c")->size(), 2 * VocabularyWord::RecordSize) << call;
  }
}

TEST_F(DatedCopiesTest, WhatCannotBeReadIsToldAndNoCopy) {
  writeWords(1);
  folder.write("words.txt", "rows");
  files.looksCount = true;
  for (const std::string name : {"data.c", "words.txt"}) {
    files.counts = [&](const std::string& call, const std::string& path) {
      return call == "read" && path == folder.pathOf(name);
    };
    files.failAlways(std::errc::io_error);
    EXPECT_NE(copies.keep(), std::nullopt) << name;
    EXPECT_TRUE(copies.all().empty()) << name;
  }
}

TEST_F(DatedCopiesTest, ACopyWhoseNameCannotBeLookedAtIsNotWrittenOver) {
  writeWords(1);
  EXPECT_EQ(copies.keep(), std::nullopt);
  writeWords(2);
  files.looksCount = true;
  files.counts = [](const std::string& call, const std::string& path) {
    return call == "status" && path.ends_with("2026-03-31_18-05-09/data.c");
  };
  files.failAlways(std::errc::io_error);
  static_cast<void>(copies.keep());
  files.failNever();
  EXPECT_EQ(copies.read("2026-03-31_18-05-09", "data.c"), std::string(24, 'w'));
}

TEST_F(DatedCopiesTest, AFolderOfThatNameWithoutAListIsNoCopy) {
  writeWords(1);
  folder.write("backups/2026-01-01_00-00-00/words.txt", "rows");
  EXPECT_TRUE(copies.all().empty());
  EXPECT_EQ(copies.keep(), std::nullopt);
  EXPECT_EQ(copies.all().size(), 1U);
}

TEST_F(DatedCopiesTest, AChangedRowIsCopiedThoughTheWordsAreTheSame) {
  writeWords(1);
  folder.write("words.txt", "rows");
  EXPECT_EQ(copies.keep(), std::nullopt);
  folder.write("words.txt", "other rows");
  EXPECT_EQ(copies.keep(), std::nullopt);
  EXPECT_EQ(copies.all().size(), 2U);
}

TEST_F(DatedCopiesTest, AMomentHasAHundredNamesAtMost) {
  for (int words = 1; words <= 105; ++words) {
    writeWords(words);
    EXPECT_EQ(copies.keep(), std::nullopt);
  }
  const auto all = copies.all();
  EXPECT_EQ(all.size(), 99U);
  EXPECT_EQ(all[9].name, "2026-03-31_18-05-09-10");
  EXPECT_EQ(all.back().words, 105U) << "the last name has the newest";
}

TEST_F(DatedCopiesTest, OldCopiesMakeRoomForNewOnes) {
  for (int day = 1; day <= 28; ++day) {
    writeWords(day);
    calendar.moment = {2026, 2, day, 12, 0, 0};
    EXPECT_EQ(copies.keep(), std::nullopt);
  }
  const Names names = namesOf(copies.all());
  EXPECT_LT(names.size(), 14U);
  EXPECT_EQ(names.back(), "2026-02-28_12-00-00");
}

TEST_F(DatedCopiesTest, AClockThatIsSetBackTakesNoCopyAwayThatWasJustMade) {
  for (int month = 1; month <= 12; ++month) {
    for (const int day : {1, 9, 17, 25}) {
      calendar.moment = {2025, month, day, 12, 0, 0};
      writeWords(month * 30 + day);
      EXPECT_EQ(copies.keep(), std::nullopt);
    }
  }
  for (int words = 1; words <= 8; ++words) {
    calendar.moment = {2000, 1, 1, 0, words, 0};
    writeWords(words);
    EXPECT_EQ(copies.keep(), std::nullopt);
    EXPECT_TRUE(copies.read("2000-01-01_00-0" + std::to_string(words) + "-00", "data.c")) << words;
  }
  EXPECT_TRUE(copies.read("2000-01-01_00-04-00", "data.c")) << "the last ones";
  EXPECT_FALSE(copies.read("2000-01-01_00-01-00", "data.c")) << "and no more";
}

TEST_F(DatedCopiesTest, ADateOfADayFarAheadIsADay) {
  calendar.moment = {2038, 1, 19, 3, 14, 8};
  writeWords(3);
  EXPECT_EQ(copies.keep(), std::nullopt);
  calendar.moment = {2026, 3, 31, 18, 5, 9};
  writeWords(2);
  EXPECT_EQ(copies.keep(), std::nullopt);
  EXPECT_EQ(namesOf(copies.all()), (Names{"2026-03-31_18-05-09", "2038-01-19_03-14-08"}));
}

TEST_F(DatedCopiesTest, WhatSomebodyNamedThemselvesIsNotThinnedOut) {
  const std::string theirs = "2026-02-01_12-00-00 before the examination";
  folder.write("backups/" + theirs + "/data.c", std::string(24, 'm'));
  for (int day = 1; day <= 28; ++day) {
    writeWords(day + 1);
    calendar.moment = {2026, 2, day, 13, 0, 0};
    EXPECT_EQ(copies.keep(), std::nullopt);
  }
  EXPECT_TRUE(copies.read(theirs, "data.c"));
}

TEST(Thinning, KnowsACopyByAMomentAndPerhapsANumber) {
  EXPECT_TRUE(isCopyName("2026-03-31_18-05-09"));
  EXPECT_TRUE(isCopyName("2026-03-31_18-05-09-02"));
  for (const char* name : {"", "2026-03-31", "2026-03-31_18-05-09-", "2026-03-31_18-05-0x",
                           "2026-03-31 18-05-09", "2026-03-31_18-05-09-022"})
    EXPECT_FALSE(isCopyName(name)) << name;
}

/// A copy a day over so many days, the newest last.
std::vector<DatedCopy> daily(int days) {
  std::vector<DatedCopy> copies;
  int year = 2024;
  int month = 1;
  int day = 1;
  const int lengths[] = {31, 29, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
  for (int number = 0; number < days; ++number) {
    char name[64];
    std::snprintf(name, sizeof name, "%04d-%02d-%02d_12-00-00", year, month, day);
    copies.push_back({name, 10});
    if (++day > lengths[month - 1]) {
      day = 1;
      if (++month > 12) {
        month = 1;
        ++year;
      }
    }
  }
  return copies;
}

TEST(Thinning, LeavesSevenDaysFourWeeksAndTwelveMonths) {
  const auto stay = thinned(daily(600));
  EXPECT_EQ(stay.size(), 7U + 4U + 12U);
  const auto all = daily(600);
  for (std::size_t day = 1; day <= 7; ++day) {
    EXPECT_EQ(stay[stay.size() - day].name, all[all.size() - day].name);
  }
  EXPECT_EQ(namesOf(thinned(stay)), namesOf(stay)) << "what stays goes on staying";
}

TEST(Thinning, ThinsNothingOfAFewDays) {
  EXPECT_EQ(thinned(daily(7)).size(), 7U);
  EXPECT_TRUE(thinned({}).empty());
}

TEST(Thinning, OfADayTheCopyWithTheMostWordsStays) {
  const auto stay = thinned({{"2026-03-01_08-00-00", 5},
                             {"2026-03-01_09-00-00", 9},
                             {"2026-03-01_10-00-00", 2},
                             {"2026-03-02_08-00-00", 2},
                             {"2026-03-02_09-00-00", 1}});
  EXPECT_EQ(namesOf(stay),
            (Names{"2026-03-01_09-00-00", "2026-03-02_08-00-00", "2026-03-02_09-00-00"}))
      << "of the newest day all";
}

TEST(Thinning, ALongPauseCostsNothing) {
  auto copies = daily(10);
  copies.push_back({"2031-01-01_08-00-00", 10});
  EXPECT_GE(thinned(copies).size(), 8U);
}

TEST(Thinning, ANameThatIsNoMomentCountsAsTheOldest) {
  auto copies = daily(60);
  copies.insert(copies.begin(), {"0-odd", 1});
  const auto stay = thinned(copies);
  EXPECT_EQ(stay.front().name, "0-odd");
  EXPECT_EQ(stay.back().name, copies.back().name);
}

} // namespace
} // namespace talvora
