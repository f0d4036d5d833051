// One spelling a word: what is reported where, and what is not.
#include "pack/SpellingCheck.h"

#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <fstream>

namespace talvora::pack {
namespace {

using Lines = std::vector<std::string>;

const std::vector<Spelling> listed = {{"tỷ", "tỉ"}, {"ti vi", "tivi"}, {"color", "colour"}};

Lines foundIn(std::string_view text, Spelled spelled = Spelled::InBoth) {
  Problems problems;
  checkSpelling(text, "t.txt", listed, spelled, problems);
  Lines lines;
  for (const Problem& problem : problems.all())
    lines.push_back(describe(problem));
  return lines;
}

TEST(SpellingCheck, AListedSpellingIsReportedWhereItStands) {
  EXPECT_EQ(foundIn("= Có tám tỷ người.\n= “Tỷ lệ”, cái ti vi.\n"),
            (Lines{"t.txt:1:10: \"tỷ\" is spelled \"tỉ\" here",
                   "t.txt:2:4: \"Tỷ\" is spelled \"Tỉ\" here",
                   "t.txt:2:16: \"ti vi\" is spelled \"tivi\" here"}));
  EXPECT_EQ(foundIn("A fine color.\n"), Lines{"t.txt:1:8: \"color\" is spelled \"colour\" here"});
}

TEST(SpellingCheck, PartsOfWordsAndRemarksPass) {
  EXPECT_EQ(foundIn("= tỷu, hoti vim\nColorado, colors\n// tỷ\n"), Lines{});
}

TEST(SpellingCheck, AnEntryMayUseItsOwnSpelling) {
  EXPECT_EQ(foundIn("color A1\n  n. [u c] màu (Mỹ)\n    > A fine color. = Màu đẹp.\n"), Lines{});
  EXPECT_EQ(foundIn("color A1\n  n. [u c] tỷ\n"),
            Lines{"t.txt:2:12: \"tỷ\" is spelled \"tỉ\" here"});
  EXPECT_EQ(foundIn("paint A1\n  v. sơn\n    > Paint it in this color. = Sơn màu này.\n").size(),
            1U);
}

TEST(SpellingCheck, LessonsTeachBothSpellingsOfEnglish) {
  EXPECT_EQ(foundIn("Anh: colour, color\n", Spelled::Vietnamese), Lines{});
  EXPECT_EQ(foundIn("Tám tỷ\n", Spelled::Vietnamese).size(), 1U);
}

TEST(SpellingCheck, AWeekdayHasItsCapitalAndTheFifthHasNone) {
  EXPECT_EQ(foundIn("We meet on Thursday.\n= Thứ năm ta gặp nhau.\n"),
            Lines{"t.txt:2:3: \"Thứ năm\" is spelled \"Thứ Năm\" here"});
  EXPECT_EQ(foundIn("See you on Thursday.\n= Thứ Năm gặp lại.\n"), Lines{});
  EXPECT_EQ(foundIn("This is the fifth day.\n= Đây là ngày thứ năm.\n"), Lines{});
}

TEST(SpellingCheck, TheListIsALineASpelling) {
  const test::TemporaryFolder folder;
  const auto path = folder.path() / "spelling.txt";
  std::ofstream(path) << "// a remark\n\ncolor = colour\nno pair\n";
  Problems problems;
  const auto spellings = readSpellings(path, problems);
  ASSERT_EQ(spellings.size(), 1U);
  EXPECT_EQ(spellings[0].used, "colour");
  ASSERT_EQ(problems.all().size(), 1U);
  EXPECT_EQ(problems.all()[0].where.line, 4);
}

} // namespace
} // namespace talvora::pack
