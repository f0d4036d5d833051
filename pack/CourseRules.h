// The rules of quality that the lessons and items keep beyond being readable: what a learner could
// guess by, what repeats, what is not explained. A rule that the course does not keep yet has a
// number of exceptions that pass; they are told as warnings and must not grow.
#pragma once

#include "pack/CourseItems.h"
#include "pack/ExerciseSource.h"
#include "pack/LessonSource.h"
#include "pack/Problems.h"
#include "pack/WordList.h"

#include <cstddef>
#include <string>
#include <vector>

namespace talvora::pack {

/// What the rules look at.
struct Course {
  const LessonSource& lessons;
  const ExerciseSource& exercises;
  const std::vector<CourseItem>& items;
  const WordList& words; ///< our own entries and their forms
};

/// The places at which a rule is not kept.
struct RuleReport {
  std::string rule;
  std::vector<Problem> found;
  /// How many of them pass with a warning.
  std::size_t allowed = 0;
};

/// All rules, those that are kept with nothing found.
[[nodiscard]] std::vector<RuleReport> checkRules(const Course& course);

/// Puts the places of rules with too many exceptions to the problems, and tells the others: a line
/// for each rule, with its places when they are `listed`.
[[nodiscard]] std::string settleRules(const std::vector<RuleReport>& reports, bool listed,
                                      Problems& problems);

// -- The rules by themselves.

/// Each item has its general explanation and one for each blank, option or phrase; the fill items
/// of two banks have the general one alone.
[[nodiscard]] RuleReport explanationsAreThere(const Course& course);
/// "Phần này đúng:" is followed by a reason of five words.
[[nodiscard]] RuleReport reasonsAreGiven(const Course& course);
/// One name a term.
[[nodiscard]] RuleReport termsAreOfTheList(const Course& course);
/// Words like "luôn", for a second reader to look at.
[[nodiscard]] RuleReport absoluteWords(const Course& course);
/// A lesson that an explanation leads to has a red word of it, or is what the item is about.
[[nodiscard]] RuleReport linksTeachTheirPoint(const Course& course);

/// No six words in a row stand in two items.
[[nodiscard]] RuleReport sentencesDiffer(const Course& course);
/// No item has three quarters of its words in a row with a lesson's example.
[[nodiscard]] RuleReport sentencesDifferFromExamples(const Course& course);
/// Sentences have the length of their bank.
[[nodiscard]] RuleReport lengthsFit(const Course& course);
/// Few words are missing in our dictionary, in each bank.
[[nodiscard]] RuleReport wordsAreInTheDictionary(const Course& course);
/// No worn word (bus, umbrella) stands in more than 2 of 100 items of a bank.
[[nodiscard]] RuleReport wornWordsAreRare(const Course& course);

/// Right answers are spread over the positions, in each bank and unit.
[[nodiscard]] RuleReport positionsAreEven(const Course& course);
/// No three right answers in a row have one position.
[[nodiscard]] RuleReport positionsDoNotRun(const Course& course);
/// The longest option is right in at most 35 of 100.
[[nodiscard]] RuleReport longestIsNoCue(const Course& course);
/// The blue phrase of a choice is right in 15 to 25 of 100.
[[nodiscard]] RuleReport bluePhraseIsNoCue(const Course& course);
/// A blank behind a pronoun takes the short form too, and is none that has two of them.
[[nodiscard]] RuleReport shortFormsAreAccepted(const Course& course);
/// "not", "never" and their like stand in the hint of a blank when they stand in its answer, and
/// the other way round.
[[nodiscard]] RuleReport hintsAreKept(const Course& course);

/// Each lesson with items has an item in a bank.
[[nodiscard]] RuleReport lessonsArePractised(const Course& course);
/// Each bank item leads to a lesson.
[[nodiscard]] RuleReport itemsHaveALesson(const Course& course);
/// Each unit has the kinds of item that its bank is planned with.
[[nodiscard]] RuleReport unitsHaveTheirKinds(const Course& course);

} // namespace talvora::pack
