// Dictionaries that somebody brings: their forms, what is kept of them, and the merged list.
#include "formats/Integers.h"
#include "pack/Gunzip.h"
#include "pack/LooseText.h"
#include "pack/PlainMarkup.h"
#include "pack/StreamText.h"
#include "pack/import/Dictd.h"
#include "pack/import/DictionaryImport.h"
#include "pack/import/ImportedNotation.h"
#include "pack/import/MergedDictionary.h"
#include "pack/import/StarDict.h"
#include "pack/import/TabbedDictionary.h"
#include "support/TestFolder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

namespace talvora::pack {
namespace {

using namespace std::string_literals;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

std::vector<std::string> told(const ImportedDictionary& dictionary) {
  std::vector<std::string> entries;
  for (const ImportedEntry& each : dictionary.entries)
    entries.push_back(each.head + "=" + each.text);
  return entries;
}

std::string bigEndian(std::uint32_t number) {
  std::string bytes;
  for (int shift = 24; shift >= 0; shift -= 8)
    bytes += static_cast<char>(number >> shift & 0xFFU);
  return bytes;
}

std::string indexLine(const std::string& head, std::uint32_t offset, std::uint32_t size) {
  return head + '\0' + bigEndian(offset) + bigEndian(size);
}

std::string onlyMessage(const Problems& problems) {
  return problems.all().size() == 1 ? describe(problems.all().front())
                                    : std::to_string(problems.all().size()) + " problems";
}

TEST(PlainMarkup, TagsGoAndLettersByNameBecomeLetters) {
  EXPECT_EQ(withoutMarkup("<b>a</b> &amp; b<br/>c &#7879; &#x1EC7; &bad; 1 < 2"),
            "a & b\nc ệ ệ &bad; 1 < 2");
  EXPECT_EQ(withoutMarkup("<"), "<");
  EXPECT_EQ(withoutMarkup("&#xD800;"), "&#xD800;");
}

TEST(LooseText, WhatTheFontLacksIsWrittenWithItsLikes) {
  LooseText letters("_[]");
  EXPECT_EQ(utf8Of(letters.bytesOf("naïve tiếng [a_b] Zürich ˈwɔːtə")),
            "naive tiếng (a b) Zurich 'wo:tə");
  EXPECT_THAT(letters.lost(), IsEmpty());
  EXPECT_EQ(utf8Of(letters.bytesOf("a\n漢\xFF")), "a ");
  EXPECT_EQ(lostLetters(letters.lost(), 5), "漢 1, \uFFFD 1");
}

TEST(Gunzip, WhatIsNotPackedComesBackAsItIs) {
  EXPECT_EQ(unpacked("plain", 100).bytes, "plain");
}

TEST(Gunzip, DamageIsToldWithItsOffset) {
  EXPECT_THAT(unpacked("\x1F\x8B\x08\0\0\0\0\0\0\x03"s, 100).problem, HasSubstr("offset 10"));
  EXPECT_THAT(unpacked("\x1F\x8B\x08\0\0\0\0\0\0\x03\xFF\xFF\xFF"s, 100).problem,
              HasSubstr("damaged"));
}

TEST(StarDict, EntriesAndSynonymsAreRead) {
  const std::string articles = "con chó<b>!</b>";
  const std::string index = indexLine("dog", 0, static_cast<std::uint32_t>(articles.size()));
  const std::string synonyms = "hound\0"s + bigEndian(0);
  Problems problems;
  const auto dictionary =
      readStarDict({"StarDict's dict ifo file\nbookname=Nhỏ\nsametypesequence=h\n", index, synonyms,
                    articles, "a.idx"},
                   problems);
  EXPECT_EQ(dictionary.name, "Nhỏ");
  EXPECT_THAT(told(dictionary), ElementsAre("dog=con chó!", "hound=con chó!"));
  EXPECT_TRUE(problems.none());
}

TEST(StarDict, AnEntryMayNameTheKindsOfItsPartsItself) {
  const std::string articles = "tdɒɡ\0W"s + bigEndian(3) + "abcmcon chó\0"s;
  const std::string index = indexLine("dog", 0, static_cast<std::uint32_t>(articles.size()));
  Problems problems;
  EXPECT_THAT(told(readStarDict({"", index, "", articles, "a.idx"}, problems)),
              ElementsAre("dog=/dɒɡ/\ncon chó"));
}

TEST(StarDict, AnEntryOutsideTheArticlesIsToldWithItsOffset) {
  Problems problems;
  const std::string index = indexLine("a", 0, 1) + indexLine("b", 1, 0xFFFFFFFF);
  static_cast<void>(readStarDict({"sametypesequence=m", index, "", "x", "a.idx"}, problems));
  EXPECT_EQ(onlyMessage(problems),
            "a.idx: offset 10: the entry \"b\" lies outside the file of articles");
}

TEST(StarDict, AnIndexThatIsCutShortIsToldWithItsOffset) {
  Problems problems;
  const std::string index = indexLine("a", 0, 1) + "b\0\0"s;
  static_cast<void>(readStarDict({"sametypesequence=m", index, "", "x", "a.idx"}, problems));
  EXPECT_EQ(onlyMessage(problems), "a.idx: offset 10: the index ends within an entry");
}

TEST(Dictd, EntriesAreReadAndTheDictionarysOwnAreNot) {
  Problems problems;
  const auto dictionary = readDictd("00-database-short\tA\tJ\nbark\tJ\tG\nwoof\tJ\tG\tWoof!\n",
                                    "00-\nName.see {x}", "a.index", problems);
  EXPECT_EQ(dictionary.name, "Name.");
  EXPECT_THAT(told(dictionary), ElementsAre("bark=see x", "Woof!=see x"));
}

TEST(Dictd, ALineThatIsNoneIsToldWithItsNumber) {
  for (const std::string line : {"bark", "bark\tA", "bark\tA\t!", "bark\tA\tAAAAAAAAAAAA"}) {
    Problems problems;
    static_cast<void>(readDictd("a\tA\tA\n" + line + "\n", "x", "a.index", problems));
    EXPECT_THAT(onlyMessage(problems), HasSubstr("a.index:2:1: a line must be")) << line;
  }
  Problems problems;
  static_cast<void>(readDictd("a\tA\tZ\n", "x", "a.index", problems));
  EXPECT_THAT(onlyMessage(problems), HasSubstr("a.index:1:1: offset 0 and length 25 lie outside"));
}

TEST(TabbedDictionary, ALineIsAWordAndItsEntry) {
  Problems problems;
  EXPECT_THAT(told(readTabbed("\xEF\xBB\xBF# a comment\ndog\tcon chó\\ncon <i>cún</i>\r\n", "a.tsv",
                              problems)),
              ElementsAre("dog=con chó\ncon cún"));
  static_cast<void>(readTabbed("dog\tx\ncat\n", "a.tsv", problems));
  EXPECT_EQ(onlyMessage(problems), "a.tsv:2:1: a line must be a word, a tab and its entry");
}

TEST(ImportedNotation, TheNameStandsAheadAndTheHeadIsNotRepeated) {
  NotationWriter writer("Từ điển_nhỏ");
  EXPECT_EQ(utf8Of(writer.notationOf("dog", "Dog\n  con  chó\n\n[a]").text),
            "_#Từ điển nhỏ #con chó_(a)");
  EXPECT_EQ(writer.notationOf("dog", "dog\n").text, "");
}

TEST(ImportedNotation, ALongTextIsCutAtTheEndOfAWord) {
  NotationWriter writer("N");
  std::string text;
  for (int word = 0; word < 1000; ++word)
    text += "word ";
  const auto notation = writer.notationOf("x", text);
  EXPECT_TRUE(notation.cut);
  EXPECT_LE(notation.text.size(), LongestImportedText + 10);
  EXPECT_TRUE(notation.text.ends_with("word ..."));
}

class MergedDictionaryTest : public testing::Test {
 protected:
  MergedDictionaryTest() {
    add("bank", "/bæŋk/_#danh từ #ngân hàng");
    add("bank's", "_sở hữu cách của bank_#danh từ #ngân hàng");
    add("river", "_#danh từ #sông");
    folder.write("datatu.txt", words);
    folder.write("data.mtd", records);
    folder.write("data.avt", entries);
  }
  void add(const std::string& head, const std::string& entry) {
    words += head + "\n";
    appendInteger(records, entries.size() + 1);
    appendInteger(records, words.size());
    appendStored(entries, ownText(entry) + "\r");
  }
  /// Merges, puts the result into the folder and gives its entries.
  std::vector<std::string> merged(const std::vector<ImportedEntry>& brought, MergeOrder order,
                                  std::size_t room = 100) {
    Problems problems;
    const PackDictionary own(folder.path(), problems);
    auto result = merge(own, {{"N", brought, 0}}, order, room);
    report = result.report;
    const std::filesystem::path out = std::filesystem::path(folder.path()) / "out";
    std::filesystem::create_directories(out);
    for (const PackFile& file : result.files)
      static_cast<void>(store(file, out));
    const PackDictionary whole(out, problems);
    std::vector<std::string> lines;
    for (std::size_t at = 0; at < whole.size(); ++at) {
      lines.push_back(std::string(whole.headAt(at)) + utf8Of(whole.entryAt(at)));
      EXPECT_EQ(whole.find(whole.headAt(at)), at);
    }
    return lines;
  }

  test::TestFolder folder;
  std::string words;
  std::string records;
  std::string entries;
  MergeReport report;
};

TEST_F(MergedDictionaryTest, WhatWasBroughtComesBehindOrAhead) {
  const std::vector<ImportedEntry> brought = {{"Bank", "bờ"}, {"boat", "thuyền"}};
  EXPECT_THAT(merged(brought, MergeOrder::OwnFirst),
              ElementsAre("bank/bæŋk/_#danh từ #ngân hàng_#N #bờ",
                          "bank's_sở hữu cách của bank_#danh từ #ngân hàng", "boat_#N #thuyền",
                          "river_#danh từ #sông"));
  EXPECT_EQ(report.joined, 1U);
  EXPECT_EQ(report.added, 1U);
  EXPECT_EQ(merged(brought, MergeOrder::ImportedFirst).front(),
            "bank/bæŋk/_#N #bờ_#danh từ #ngân hàng");
}

TEST_F(MergedDictionaryTest, NewWordsTakeThePlacesOfPossessives) {
  EXPECT_THAT(
      merged({{"in boats", "x"}, {"boat", "thuyền"}}, MergeOrder::OwnFirst, 3),
      ElementsAre("bank/bæŋk/_#danh từ #ngân hàng", "boat_#N #thuyền", "river_#danh từ #sông"));
  EXPECT_EQ(report.displaced, 1U);
  EXPECT_EQ(report.noRoom, 1U);
}

TEST_F(MergedDictionaryTest, WhatNoSearchFindsIsCounted) {
  EXPECT_THAT(merged({{"漢", "x"}, {"42", "x"}, {"", "x"}, {"boat", "漢"}}, MergeOrder::OwnFirst),
              SizeIs(3));
  EXPECT_EQ(report.notEnglish, 3U);
  EXPECT_EQ(report.added, 0U);
}

TEST_F(MergedDictionaryTest, ADamagedDictionaryChangesNothing) {
  const std::string learner = folder.path() + "/learner";
  std::ostringstream out;
  const auto import = [&](const std::string& content) {
    folder.write("d.tsv", content);
    return importDictionaries(
        {{folder.path() + "/d.tsv"}, MergeOrder::OwnFirst, folder.path(), learner}, out,
        [](std::string_view) {});
  };
  EXPECT_EQ(import("boat\n"), ListResult::Impossible);
  EXPECT_THAT(out.str(), HasSubstr("d.tsv:1:1:"));
  EXPECT_FALSE(std::filesystem::exists(learner));
  EXPECT_EQ(import("boat\tthuyền\n"), ListResult::Fine);
  EXPECT_TRUE(std::filesystem::exists(learner + "/dictionary/data.avt"));
  EXPECT_EQ(import(""), ListResult::Impossible);
  EXPECT_TRUE(std::filesystem::exists(learner + "/dictionary/data.avt"));
  EXPECT_EQ(removeImported(learner, out), ListResult::Fine);
  EXPECT_FALSE(std::filesystem::exists(learner + "/dictionary"));
}

} // namespace
} // namespace talvora::pack
