// The rules of the dictionary: each is broken once and kept once.
#include "pack/DictionaryCheck.h"

#include "pack/DictionaryFindings.h"

#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

using Lines = std::vector<std::string>;

Lines findingsOf(const std::string& source, const DictionaryMeasures& measures = {}) {
  Problems problems;
  const auto entries = parseDictionary(source, "d.txt", problems);
  EXPECT_TRUE(problems.none());
  Lines lines;
  for (const Finding& finding : checkDictionary(entries, measures))
    lines.push_back(finding.problem.message);
  return lines;
}

TEST(DictionaryCheck, AnEntryHasItsLength) {
  const std::string gloss = "go\n  v. đi: " + std::string(420, 'a') + "\n";
  EXPECT_EQ(findingsOf(gloss), Lines{});
  const Lines found = findingsOf(gloss + "  n. lượt chơi\n");
  ASSERT_EQ(found.size(), 1U);
  EXPECT_TRUE(found[0].ends_with(" letters are shown, at most 450 should be")) << found[0];
}

TEST(DictionaryCheck, APhraseHasItsHeadWordOrAForm) {
  EXPECT_EQ(findingsOf("go\n  v. đi\n  phrases: go on = tiếp tục; went off = reo\n"
                       "  forms: went, gone\n"),
            Lines{});
  EXPECT_EQ(findingsOf("make\n  v. làm\n  phrases: making up = bịa\n"), Lines{});
  EXPECT_EQ(findingsOf("go\n  v. đi\n  phrases: set off = lên đường\n"),
            Lines{"go: the phrase \"set off\" does not have the word"});
}

TEST(DictionaryCheck, TheFirstGlossFitsTheBar) {
  EXPECT_EQ(findingsOf("owl\n  n. con cú (chim ăn đêm, mắt to); chim\n"), Lines{});
  EXPECT_EQ(findingsOf("high school\n  n. trường trung học phổ thông\n"),
            Lines{"high school: \"trường trung học phổ thông\" has 26 letters"});
}

TEST(DictionaryCheck, IrregularVerbsHaveTheLessonsForms) {
  DictionaryMeasures measures;
  measures.irregularVerbs = verbsOfLesson("> cut - cut - cut, learn - learnt - learnt\n"
                                          "> be - was, were - been; go - went - gone\n");
  ASSERT_EQ(measures.irregularVerbs.size(), 3U);
  EXPECT_EQ(findingsOf("go\n  v. đi\n  forms: went, gone\n", measures), Lines{});
  EXPECT_EQ(findingsOf("learn\n  v. học\n  forms: learned/learnt, learnt\n", measures), Lines{});
  EXPECT_EQ(findingsOf("cut\n  n. vết cắt\n", measures), Lines{});
  EXPECT_EQ(findingsOf("cut\n  v. cắt\n", measures),
            Lines{"cut: the lesson has the forms cut, cut"});
}

TEST(DictionaryCheck, ATranslationSaysWhatItsSentenceSays) {
  const auto found = [](const std::string& example) {
    return findingsOf("go\n  v. đi\n    > " + example + "\n");
  };
  EXPECT_EQ(found("Do you go on Friday? = Thứ Sáu bạn đi không?"), Lines{});
  EXPECT_EQ(found("I had had two bowls by half past six. = Lúc sáu giờ rưỡi tôi đã ăn hai bát."),
            Lines{});
  EXPECT_EQ(found("Do you go? = Bạn đi."),
            Lines{"go: the sentence asks and its translation does not"});
  EXPECT_EQ(found("I go on Friday. = Thứ Bảy tôi đi."),
            Lines{"go: the translation has no \"thứ Sáu\""});
  EXPECT_EQ(found("I go by Friday. = Chậm nhất là thứ Sáu tôi đi."), Lines{});
  EXPECT_EQ(found("I go before Friday. = Tôi đi trước thứ Sáu."), Lines{});
  EXPECT_EQ(found("I go by Friday. = Tôi đi trước thứ Sáu."),
            Lines{"go: \"trước thứ Sáu\" leaves the day out, \"by\" does not"});
  EXPECT_EQ(found("I go on Fridays. = Thứ Sáu nào tôi cũng đi."), Lines{});
  EXPECT_EQ(found("I go on Fridays. = Thứ Sáu tôi đi."),
            Lines{"go: \"fridays\" is every week, and its translation one day"});
  EXPECT_EQ(found("I go at seven. = Tôi đi lúc sáu giờ."),
            Lines{"go: \"seven\" is not in the translation"});
  EXPECT_EQ(found("Forty of 1945 go. = Bốn chục người đi."), Lines{});
  EXPECT_EQ(found("Forty go. = Năm 1945 đi."), Lines{});
  EXPECT_EQ(found("Forty go. = Năm 1915, bốn người đi."),
            Lines{"go: \"forty\" is not in the translation"});
  EXPECT_EQ(found("A thousand go. = 999 người đi."),
            Lines{"go: \"thousand\" is not in the translation"});
  EXPECT_EQ(found("Go to your room. = Đi vào phòng của chị ấy đi."),
            Lines{"go: the translation gives \"của chị ấy\" what the sentence calls yours"});
  EXPECT_EQ(found("Go to your room and not to hers. = Vào phòng bạn, đừng vào phòng của chị ấy."),
            Lines{});
  EXPECT_EQ(found("I go to to school. = Tôi đi học."), Lines{"go: \"to\" stands twice in a row"});
}

TEST(DictionaryCheck, ACommonHeadHasAnExampleForEachClass) {
  EXPECT_EQ(findingsOf("go A1\n  v. 1 đi\n  v. 2 trở nên\n    > I go. = Tôi đi.\n"), Lines{});
  EXPECT_EQ(findingsOf("go C1\n  v. đi\n"), Lines{});
  EXPECT_EQ(findingsOf("go A1\n  v. đi\n  n. lượt\n    > A go. = Một lượt.\n"),
            Lines{"go: no example for v."});
}

TEST(DictionaryCheck, WordsOfExamplesHaveEntriesAndSpellings) {
  DictionaryMeasures measures;
  measures.entries = {"i", "go"};
  measures.english = {"i", "go", "sell"};
  measures.vietnamese = {"đi", "tôi", "thoả"};
  EXPECT_EQ(findingsOf("go\n  v. đi; thỏa\n    > I go. = Tôi đi Đâu.\n", measures), Lines{});
  EXPECT_EQ(findingsOf("go\n  v. đii: gq sth\n    > I sell. = Tôi đi.\n", measures),
            (Lines{"go: \"gq\" is in no word list", "go: \"sell\" has no entry",
                   "go: \"đii\" is in no word list"}));
}

TEST(DictionaryCheck, APatternIsNoPhraseOfItsEntryToo) {
  const std::string phrases = "  phrases: go ahead = cứ làm đi; ahead of = trước\n";
  EXPECT_EQ(findingsOf("ahead\n  adv. phía trước: ahead of time, straight ahead\n" + phrases),
            Lines{});
  EXPECT_EQ(findingsOf("ahead\n  adv. phía trước: straight ahead, Go ahead\n" + phrases),
            Lines{"ahead: \"Go ahead\" stands among the phrases again"});
}

TEST(DictionaryCheck, WhatCannotBeCountedIsNotCounted) {
  const auto found = [](const std::string& head, const std::string& sense) {
    return findingsOf(head + "\n  n. " + sense + "\n");
  };
  EXPECT_EQ(found("blood", "[u] máu: a blood test, a drop of blood, a little blood"), Lines{});
  EXPECT_EQ(found("will", "[u c] ý chí: a strong will"), Lines{});
  EXPECT_EQ(found("growth", "[u] sự lớn lên: a child's growth"), Lines{});
  EXPECT_EQ(found("interest", "[u] sự quan tâm: An interest in sth"),
            Lines{"interest: \"an interest\" counts what is said not to be countable"});
  EXPECT_EQ(found("will", "[u] ý chí\n    > She has a strong will. = Cô ấy có ý chí."),
            Lines{"will: \"a strong will\" counts what is said not to be countable"});
  EXPECT_EQ(found("advice", "[u] lời khuyên: give advices"),
            Lines{"advice: \"advices\" counts what is said not to be countable"});
  EXPECT_EQ(
      found("orange juice", "[u] nước cam: another orange juice"),
      Lines{"orange juice: \"another orange juice\" counts what is said not to be countable"});
}

TEST(DictionaryCheck, AWordIsAcceptedForAnEntry) {
  DictionaryMeasures measures;
  measures.entries = {"go", "gos"};
  measures.english = {"go"};
  measures.vietnamese = {"đi"};
  measures.accepted = {{"uýt", {"accepted.txt", 2, 1}},
                       {"gq", {"accepted.txt", 3, 1}},
                       {"gos", {"accepted.txt", 4, 1}},
                       {"crô", {"accepted.txt", 5, 1}}};
  EXPECT_EQ(findingsOf("go\n  v. đi uýt: go gq\n", measures),
            Lines{"no entry needs \"crô\" to be accepted"});
  measures.vietnamese.clear();
  EXPECT_EQ(findingsOf("go\n  v. đi\n", measures), Lines{}) << "without the list nothing is known";
}

TEST(DictionaryCheck, EveryFindingIsAnErrorAndIsCounted) {
  Problems problems;
  const std::vector<Finding> findings = {{DictionaryRule::GlossTooLong, {{}, "long"}},
                                         {DictionaryRule::GlossTooLong, {{}, "long"}},
                                         {DictionaryRule::PhraseWithoutHead, {{}, "strange"}}};
  reportErrors(findings, problems);
  ASSERT_EQ(problems.all().size(), 3U);
  EXPECT_EQ(problems.all()[2].message, "strange");
  const std::string report = findingsReport(findings);
  EXPECT_NE(report.find("  first glosses of more than 24 letters: 2\n"), std::string::npos);
  EXPECT_NE(report.find("  phrases without their head word: 1\n"), std::string::npos);
  EXPECT_NE(report.find("  entries of more than 450 letters: 0\n"), std::string::npos);
}

TEST(DictionaryCheck, TheDictionaryOfTheRepositoryHasNoErrors) {
  Problems problems;
  reportErrors(checkDictionaryAlone(TALVORA_CONTENT, {}, problems), problems);
  for (const Problem& problem : problems.all())
    ADD_FAILURE() << describe(problem);
}

} // namespace
} // namespace talvora::pack
