// What the entries of our own must show.
#include "pack/WordListRules.h"

#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

WordSources sourcesOf(const std::string& text) {
  Problems problems;
  WordSources sources;
  sources.own = parseDictionary(text, "d.txt", problems);
  EXPECT_TRUE(problems.none());
  return sources;
}

Word wordOf(const std::string& head, Language language, std::vector<Origin> origins = {}) {
  return {head,
          WordKind::Own,
          {WordClass::Verb},
          {{{{WordClass::Verb, language, "x"}}}},
          std::move(origins)};
}

const char* const see = "see\n  v. thấy\n  forms: saw, seen\n\nsaw\n  n. cái cưa\n";

TEST(WordListRules, AHeadWordThatIsAFormSaysSo) {
  const WordSources sources = sourcesOf(see);
  Problems problems;
  const WordList filled = fillWordList(sources, 1000, Filling::OwnOnly, problems);
  EXPECT_TRUE(hiddenForms(filled, sources).empty());

  WordList list(10);
  list.add(wordOf("see", Language::Vietnamese));
  list.add(wordOf("saw", Language::Vietnamese));
  const auto found = hiddenForms(list, sources);
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].message, "the entry of \"saw\" does not say that it is a form of \"see\"");
}

TEST(WordListRules, AnEntryOfOursHasNoEnglishSense) {
  WordList list(10);
  const auto own = list.add(wordOf("see", Language::Vietnamese));
  list.add(wordOf("look", Language::English));
  EXPECT_TRUE(englishSenses(list).empty());
  list.add(wordOf("gaze", Language::English, {{"of see", own.value()}}));
  const auto found = englishSenses(list);
  ASSERT_EQ(found.size(), 1U);
  EXPECT_EQ(found[0].message,
            "the entry of \"gaze\" has an English sense beside the Vietnamese ones");
}

TEST(WordListRules, AFormThatNoWordListHasIsAccepted) {
  WordSources sources = sourcesOf("mooncake\n  n. [c] bánh trung thu\n\ngo\n  v. đi\n");
  const std::vector<Corpus> corpora = {{"texts", {"Mooncakes", "go"}},
                                       {"items", {"goes"}, CorpusLanguage::WithMistakes}};
  Problems problems;
  const auto found = [&] {
    const WordList list = fillWordList(sources, 1000, Filling::OwnOnly, problems);
    return unlistedForms(corpora, list, sources);
  };
  ASSERT_EQ(found().size(), 1U);
  EXPECT_EQ(found()[0].message, "\"mooncakes\", a form of \"mooncake\", is in no word list and "
                                "has to stand here; it is used in: texts");
  sources.known = {"mooncakes"};
  EXPECT_TRUE(found().empty());
}

} // namespace
} // namespace talvora::pack
