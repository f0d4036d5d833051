// Inflected forms, words built from others, and normal forms.
#include "pack/Inflection.h"

#include "pack/Derivation.h"
#include "pack/StreamText.h"
#include "text/WordForm.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace talvora::pack {
namespace {

OwnEntry entryOf(std::string head, WordClass wordClass, std::vector<std::string> forms = {}) {
  return {std::move(head), {{{wordClass, Language::Vietnamese, "x"}}, std::move(forms)}};
}

std::string formsIn(const std::vector<OwnEntry>& own, const KnownWords& known,
                    const std::string& base, ClassSet classes) {
  const WordNet none;
  const Inflections inflections(own, none, known);
  std::string text;
  for (const Form& form : inflections.formsOf(base, classes)) {
    text += utf8Of(formOf(form, form.text)) + "\n";
  }
  return text;
}

TEST(Inflection, RegularFormsNeedAKnownWord) {
  EXPECT_EQ(formsIn({}, {"books"}, "book", {WordClass::Noun, WordClass::Verb}),
            "dạng số nhiều; ngôi thứ ba số ít của books\n");
  EXPECT_EQ(formsIn({}, {}, "book", {WordClass::Noun}), "");
}

TEST(Inflection, AShortVerbDoublesAndNeverTakesTheFormsOfOneInE) {
  EXPECT_EQ(formsIn({}, {"planned", "planed", "planning", "planing"}, "plan", {WordClass::Verb}),
            "quá khứ và quá khứ phân từ của planned\ndạng -ing của planning\n");
  EXPECT_EQ(formsIn({}, {"planned", "planed", "planning", "planing"}, "plane", {WordClass::Verb}),
            "quá khứ và quá khứ phân từ của planed\ndạng -ing của planing\n");
}

TEST(Inflection, EndingsInYAndIe) {
  EXPECT_EQ(formsIn({}, {"studies", "studied", "studying"}, "study", {WordClass::Verb}),
            "ngôi thứ ba số ít của studies\nquá khứ và quá khứ phân từ của studied\n"
            "dạng -ing của studying\n");
  EXPECT_EQ(formsIn({}, {"lying"}, "lie", {WordClass::Verb}), "dạng -ing của lying\n");
  EXPECT_EQ(formsIn({}, {"happier", "happiest"}, "happy", {WordClass::Adjective}),
            "so sánh hơn của happier\nso sánh nhất của happiest\n");
}

TEST(Inflection, OurOwnIrregularFormsSayWhatTheyAre) {
  EXPECT_EQ(
      formsIn({entryOf("go", WordClass::Verb, {"went", "gone"})}, {}, "go", {WordClass::Verb}),
      "quá khứ của went\nquá khứ phân từ của gone\n");
  EXPECT_EQ(formsIn({entryOf("make", WordClass::Verb, {"made"})}, {}, "make", {WordClass::Verb}),
            "quá khứ và quá khứ phân từ của made\n");
  EXPECT_EQ(formsIn({entryOf("child", WordClass::Noun, {"children"})}, {"childs"}, "child",
                    {WordClass::Noun}),
            "dạng số nhiều của children\n");
  EXPECT_EQ(formsIn({entryOf("bad", WordClass::Adjective, {"worse", "worst"})}, {}, "bad",
                    {WordClass::Adjective}),
            "so sánh hơn của worse\nso sánh nhất của worst\n");
}

TEST(Inflection, ASlashPartsTheFormsOfNounsAndAdjectivesToo) {
  EXPECT_EQ(formsIn({entryOf("mango", WordClass::Noun, {"mangoes/mangos"})}, {}, "mango",
                    {WordClass::Noun}),
            "dạng số nhiều của mangoes\ndạng số nhiều của mangos\n");
  EXPECT_EQ(
      formsIn({entryOf("far", WordClass::Adjective, {"farther/further", "farthest/furthest"})}, {},
              "far", {WordClass::Adjective}),
      "so sánh hơn của farther\nso sánh hơn của further\n"
      "so sánh nhất của farthest\nso sánh nhất của furthest\n");
}

TEST(Inflection, AVerbWhosePastsAreListedHasNoOtherPast) {
  EXPECT_EQ(formsIn({entryOf("burst", WordClass::Verb, {"burst", "burst"})},
                    {"bursted", "bursts", "bursting"}, "burst", {WordClass::Verb}),
            "quá khứ và quá khứ phân từ của burst\nngôi thứ ba số ít của bursts\n"
            "dạng -ing của bursting\n");
  EXPECT_EQ(
      formsIn({entryOf("come", WordClass::Verb, {"came", "come"})}, {}, "come", {WordClass::Verb}),
      "quá khứ của came\nquá khứ phân từ của come\n");
  EXPECT_EQ(formsIn({entryOf("get", WordClass::Verb, {"got", "got/gotten"})}, {}, "get",
                    {WordClass::Verb}),
            "quá khứ và quá khứ phân từ của got\nquá khứ phân từ của gotten\n");
}

TEST(Inflection, ANounThatIsAVerbTooTakesItsListedPastsForVerbForms) {
  OwnEntry bet = entryOf("bet", WordClass::Noun, {"bet", "bet"});
  bet.block.senses.push_back({WordClass::Verb, Language::Vietnamese, "x"});
  EXPECT_EQ(formsIn({bet}, {"bets"}, "bet", {WordClass::Noun, WordClass::Verb}),
            "quá khứ và quá khứ phân từ của bet\n"
            "dạng số nhiều; ngôi thứ ba số ít của bets\n");
}

TEST(Inflection, APrepositionHasNoDegrees) {
  EXPECT_EQ(formsIn({}, {"offer"}, "off", {WordClass::Adverb, WordClass::Preposition}), "");
}

TEST(Derivation, FindsPrefixesAndSuffixes) {
  const auto has = [](std::string_view word, std::string_view base, std::string_view affix) {
    const auto all = derivationsOf(word);
    return std::any_of(all.begin(), all.end(), [&](const Derivation& each) {
      return each.base == base && each.affix == affix;
    });
  };
  EXPECT_TRUE(has("unkind", "kind", "un-"));
  EXPECT_TRUE(has("re-enter", "enter", "re-"));
  EXPECT_TRUE(has("happiness", "happy", "-ness"));
  EXPECT_TRUE(has("gently", "gentle", "-ly"));
  EXPECT_TRUE(has("usable", "use", "-able"));
  EXPECT_TRUE(has("runner", "run", "-er"));
  EXPECT_TRUE(derivationsOf("uncle").empty());
}

TEST(Derivation, SaysWhatAWordIsBuiltFrom) {
  const Derivation derivation{"kind", {}, {}, "un-", "không"};
  EXPECT_EQ(utf8Of(builtFrom(derivation, "kind")), "cấu tạo: un- (không) + kind");
}

TEST(WordForm, NormalForms) {
  EXPECT_EQ(ChuanHoaTu(""), "");
  EXPECT_EQ(ChuanHoaTu(" "), "");
  EXPECT_EQ(ChuanHoaTu("A"), "A");
  EXPECT_EQ(ChuanHoaTu("New York"), "new york");
  EXPECT_EQ(ChuanHoaTu("ice-cream"), "ice cream");
  EXPECT_EQ(ChuanHoaTu("'tis"), "tis");
  EXPECT_EQ(ChuanHoaTu("a - b"), "a  b");
  EXPECT_EQ(ChuanHoaTu("x2"), "x");
}

TEST(WordForm, SuffixRules) {
  EXPECT_EQ(RutGonDuoi("flies"), "fly");
  EXPECT_EQ(RutGonDuoi("Making"), "make");
  EXPECT_EQ(RutGonDuoi("studied"), "study");
  EXPECT_EQ(RutGonDuoi("running"), "runne");
  EXPECT_EQ(RutGonDuoi("ing"), "ing");
}

} // namespace
} // namespace talvora::pack
