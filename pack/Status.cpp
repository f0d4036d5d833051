// Counting of slots and words.
#include "pack/Status.h"

#include "pack/Recordings.h"
#include "pack/SpeakingSource.h"

#include <array>

namespace talvora::pack {

namespace {

std::string line(std::string_view name, std::size_t number) {
  return "  " + std::string(name) + ": " + std::to_string(number) + "\n";
}

std::string textReport(std::string_view name, const ReadingSource& texts, std::size_t slots) {
  const std::size_t filled = texts.texts.size() + texts.headings.size();
  return "  " + std::string(name) + ": " + std::to_string(texts.texts.size()) + " texts, " +
         std::to_string(texts.headings.size()) + " headings, " + std::to_string(slots - filled) +
         " open\n";
}

std::string filledReport(std::string_view name, std::size_t filled, std::size_t slots) {
  return "  " + std::string(name) + ": " + std::to_string(filled) + " filled, " +
         std::to_string(slots - filled) + " open\n";
}

std::string slotReport(const Content& content) {
  const ReadingSource& readings = content.readings;
  std::string report = "Slots\n";
  report += textReport("reading texts", readings, ReadingSlots);
  report += textReport("speaking texts", content.speaking, SpeakingSlots);
  std::size_t items = 0;
  for (const auto& [unit, questions] : content.listening.units)
    items += questions.size();
  report += filledReport("listening items", items, MostListeningItems);
  report += filledReport("analyses", content.analyses.analyses.size(), AnalysisSlots);
  const LessonSource& lessons = content.lessons;
  const std::size_t filledLessons = lessons.lessons.size() + lessons.headings.size();
  report += "  rule lessons: " + std::to_string(lessons.lessons.size()) + " lessons, " +
            std::to_string(lessons.headings.size()) + " headings, " +
            std::to_string(LessonSlots - filledLessons) + " open; " +
            std::to_string(content.exercises.lessons.size()) + " with items\n";
  const auto scripts = static_cast<int>(scriptsOf(readings).size());
  return report + "  recordings: " + std::to_string(scripts) + " scripts, " +
         std::to_string(RecordingCount - scripts) + " open\n";
}

/// How many words or entries there are of each kind; kinds without one are left out.
template <typename Words>
std::string kindReport(std::string_view title, const Words& words) {
  std::array<std::size_t, WordKindNames.size()> counts{};
  for (const auto& word : words)
    ++counts[static_cast<std::size_t>(word.kind)];
  std::string report = std::string(title) + "\n";
  for (const WordKindName& name : WordKindNames) {
    const std::size_t count = counts[static_cast<std::size_t>(name.kind)];
    if (count > 0) report += line(name.name, count);
  }
  return report + line("in all", words.size());
}

} // namespace

std::string statusReport(const Content& content, const WordList& list,
                         const CoverageReport& coverage) {
  const auto side = vietnameseSideOf(list, content.words.listed);
  std::string report = slotReport(content) + "\n";
  report += kindReport("Word list", list.words()) + "\n";
  report += kindReport("Vietnamese side, which needs " + std::to_string(VietnameseSideCount), side);
  report += "\n";
  report += "Words without a Vietnamese sense\n" + coverageLines(coverage);
  return report;
}

} // namespace talvora::pack
