// The list of rules, and what becomes of what they find.
#include "pack/CourseRules.h"

#include "pack/Message.h"

namespace talvora::pack {

std::vector<RuleReport> checkRules(const Course& course) {
  return {explanationsAreThere(course), reasonsAreGiven(course),
          termsAreOfTheList(course),    linksTeachTheirPoint(course),
          sentencesDiffer(course),      sentencesDifferFromExamples(course),
          lengthsFit(course),           wordsAreInTheDictionary(course),
          wornWordsAreRare(course),     positionsAreEven(course),
          positionsDoNotRun(course),    longestIsNoCue(course),
          bluePhraseIsNoCue(course),    shortFormsAreAccepted(course),
          hintsAreKept(course),         lessonsArePractised(course),
          itemsHaveALesson(course),     unitsHaveTheirKinds(course),
          absoluteWords(course)};
}

std::string settleRules(const std::vector<RuleReport>& reports, bool listed, Problems& problems) {
  std::string told;
  for (const RuleReport& report : reports) {
    if (report.found.empty()) continue;
    const std::size_t count = report.found.size();
    if (count > report.allowed) {
      for (const Problem& problem : report.found)
        problems.add(problem.where, problem.message);
      if (report.allowed > 0) {
        problems.add({said("rule")},
                     said("{}: {} places, and only {} pass", report.rule, count, report.allowed));
      }
      continue;
    }
    told +=
        saidOf(count, "warning: {1}: {0} place", "warning: {1}: {0} places", report.rule) + "\n";
    if (!listed) continue;
    for (const Problem& problem : report.found)
      told += "  " + describe(problem) + "\n";
  }
  return told;
}

} // namespace talvora::pack
