// Filling of the word list, and the files it becomes.
#include "pack/FilledList.h"

#include "formats/Integers.h"
#include "pack/DictionaryStore.h"
#include "pack/StreamText.h"
#include "pack/WordCoverage.h"

#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

WordSources smallSources() {
  Problems problems;
  WordSources sources;
  sources.own = parseDictionary("I\n  pron. tôi\n\nleave\n  v. rời đi\n  forms: left\n\n"
                                "walk\n  v. đi bộ\n  n. cuộc đi bộ\n",
                                "d.txt", problems);
  sources.wordNet.words = {
      {"Left Bank", {WordClass::Noun}, {{WordClass::Noun, Language::English, "a part", ""}}},
      {"chief of staff", {WordClass::Noun}, {{WordClass::Noun, Language::English, "a head", ""}}},
      {"chief", {WordClass::Noun}, {{WordClass::Noun, Language::English, "a leader", ""}}},
      {"left", {WordClass::Noun}, {{WordClass::Noun, Language::English, "a side", ""}}},
      {"walk out", {WordClass::Verb}, {{WordClass::Verb, Language::English, "leave", ""}}},
      {"hidden", {WordClass::Noun}, {}}};
  sources.listed = {"walks", "walking", "walker", "walker's", "chiefs", "zebra"};
  for (const std::string& word : sources.listed)
    sources.known.insert(word);
  return sources;
}

WordList filled(std::size_t limit = FullWordCount, Filling filling = Filling::Full) {
  Problems problems;
  WordList list = fillWordList(smallSources(), limit, filling, problems);
  EXPECT_TRUE(problems.none());
  return list;
}

std::string entry(const WordList& list, const std::string& form) {
  const auto number = list.find(form);
  return number ? utf8Of(list.entryOf(list.at(*number))) : "(none)";
}

TEST(FilledList, LettersCarryTheEntriesOfWordsOfOneLetter) {
  const WordList list = filled();
  EXPECT_EQ(entry(list, "i"), "_#đại từ #tôi_chữ cái thứ 9 của bảng chữ cái tiếng Anh");
  EXPECT_EQ(entry(list, "z"), "_chữ cái thứ 26 của bảng chữ cái tiếng Anh");
}

TEST(FilledList, FormsSayWhatTheyAreAndBorrowTheSensesOfTheirClass) {
  const WordList list = filled();
  EXPECT_EQ(entry(list, "walking"), "_dạng -ing của walk_#động từ #đi bộ");
  EXPECT_EQ(entry(list, "left"), "_quá khứ và quá khứ phân từ của leave_#động từ #rời đi");
  EXPECT_EQ(entry(list, "walking out"), "_dạng -ing của walk out_#verb #leave");
  EXPECT_EQ(entry(list, "chiefs of staff"), "_dạng số nhiều của chief of staff_#noun #a head");
}

/// The entry of a word in a list of our own entries alone.
std::string ownEntry(const std::string& dictionary, const std::string& form,
                     const std::vector<std::string>& known = {}) {
  Problems problems;
  WordSources sources;
  sources.own = parseDictionary(dictionary, "d.txt", problems);
  sources.known.insert(known.begin(), known.end());
  const WordList list = fillWordList(sources, FullWordCount, Filling::OwnOnly, problems);
  EXPECT_TRUE(problems.none());
  return entry(list, form);
}

TEST(FilledList, AHeadWordThatIsAlsoAFormShowsBoth) {
  const std::string see = "see A1\n  v. thấy\n  forms: saw, seen\n\n";
  EXPECT_EQ(ownEntry(see + "saw B1\n  n. cái cưa\n  forms: saws\n", "saw"),
            "(saws) B1_#danh từ #cái cưa_quá khứ của see_#động từ #thấy");
  EXPECT_EQ(ownEntry(see + "saw B1\n  n. cái cưa\n  v. cưa\n  forms: sawed, sawn\n"
                           "  forms-first\n",
                     "saw"),
            "_quá khứ của see_#động từ #thấy_saw (sawed, sawn) B1_#danh từ #cái cưa_#động từ #cưa");
  EXPECT_EQ(
      ownEntry("work\n  v. làm việc\n\nworking\n  adj. đang làm việc\n", "working", {"working"}),
      "_#tính từ #đang làm việc_dạng -ing của work_#động từ #làm việc");
}

TEST(FilledList, AHeadWordThatIsNoFormOpensWithItsOwnSensesWhateverItSays) {
  EXPECT_EQ(ownEntry("saw B1\n  n. cái cưa\n  forms: saws\n  forms-first\n", "saw"),
            "(saws) B1_#danh từ #cái cưa");
}

TEST(FilledList, TwoVerbsOfOneSpellingKeepTheirForms) {
  const std::string lie = "lie A2\n  v. nằm\n  forms: lay, lain\n\n"
                          "lie B1\n  v. nói dối\n  n. lời nói dối\n  forms: lied, lied\n";
  const std::vector<std::string> known = {"lies", "lying"};
  EXPECT_EQ(ownEntry(lie, "lie", known),
            "(lay, lain) A2_#động từ #nằm_lie (lied, lied) B1_#động từ #nói dối"
            "_#danh từ #lời nói dối");
  EXPECT_EQ(ownEntry(lie, "lied", known), "_quá khứ và quá khứ phân từ của lie_#động từ #nói dối");
  EXPECT_EQ(ownEntry(lie, "lain", known), "_quá khứ phân từ của lie_#động từ #nằm");
  EXPECT_EQ(ownEntry(lie, "lying", known), "_dạng -ing của lie_#động từ #nằm_#động từ #nói dối");
}

TEST(FilledList, APackGivesBackAllKindsOfOwnEntries) {
  const std::string source = "lie A2\n  v. nằm\n  forms: lay, lain\n\n"
                             "lie B1\n  v. nói dối\n  forms: lied, lied\n\n"
                             "saw\n  n. cái cưa\n  forms-first\n\n"
                             "saw\n  v. cưa\n  forms: sawed, sawn\n\n"
                             "see A1\n  v. thấy\n  forms: saw, seen\n";
  Problems problems;
  WordSources sources;
  sources.own = parseDictionary(source, "d.txt", problems);
  const WordList list = fillWordList(sources, FullWordCount, Filling::OwnOnly, problems);
  const auto files = compileDictionary(list);
  std::string back;
  for (const OwnEntry& each :
       decodeOwnEntries(files[0].bytes, files[1].bytes, files[2].bytes, problems))
    back += (back.empty() ? "" : "\n") + writeEntry(each);
  EXPECT_TRUE(problems.none());
  EXPECT_EQ(back, source);
}

TEST(FilledList, BuiltWordsAndPossessivesLeadToTheirBase) {
  const WordList list = filled();
  EXPECT_EQ(entry(list, "walker"),
            "_cấu tạo: walk + -er (người hoặc vật làm việc đó)_#động từ #đi bộ"
            "_#danh từ #cuộc đi bộ");
  EXPECT_EQ(entry(list, "walker's"),
            "_sở hữu cách của walker_cấu tạo: walk + -er (người hoặc vật làm việc đó)"
            "_#động từ #đi bộ_#danh từ #cuộc đi bộ");
}

WordNetWord inWordNet(std::string head, WordClass wordClass, std::string definition,
                      std::vector<SynsetKey> synsets, std::vector<SynsetKey> ties = {}) {
  return {std::move(head),
          {wordClass},
          {{wordClass, Language::English, std::move(definition)}},
          std::move(synsets),
          std::move(ties)};
}

TEST(FilledList, AWordThatTheDatabaseTiesToOneOfOursSaysSoAheadOfItsDefinition) {
  Problems problems;
  WordSources sources;
  sources.own = parseDictionary("clear\n  adj. rõ ràng\n\nlad\n  n. cậu bé\n\n"
                                "build\n  v. xây\n  forms: built, built\n\n"
                                "current\n  n. dòng\n\nwash\n  v. rửa\n\n"
                                "table\n  n. bàn\n\ncap\n  n. mũ\n",
                                "d.txt", problems);
  using enum WordClass;
  sources.wordNet.words = {inWordNet("build", Verb, "make", {30}),
                           inWordNet("cap", Noun, "a hat", {60}),
                           inWordNet("capable", Adjective, "having skill", {61}),
                           inWordNet("clear", Adjective, "plain", {10}),
                           inWordNet("clearly", Adverb, "plainly", {11}, {10}),
                           inWordNet("current", Noun, "a flow", {40}),
                           inWordNet("lad", Noun, "a boy", {20}),
                           inWordNet("ladder", Noun, "steps", {21}, {22}),
                           inWordNet("rebuild", Verb, "build again", {31}),
                           inWordNet("recurrent", Adjective, "happening again", {41}),
                           inWordNet("wash", Verb, "clean", {50}),
                           inWordNet("washable", Adjective, "capable of being washed", {51})};
  const WordList list = fillWordList(sources, FullWordCount, Filling::Full, problems);
  EXPECT_EQ(entry(list, "clearly"),
            "_cấu tạo: clear + -ly (một cách)_#tính từ #rõ ràng_#adverb #plainly");
  EXPECT_EQ(entry(list, "rebuild"),
            "_cấu tạo: re- (lại, một lần nữa) + build_#động từ #xây_#verb #build again");
  EXPECT_EQ(entry(list, "washable"),
            "_cấu tạo: wash + -able (có thể)_#động từ #rửa_#adjective #capable of being washed");
  EXPECT_EQ(entry(list, "ladder"), "_#noun #steps");
  EXPECT_EQ(entry(list, "capable"), "_#adjective #having skill");
  EXPECT_EQ(entry(list, "recurrent"), "_#adjective #happening again");
  EXPECT_TRUE(list.hasVietnamese(list.at(*list.find("clearly"))));
  EXPECT_FALSE(list.hasVietnamese(list.at(*list.find("ladder"))));
}

TEST(FilledList, ANameIsNoFormOfAWord) {
  EXPECT_EQ(ownEntry("east\n  adj. đông\n\nEaster\n  n. lễ Phục sinh\n", "easter", {"easter"}),
            "_#danh từ #lễ Phục sinh");
}

TEST(FilledList, TheFormsOfBeAreToldApart) {
  const std::string be = "be\n  v. là\n\nbed\n  n. giường\n\nam\n  v. là\n";
  EXPECT_EQ(ownEntry(be, "are"), "_hiện tại của be_#động từ #là");
  EXPECT_EQ(ownEntry(be, "been"), "_quá khứ phân từ của be_#động từ #là");
  EXPECT_EQ(ownEntry(be, "am"), "_#động từ #là_hiện tại của be_#động từ #là");
  EXPECT_EQ(ownEntry(be, "bed", {"bed", "bing"}), "_#danh từ #giường");
  EXPECT_EQ(ownEntry(be, "bing", {"bed", "bing"}), "(none)");
}

TEST(FilledList, WordsWithNothingToSayAreLeftOut) {
  const WordList list = filled();
  EXPECT_FALSE(list.find("hidden"));
  EXPECT_FALSE(list.find("zebra"));
}

TEST(FilledList, StopsAtItsLimit) {
  EXPECT_EQ(filled(31).size(), 31U);
  Problems problems;
  static_cast<void>(fillWordList(smallSources(), 27, Filling::Full, problems));
  ASSERT_EQ(problems.all().size(), 1U);
  EXPECT_EQ(describe(problems.all()[0]), "d.txt:8:1: the word list has no more room for this word");
}

TEST(FilledList, OurOwnWordsAloneGoWithoutTheDatabases) {
  const WordList list = filled(100, Filling::OwnOnly);
  EXPECT_TRUE(list.find("left"));
  EXPECT_FALSE(list.find("chief"));
}

TEST(FilledList, FilesAreSortedAndLeadToTheirEntries) {
  const WordList list = filled();
  const auto files = compileDictionary(list);
  const std::string& words = files[0].bytes;
  EXPECT_EQ(words.substr(0, 20), "a\nb\nc\nchief\nchief of");
  std::size_t begin = 0;
  std::string before;
  for (std::size_t record = 1; begin < words.size(); ++record) {
    const std::size_t end = words.find('\n', begin) + 1;
    const auto form = list.at(list.sorted()[record - 1]).form;
    EXPECT_LT(before, form);
    before = form;
    EXPECT_EQ(integerAt(files[1].bytes, 2 * record), static_cast<int>(end));
    const auto text =
        storedUntil(files[2].bytes, integerAt(files[1].bytes, 2 * record - 1) - 1, '\r');
    EXPECT_EQ(text, list.entryOf(list.at(*list.find(form))));
    begin = end;
  }
  EXPECT_EQ(files[1].bytes.size(), 8 * list.size());
}

TEST(FilledList, ADeterminerHasTheFormsThatItsSourceLists) {
  Problems problems;
  WordSources sources;
  sources.own = parseDictionary("many\n  det. nhiều\n  forms: more, most\n\nmore\n  adv. hơn\n",
                                "d.txt", problems);
  const WordList list = fillWordList(sources, 100, Filling::OwnOnly, problems);
  ASSERT_TRUE(problems.none());
  EXPECT_NE(entry(list, "more").find("so sánh hơn của many"), std::string::npos);
  EXPECT_NE(entry(list, "most").find("so sánh nhất của many"), std::string::npos);
}

TEST(FilledList, LookUpGoesTheProgramsWay) {
  const WordList list = filled();
  const auto found = [&list](const std::string& word) {
    const auto number = lookUp(list, word);
    return number ? list.at(*number).head : "(none)";
  };
  EXPECT_EQ(found("walks"), "walks");
  EXPECT_EQ(found("walkable"), "walk");
  EXPECT_EQ(found("leaving"), "leave");
  EXPECT_EQ(found("qxqx"), "(none)");
}

} // namespace
} // namespace talvora::pack
