// Choice and layout of the Vietnamese side, and that the program finds every entry of it.
#include "pack/VietnameseSide.h"

#include "dictionary/DictionaryRun.h"
#include "dictionary/VietnameseSide.h"
#include "pack/Compiler.h"
#include "pack/DictionaryStore.h"
#include "pack/StreamText.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace talvora::pack {
namespace {

static_assert(VietnameseSideCount == talvora::VietnameseSide::EntryCount);

std::vector<SideEntry> sideOf(const std::string& dictionary,
                              const std::vector<std::string>& listed) {
  Problems problems;
  WordSources sources;
  sources.own = parseDictionary(dictionary, "d.txt", problems);
  sources.listed = listed;
  sources.known.insert(listed.begin(), listed.end());
  const WordList list = fillWordList(sources, FullWordCount, Filling::OwnOnly, problems);
  EXPECT_TRUE(problems.none());
  return vietnameseSideOf(list, listed);
}

std::vector<std::string> textsOf(const std::vector<SideEntry>& entries) {
  std::vector<std::string> texts;
  for (const SideEntry& entry : entries)
    texts.push_back(utf8Of(entry.text));
  return texts;
}

using Texts = std::vector<std::string>;

TEST(VietnameseSideOfPack, TakesTheFirstMeaningOfTheCommonestSense) {
  EXPECT_EQ(textsOf(sideOf("lot\n  n. nhiều, số lượng lớn; lô đất\n  v. chia\n", {})),
            Texts{"lot~nhiều, số lượng lớn"});
}

TEST(VietnameseSideOfPack, ALongMeaningGoesWithoutItsRemark) {
  EXPECT_EQ(textsOf(sideOf("off\n  adv. tắt (đèn)\n  adv. xa\n", {})), Texts{"off~tắt (đèn)"});
  EXPECT_EQ(textsOf(sideOf("owl\n  n. con cú (chim ăn đêm, mắt to)\n", {})), Texts{"owl~con cú"});
}

TEST(VietnameseSideOfPack, AHeadWordThatIsMetAsAFormHasTheMeaningOfTheForm) {
  const std::string see = "see\n  v. thấy\n  forms: saw, seen\n\nsaw\n  n. cái cưa\n";
  EXPECT_EQ(textsOf(sideOf(see, {})), (Texts{"saw~cái cưa", "see~thấy", "seen~thấy <see>"}));
  EXPECT_EQ(textsOf(sideOf(see + "  forms-first\n", {})),
            (Texts{"saw~thấy <see>", "see~thấy", "seen~thấy <see>"}));
}

TEST(VietnameseSideOfPack, TwoWordsOfOneSpellingPassOnTheirOwnMeanings) {
  EXPECT_EQ(textsOf(sideOf("lie\n  v. nằm\n  forms: lay, lain\n\n"
                           "lie\n  v. nói dối\n  forms: lied, lied\n",
                           {})),
            (Texts{"lain~nằm <lie>", "lay~nằm <lie>", "lie~nằm", "lied~nói dối <lie>"}));
}

TEST(VietnameseSideOfPack, SemicolonsInBracketsPartNothing) {
  EXPECT_EQ(textsOf(sideOf("cut\n  v. cắt (giấy; cây) rời ra\n", {})),
            Texts{"cut~cắt (giấy; cây) rời ra"});
}

TEST(VietnameseSideOfPack, FormsTakeASenseOfTheirClassAndNameTheirBase) {
  EXPECT_EQ(textsOf(sideOf("book\n  n. sách\n  v. đặt chỗ\n", {"books", "booked"})),
            (Texts{"book~sách", "booked~đặt chỗ <book>", "books~sách <book>"}));
  EXPECT_EQ(textsOf(sideOf("go\n  v. đi\n  forms: went, gone\n", {})),
            (Texts{"go~đi", "gone~đi <go>", "went~đi <go>"}));
}

/// As `sideOf`, with the words that are built from ours in the list.
std::vector<SideEntry> wholeSideOf(const std::string& dictionary,
                                   const std::vector<std::string>& listed) {
  Problems problems;
  WordSources sources;
  sources.own = parseDictionary(dictionary, "d.txt", problems);
  sources.listed = listed;
  sources.known.insert(listed.begin(), listed.end());
  const WordList list = fillWordList(sources, FullWordCount, Filling::Full, problems);
  return vietnameseSideOf(list, listed);
}

TEST(VietnameseSideOfPack, BuiltWordsAndPossessivesSayWhatTheyAddToTheirBase) {
  EXPECT_EQ(textsOf(wholeSideOf("kind\n  n. loại\n  adj. tốt bụng\n",
                                {"kindly", "kindness", "unkind", "kind's", "kindful"})),
            (Texts{"kind~loại", "kind's~của loại <kind>", "kindly~một cách tốt bụng <kind>",
                   "kindness~sự tốt bụng <kind>", "unkind~không tốt bụng <kind>"}));
}

TEST(VietnameseSideOfPack, NothingIsBuiltFromAnAdjectiveOfSeveralMeanings) {
  EXPECT_EQ(
      textsOf(wholeSideOf("clear\n  adj. rõ ràng; trong\n\nborn\n  adj. sinh ra (ở đâu)\n"
                          "\nrural\n  adj. thuộc nông thôn\n\n"
                          "right\n  adj. 1 đúng\n  adj. 2 phải\n",
                          {"unclear", "unborn", "rurally", "rightly"})),
      (Texts{"born~sinh ra (ở đâu)", "clear~rõ ràng", "right~đúng", "rural~thuộc nông thôn"}));
}

TEST(VietnameseSideOfPack, ANamesPossessiveIsNotThatOfTheWord) {
  EXPECT_EQ(textsOf(sideOf("baker\n  n. thợ làm bánh\n", {"Baker's"})),
            Texts{"baker~thợ làm bánh"});
}

TEST(VietnameseSideOfPack, OnlyAdjectivesTakeAffixes) {
  EXPECT_EQ(textsOf(sideOf("lock\n  v. khóa\n", {"unlock"})), Texts{"lock~khóa"});
}

TEST(VietnameseSideOfPack, LettersThatAreNoWordsHaveNoEntry) {
  EXPECT_EQ(textsOf(sideOf("I\n  pron. tôi\n", {})), Texts{"i~tôi"});
}

TEST(VietnameseSideOfPack, ASmallListHasOnlyWhatThereIs) {
  Problems problems;
  Options options;
  options.source = TALVORA_SMALL_CONTENT;
  options.smallWordList = 200;
  const Content content = readContent(options, problems, [](std::string_view) {});
  const WordList list = makeWordList(content, options, problems);
  const auto entries = makeVietnameseSide(content, list, options, problems);
  EXPECT_TRUE(problems.none());
  EXPECT_GT(entries.size(), 10U);
  EXPECT_LT(entries.size(), list.size());
}

TEST(VietnameseSideOfPack, AFullListThatStaysShortIsReported) {
  Problems problems;
  const Content content;
  const WordList list(1);
  EXPECT_TRUE(makeVietnameseSide(content, list, Options{}, problems).empty());
  ASSERT_EQ(problems.all().size(), 1U);
  EXPECT_NE(problems.all()[0].message.find("needs 12238"), std::string::npos);
}

// The dictionary of the repository, with the installed word lists.
WordSources installedSources() {
  Problems problems;
  WordSources sources;
  sources.own = readDictionary(TALVORA_CONTENT "/dictionary", problems);
  for (const auto& path : Options{}.wordLists)
    readListedWords(path, sources, problems);
  return sources;
}

/// Stands for the program with the three files of a Vietnamese side.
class Search {
 public:
  explicit Search(const std::vector<SideEntry>& entries) {
    for (const PackFile& file : compileVietnameseSide(entries))
      run_.folder.write(file.name, file.bytes);
    run_.stores.MoDuLieu();
    side_.NapTuD(run_.machine.events);
  }

  std::string find(const std::string& key) {
    side_.TimTuD(key);
    return run_.state.word.NghiaD;
  }

 private:
  test::DictionaryRun run_{{}};
  talvora::VietnameseSide side_{run_.controls, run_.state,  run_.stores,
                                run_.shell,    run_.speech, run_.dictionary.lookUp()};
};

TEST(VietnameseSideOfPack, TheProgramFindsEveryEntry) {
  const WordSources sources = installedSources();
  ASSERT_FALSE(sources.listed.empty()) << "the English word lists are not installed";
  Problems problems;
  const WordList list = fillWordList(sources, FullWordCount, Filling::OwnOnly, problems);
  const auto entries = vietnameseSideOf(list, sources.listed);
  ASSERT_EQ(entries.size(), VietnameseSideCount);
  EXPECT_TRUE(std::is_sorted(
      entries.begin(), entries.end(),
      [](const SideEntry& left, const SideEntry& right) { return left.form < right.form; }));
  Search search(entries);
  for (const SideEntry& entry : entries)
    ASSERT_EQ(search.find(entry.form), entry.text);
  EXPECT_EQ(search.find("qxqx"), "?");
}

TEST(VietnameseSideOfPack, TheProgramFindsEveryEntryOfAShortList) {
  const auto entries = sideOf("go\n  v. đi\n  forms: went, gone\n\nI\n  pron. tôi\n", {"goes"});
  Search search(entries);
  ASSERT_EQ(entries.size(), 5U);
  for (const SideEntry& entry : entries)
    EXPECT_EQ(search.find(entry.form), entry.text);
}

} // namespace
} // namespace talvora::pack
