// Dictionary sources and entry notation.
#include "pack/DictionarySource.h"

#include "pack/EntryLines.h"
#include "pack/EntryNotation.h"
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
  ASSERT_EQ(entries[0].block.senses.size(), 2U);
  EXPECT_EQ(entries[0].block.senses[0].wordClass, WordClass::Verb);
  EXPECT_EQ(entries[0].block.senses[0].example, ownText("We go. = Chúng tôi đi."));
  EXPECT_EQ(entries[0].block.forms, (std::vector<std::string>{"went", "gone"}));
}

TEST(DictionarySource, EntriesNameTheClassInBlueAndMarkTheExample) {
  Problems problems;
  const auto entries = parseDictionary(source, "d.txt", problems);
  const std::string lines = entryLines(entries.at(0).block.senses, Examples::With);
  EXPECT_EQ(utf8Of(lines), "_#động từ #đi; trở nên_^vd: We go. = Chúng tôi đi."
                           "_#danh từ #lượt (chơi)");
}

constexpr std::string_view wholeSource =
    "go A1\n  v. 1 đi: go to school, go home\n  v. 2 đi (làm gì): go swimming\n"
    "  v. 3 trở nên: go bad\n  v. 4 diễn ra; chạy (máy)\n"
    "    > How do you go to work? = Bạn đi làm bằng gì?\n"
    "  n. [c] lượt; lần thử\n"
    "  phrases: go on = tiếp tục; go out = ra ngoài, tắt\n"
    "  forms: went, gone\n";

/// An entry as a pack has it.
std::string entryOf(const EntryBlock& block) {
  return headDetails(block) + blockLines(block);
}

TEST(DictionarySource, AWholeEntryShowsItsFormsLevelNumbersUsesAndPhrases) {
  Problems problems;
  const auto entries = parseDictionary(wholeSource, "d.txt", problems);
  ASSERT_TRUE(problems.none()) << describe(problems.all()[0]);
  const EntryBlock& block = entries.at(0).block;
  EXPECT_EQ(entries[0].head, "go");
  EXPECT_EQ(utf8Of(entryOf(block)),
            "(went, gone) A1_#động từ #1 đi: go to school, go home_2 đi (làm gì): go swimming"
            "_3 trở nên: go bad_4 diễn ra; chạy (máy)"
            "_^cụm: #go on #tiếp tục; #go out #ra ngoài, tắt"
            "_^vd: How do you go to work? = Bạn đi làm bằng gì?"
            "_#danh từ, đếm được #lượt; lần thử");
  EXPECT_EQ(utf8Of(entryLines(block.senses, Examples::Without)),
            "_#động từ #1 đi_2 đi (làm gì)_3 trở nên_4 diễn ra; chạy (máy)"
            "_#danh từ, đếm được #lượt; lần thử");
  EntryBlock said = block;
  said.pronunciation = "/gou/";
  EXPECT_EQ(headDetails(said), "/gou/ (went, gone) A1");
  EXPECT_EQ(headDetails({}), "");
}

TEST(DictionarySource, SensesOfOneClassThatAreCountedDifferentlySaySoEach) {
  Problems problems;
  const auto entries =
      parseDictionary("paper\n  n. 1 [u] giấy\n  n. 2 [c] tờ báo\n", "d.txt", problems);
  ASSERT_TRUE(problems.none());
  EXPECT_EQ(utf8Of(entryOf(entries.at(0).block)),
            "_#danh từ #1 #không đếm được #giấy_2 #đếm được #tờ báo");
}

TEST(DictionarySource, AColonWithinBracketsOpensNoPattern) {
  Problems problems;
  const auto entries = parseDictionary("arm\n  n. vũ khí (số nhiều: arms)\n", "d.txt", problems);
  EXPECT_EQ(utf8Of(entries.at(0).block.senses.at(0).text), "vũ khí (số nhiều: arms)");
  EXPECT_EQ(entries[0].block.senses[0].pattern, "");
}

TEST(DictionarySource, BlocksComeBackFromAnEntry) {
  for (const std::string_view text :
       {wholeSource, source,
        std::string_view("paper C1\n  n. 1 [u] giấy\n    > It is paper. = Nó là giấy.\n"
                         "  n. 2 [c] tờ báo\n"),
        std::string_view("bet\n  v. cá cược\n  forms: bet, bet\n")}) {
    Problems problems;
    const auto entries = parseDictionary(text, "d.txt", problems);
    ASSERT_TRUE(problems.none());
    const OwnEntry& entry = entries.at(0);
    EntryBlock said = entry.block;
    said.pronunciation = "/x/";
    said.senses.back().pronunciation = "/y/";
    const std::string stored = entryOf(said);
    const auto blocks = readOwnNotation(stored, entry.head).blocks;
    ASSERT_EQ(blocks.size(), 1U);
    EXPECT_EQ(writeEntry({entry.head, blocks[0]}), writeEntry(entry));
    EXPECT_TRUE(text.ends_with(writeEntry(entry)));
  }
}

TEST(DictionarySource, EnglishDefinitionsAreNotTakenForOurOwn) {
  const std::string lines =
      entryLines({{WordClass::Noun, Language::English, "a slope"}}, Examples::With);
  EXPECT_EQ(lines, "_#noun #a slope");
  EXPECT_TRUE(readOwnNotation(lines, "bank").blocks.empty());
}

TEST(DictionarySource, AFormThatHasAlternativesNamesThem) {
  EXPECT_EQ(alternativesOf("got"), std::vector<std::string>{"got"});
  EXPECT_EQ(alternativesOf("learnt/learned"), (std::vector<std::string>{"learnt", "learned"}));
}

TEST(DictionarySource, ReportsWhatIsWrongInTheFinerParts) {
  EXPECT_EQ(problemsOf("go\n  v. 2 đi\n"),
            std::vector<std::string>{
                "d.txt:2:6: the senses of a class count 1, 2, 3 and stand together"});
  EXPECT_EQ(problemsOf("go\n  v. 1 đi\n  n. 1 lượt\n  v. 2 trở nên\n").back(),
            "d.txt:4:6: the senses of a class count 1, 2, 3 and stand together");
  const std::string use =
      "in square brackets may stand u, c, u c, sg or pl, ahead of a noun's gloss";
  EXPECT_EQ(problemsOf("go\n  v. [c] đi\n"), std::vector<std::string>{"d.txt:2:6: " + use});
  EXPECT_EQ(problemsOf("go\n  n. [x] lượt\n"), std::vector<std::string>{"d.txt:2:6: " + use});
  EXPECT_EQ(problemsOf("go\n  n. [c]\n").front(), "d.txt:2:6: " + use);
  EXPECT_EQ(problemsOf("go\n  v. đi:\n"), std::vector<std::string>{});
  EXPECT_EQ(problemsOf("go\n  v. đi\n  phrases: go on\n"),
            std::vector<std::string>{"d.txt:3:12: a phrase must be \"English = Vietnamese\", and "
                                     "\"; \" parts two of them"});
  EXPECT_EQ(problemsOf("go\n  v. đi\n  phrases: a = b; a = b; a = b; a = b; a = b\n"),
            std::vector<std::string>{"d.txt:3:1: a head word has at most 4 phrases"});
  EXPECT_EQ(problemsOf("go\n  v. đi\n  forms: went\n  forms: gone\n"),
            std::vector<std::string>{"d.txt:4:1: the forms of a head word stand on one line"});
}

TEST(DictionarySource, RefusesWhatAnEntryWouldNotGiveBack) {
  const std::vector<std::string> alone = {
      "d.txt:2:6: a sense that is not followed by a second one has no number"};
  EXPECT_EQ(problemsOf("go\n  v. 1 đi\n"), alone);
  EXPECT_EQ(problemsOf("go\n  v. 1 đi\n  v. trở nên\n"), alone);
  EXPECT_EQ(problemsOf("go\n  v. 1 đi\n\nsee\n  v. thấy\n"), alone);
  EXPECT_EQ(problemsOf("go\n  v. 1 đi\n    > I go. = Tôi đi.\n  v. 2 trở nên\n  n. lượt\n"),
            std::vector<std::string>{});
  const std::string taken = "a gloss that begins with \"/\" or a number would be taken for a "
                            "pronunciation or for the number of a sense";
  EXPECT_EQ(problemsOf("go\n  v. /gou/ đi\n"), std::vector<std::string>{"d.txt:2:6: " + taken});
  EXPECT_EQ(problemsOf("go\n  n. [u] 1 lượt\n"), std::vector<std::string>{"d.txt:2:10: " + taken});
  EXPECT_EQ(problemsOf("saw\n  n. cái cưa\n\nsaw\n  v. cưa\n  forms-first\n"),
            std::vector<std::string>{
                "d.txt:6:1: \"forms-first\" stands with the first of two words of one spelling"});
}

TEST(DictionarySource, ReportsWhatIsWrongAndWhere) {
  EXPECT_EQ(problemsOf("go\n\n"),
            std::vector<std::string>{"d.txt:1:1: the head word has no sense"});
  EXPECT_EQ(problemsOf("go\n  x. đi\n").front(),
            "d.txt:2:3: a line below a head word must be a sense, an example, phrases or forms");
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
