// The whole way from a content tree to a pack and back.
#include "pack/Compiler.h"

#include "formats/Integers.h"
#include "pack/Dump.h"
#include "pack/SourceFile.h"
#include "pack/Status.h"
#include "pack/StreamText.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>

namespace talvora::pack {
namespace {

const std::filesystem::path content = TALVORA_SMALL_CONTENT;

Options smallOptions() {
  Options options;
  options.source = content;
  options.smallWordList = 200;
  return options;
}

void noProgress(std::string_view) {}

std::vector<PackFile> compiled() {
  Problems problems;
  auto files = compile(smallOptions(), problems, noProgress);
  for (const Problem& problem : problems.all())
    ADD_FAILURE() << describe(problem);
  return files;
}

std::string bytesOf(const std::vector<PackFile>& files, std::string_view name) {
  const auto found = std::find_if(files.begin(), files.end(),
                                  [name](const PackFile& file) { return file.name == name; });
  return found != files.end() ? found->bytes : "(missing)";
}

TEST(Compiler, MakesEveryFileThatTheProgramOpens) {
  const auto files = compiled();
  std::vector<std::string> names;
  for (const PackFile& file : files)
    names.push_back(file.name);
  std::sort(names.begin(), names.end());
  EXPECT_EQ(names,
            (std::vector<std::string>{
                "DataS",        "data.Kcu",  "data.Muc",  "data.av",           "data.avt",
                "data.bt",      "data.c",    "data.mtd",  "data.vbt",          "data.vt",
                "dataABCD.rtf", "dataD.av",  "dataD.vt",  "dataN.av",          "dataN.vt",
                "dataPt.v",     "dataPt.vt", "datasp.av", "datasp.vt",         "datatu.txt",
                "datatuD.txt",  "datavp.n",  "datavp.vt", "pronunciation.txt", "readme.rtf"}));
}

TEST(Compiler, TablesHaveTheirFixedSizes) {
  const auto files = compiled();
  EXPECT_EQ(bytesOf(files, "data.vt").size(), 817U * 4);
  EXPECT_EQ(bytesOf(files, "datasp.vt").size(), 4051U * 4);
  EXPECT_EQ(bytesOf(files, "datavp.vt").size(), 357U * 4);
  EXPECT_EQ(bytesOf(files, "dataN.vt").size(), 556U * 4);
  EXPECT_EQ(bytesOf(files, "data.Muc").size(), 366U * 2);
  // One item for each section, and the samples: 25 of a bank and 3 of a lesson.
  EXPECT_EQ(bytesOf(files, "data.vbt").size(), 2U * (364 + 25 + 4) * 4);
}

TEST(Compiler, FirstSettingsTurnTheSoundOnAtMiddleSpeed) {
  const std::string settings = bytesOf(compiled(), "data.Kcu");
  ASSERT_EQ(settings.size(), 76U);
  for (std::size_t record = 1; record <= 19; ++record) {
    EXPECT_EQ(integerAt(settings, record), record == 2 ? 1 : record == 4 ? 5 : 0);
  }
}

TEST(Compiler, OpenSlotsSayThatTheyAreBeingWritten) {
  const auto files = compiled();
  EXPECT_EQ(storedUntil(bytesOf(files, "datavp.n"), 0, '@'),
            ownText("(đang soạn)") + "\r" +
                ownText("Bài này đang được soạn, mời bạn học một bài khác nhé."));
  const std::string item =
      *storedUntil(bytesOf(files, "dataN.av"), integerAt(bytesOf(files, "dataN.vt"), 556), '@');
  // An open record stands behind the ninth unit, where the program does not play it.
  EXPECT_EQ(utf8Of(item.substr(0, 3)), "10 ");
  EXPECT_EQ(std::count(item.begin(), item.end(), '\r'), 5);
}

TEST(Compiler, BuildsTheSameBytesEveryTime) {
  const auto first = compiled();
  const auto second = compiled();
  ASSERT_EQ(first.size(), second.size());
  for (std::size_t place = 0; place < first.size(); ++place) {
    EXPECT_EQ(first[place].bytes, second[place].bytes) << first[place].name;
  }
}

TEST(Compiler, ADumpGivesTheSourcesBack) {
  const test::TemporaryFolder owned;
  const std::filesystem::path& pack = owned.path();
  for (const PackFile& file : compiled())
    ASSERT_FALSE(store(file, pack));
  Problems problems;
  const auto sources = dump(pack, problems);
  ASSERT_TRUE(problems.none()) << describe(problems.all().front());
  const auto textOf = [&sources](const std::string& name) {
    const auto found = std::find_if(sources.begin(), sources.end(),
                                    [&name](const SourceText& each) { return each.name == name; });
    return found != sources.end() ? found->text : "(missing)";
  };
  EXPECT_EQ(textOf("reading/004-text.txt"), readWhole(content / "reading/004-the-old-bank.txt"));
  EXPECT_EQ(textOf("reading/400-text.txt"), readWhole(content / "reading/400-listening-one.txt"));
  EXPECT_EQ(textOf("reading/headings.txt"), "1\tMỞ ĐẦU VÀ LÀM QUEN\n3\tBÀI NGẮN\n");
  EXPECT_EQ(textOf("dictionary/g.txt"),
            "go A1\n  v. 1 đi: go to school, go home\n  v. 2 đi (làm gì): go swimming\n"
            "    > We go to school by bus. = Chúng tôi đi học bằng xe buýt.\n"
            "  n. [c] lượt\n  phrases: go on = tiếp tục; go out = ra ngoài, tắt\n"
            "  forms: went, gone\n");
  EXPECT_EQ(textOf("dictionary/z.txt"), "(missing)");
}

TEST(Compiler, NeverOverwritesWhatTheLearnerOwns) {
  const test::TemporaryFolder owned;
  const std::filesystem::path& pack = owned.path();
  std::ofstream(pack / "data.c") << "mine";
  std::ofstream(pack / "data.vt") << "old";
  for (const PackFile& file : compiled())
    ASSERT_FALSE(store(file, pack));
  EXPECT_EQ(readWhole(pack / "data.c"), "mine");
  EXPECT_NE(readWhole(pack / "data.vt"), "old");
  EXPECT_FALSE(std::filesystem::exists(pack / "data.vt.new"));
}

TEST(Compiler, AFolderThatCannotBeWrittenIsAFailure) {
  EXPECT_TRUE(store({"data.vt", "x"}, "/dev/null/in-no-folder"));
}

TEST(Compiler, AMissingSourceIsReported) {
  Options options = smallOptions();
  options.source = "/nowhere/at/all";
  Problems problems;
  EXPECT_TRUE(compile(options, problems, noProgress).empty());
  EXPECT_FALSE(problems.none());
}

TEST(Compiler, AFullListThatStaysShortIsReported) {
  const test::TemporaryFolder owned;
  const std::filesystem::path& folder = owned.path();
  for (const char* part : {"noun", "verb", "adj", "adv"}) {
    std::ofstream(folder / ("index." + std::string(part))) << "  1 licence\n";
    std::ofstream(folder / ("data." + std::string(part))) << "  1 licence\n";
    std::ofstream(folder / (std::string(part) + ".exc"));
  }
  Options options;
  options.source = content;
  options.wordNet = folder;
  options.wordLists = {};
  Problems problems;
  EXPECT_TRUE(compile(options, problems, noProgress).empty());
  ASSERT_EQ(problems.all().size(), 1U);
  EXPECT_NE(problems.all()[0].message.find("needs 385082"), std::string::npos);
}

TEST(Status, ListsWordsWithoutAVietnameseSense) {
  Problems problems;
  const Options options = smallOptions();
  const Content read = readContent(options, problems, noProgress);
  const WordList list = makeWordList(read, options, problems);
  ASSERT_TRUE(problems.none());
  const CoverageReport coverage = coverageOf(corporaOf(read), list, {});
  const auto& missing = coverage.corpora.front().missingWords;
  EXPECT_TRUE(missing.contains("home"));
  EXPECT_FALSE(missing.contains("bank"));
  EXPECT_FALSE(missing.contains("children"));
  EXPECT_FALSE(missing.contains("studied"));
  const std::string report = statusReport(read, list, coverage);
  EXPECT_NE(report.find("5 texts, 2 headings, 401 open"), std::string::npos);
  EXPECT_NE(report.find("running words"), std::string::npos);
  EXPECT_NE(report.find("BÀI NGẮN: 4 texts, "), std::string::npos);
  EXPECT_NE(report.find("unit 1: 2\n"), std::string::npos);
}

} // namespace
} // namespace talvora::pack
