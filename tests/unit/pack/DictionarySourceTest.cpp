// Dictionary sources and entry notation.
#include "pack/DictionarySource.h"

#include "pack/StreamText.h"

#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

constexpr std::string_view source =
    "// Words\n\ngo\n  v. đi; trở nên\n    > We go. = Chúng tôi đi.\n"
    "  n. lượt (chơi)\n  forms: went, gone\n";

std::vector<std::string> problemsOf(std::string_view text) {
  Problems problems;
  static_cast<void>(parseDictionary(text, "d.txt", problems));
  std::vector<std::string> lines;
  for (const Problem& problem : problems.all())
    lines.push_back(describe(problem));
  return lines;
}

TEST(DictionarySource, ReadsSensesExamplesAndForms) {
  Problems problems;
  const auto entries = parseDictionary(source, "d.txt", problems);
  ASSERT_TRUE(problems.none());
  ASSERT_EQ(entries.size(), 1U);
  EXPECT_EQ(entries[0].head, "go");
  ASSERT_EQ(entries[0].senses.size(), 2U);
  EXPECT_EQ(entries[0].senses[0].wordClass, WordClass::Verb);
  EXPECT_EQ(entries[0].senses[0].example, ownText("We go. = Chúng tôi đi."));
  EXPECT_EQ(entries[0].forms, (std::vector<std::string>{"went", "gone"}));
}

TEST(DictionarySource, EntriesNameTheClassInBlueAndMarkTheExample) {
  Problems problems;
  const auto entries = parseDictionary(source, "d.txt", problems);
  const std::string lines = entryLines(entries.at(0).senses, Examples::With);
  EXPECT_EQ(utf8Of(lines), "_#động từ #đi; trở nên_^vd: We go. = Chúng tôi đi."
                           "_#danh từ #lượt (chơi)");
  EXPECT_TRUE(opensWithVietnamese(lines));
}

TEST(DictionarySource, SensesComeBackFromAnEntry) {
  Problems problems;
  auto entries = parseDictionary(source, "d.txt", problems);
  const OwnEntry back{
      "go", sensesOfEntry(entryLines(entries.at(0).senses, Examples::With)), {}, {}};
  entries[0].forms.clear();
  EXPECT_EQ(writeEntry(back), writeEntry(entries[0]));
  EXPECT_EQ(writeEntry(back),
            "go\n  v. đi; trở nên\n    > We go. = Chúng tôi đi.\n  n. lượt (chơi)\n");
}

TEST(DictionarySource, EnglishDefinitionsAreNotTakenForOurOwn) {
  const std::string lines =
      entryLines({{WordClass::Noun, Language::English, "a slope", ""}}, Examples::With);
  EXPECT_EQ(lines, "_#noun #a slope");
  EXPECT_FALSE(opensWithVietnamese(lines));
}

TEST(DictionarySource, ReportsWhatIsWrongAndWhere) {
  EXPECT_EQ(problemsOf("go\n\n"),
            std::vector<std::string>{"d.txt:1:1: the head word has no sense"});
  EXPECT_EQ(problemsOf("go\n  x. đi\n").front(),
            "d.txt:2:3: a line below a head word must be a sense, an example or forms");
  EXPECT_EQ(problemsOf("  v. đi\n").front(),
            "d.txt:1:1: an indented line without a head word above it");
  EXPECT_EQ(problemsOf("go\n  v. đi # lại\n"),
            std::vector<std::string>{"d.txt:2:9: \"#\" is a mark and cannot stand in this text"});
  EXPECT_EQ(problemsOf("go\n  v. đi\n    > We go.\n").front(),
            "d.txt:3:7: an example must be \"English = Vietnamese\"");
  EXPECT_EQ(problemsOf("go\n    > We go. = Đi.\n  v. đi\n").front(),
            "d.txt:2:1: an example must stand below its sense, one at most");
  EXPECT_EQ(problemsOf("9go\n  v. đi\n").front(),
            "d.txt:1:1: a head word must begin with a letter from a to z");
}

} // namespace
} // namespace talvora::pack
