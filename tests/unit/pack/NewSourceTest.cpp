// The examples that a teacher begins with.
#include "pack/create/NewSource.h"

#include "pack/AnalysisSource.h"
#include "pack/ItemSource.h"
#include "pack/LessonSource.h"
#include "pack/ListeningSource.h"
#include "pack/ReadingSource.h"

#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

std::string told(const Problems& problems) {
  std::string text;
  for (const Problem& problem : problems.all())
    text += describe(problem) + "\n";
  return text;
}

TEST(NewSource, EveryExampleIsASourceWithoutErrors) {
  Problems problems;
  EXPECT_EQ(parseReadingText(exampleOf(SourceKind::Text), "text", problems).paragraphs.size(), 2U);
  EXPECT_FALSE(parseLesson(exampleOf(SourceKind::Lesson), "lesson", problems).title.empty());
  EXPECT_EQ(
      parseItems(exampleOf(SourceKind::Item), "item", ItemPlace::Lesson, BlankHelp::Own, problems)
          .size(),
      1U);
  static_cast<void>(parseListeningUnit(exampleOf(SourceKind::Unit), "unit", problems));
  EXPECT_EQ(parseAnalysis(exampleOf(SourceKind::AnalysedText), "analysis", problems).size(), 2U);
  EXPECT_EQ(told(problems), "");
}

} // namespace
} // namespace talvora::pack
