// Counting of slots and words.
#include "pack/Status.h"

#include "pack/Heteronyms.h"
#include "pack/Message.h"
#include "pack/Recordings.h"
#include "pack/SpeakingSource.h"
#include "pack/StreamText.h"
#include "pack/TextWords.h"
#include "pack/WordListRules.h"
#include "pack/WordingChecks.h"

#include <array>
#include <iterator>

namespace talvora::pack {

namespace {

std::string line(std::string_view name, std::size_t number) {
  return "  " + std::string(name) + ": " + std::to_string(number) + "\n";
}

std::string textReport(std::string_view name, const ReadingSource& texts, std::size_t slots) {
  const std::size_t filled = texts.texts.size() + texts.headings.size();
  return "  " +
         said("{}: {} texts, {} headings, {} open", name, texts.texts.size(), texts.headings.size(),
              slots - filled) +
         "\n";
}

std::string filledReport(std::string_view name, std::size_t filled, std::size_t slots) {
  return "  " + said("{}: {} filled, {} open", name, filled, slots - filled) + "\n";
}

/// The texts of each heading and their running words; what stands ahead of the first heading is
/// left out.
std::string headingReport(std::string_view title, const ReadingSource& texts) {
  std::string report = std::string(title) + "\n";
  for (auto heading = texts.headings.begin(); heading != texts.headings.end(); ++heading) {
    const auto next = std::next(heading);
    const auto end =
        next == texts.headings.end() ? texts.texts.end() : texts.texts.lower_bound(next->first);
    std::size_t count = 0;
    std::size_t words = 0;
    for (auto text = texts.texts.lower_bound(heading->first); text != end; ++text) {
      ++count;
      for (const std::string_view sentence : sentencesOf(text->second))
        words += textWords(sentence).size();
    }
    report += "  " + said("{}: {} texts, {} words", utf8Of(heading->second), count, words) + "\n";
  }
  return report;
}

std::string unitReport(const ListeningSource& listening) {
  std::string report = said("Items of the listening units") + "\n";
  for (const auto& [unit, items] : listening.units)
    report += line(said("unit {}", unit), items.size());
  return report;
}

std::string slotReport(const Content& content) {
  const ReadingSource& readings = content.readings;
  std::string report = said("Slots") + "\n";
  report += textReport(said("reading texts"), readings, ReadingSlots);
  report += textReport(said("speaking texts"), content.speaking, SpeakingSlots);
  std::size_t items = 0;
  for (const auto& [unit, questions] : content.listening.units)
    items += questions.size();
  report += filledReport(said("listening items"), items, MostListeningItems);
  report += filledReport(said("analyses"), content.analyses.analyses.size(), AnalysisSlots);
  const LessonSource& lessons = content.lessons;
  const std::size_t filledLessons = lessons.lessons.size() + lessons.headings.size();
  report +=
      "  " +
      said("rule lessons: {} lessons, {} headings, {} open; {} with items", lessons.lessons.size(),
           lessons.headings.size(), LessonSlots - filledLessons, content.exercises.lessons.size()) +
      "\n";
  const auto scripts = static_cast<int>(scriptsOf(readings).size());
  return report + "  " +
         said("recordings: {} scripts, {} open", scripts, RecordingCount - scripts) + "\n";
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
    if (count > 0) report += line(translated(name.name), count);
  }
  return report + line(said("in all"), words.size());
}

} // namespace

std::string statusReport(const Content& content, const WordList& list,
                         const CoverageReport& coverage) {
  const auto side = vietnameseSideOf(list, content.words.listed);
  std::string report = slotReport(content) + "\n";
  report += headingReport(said("Reading texts by heading"), content.readings) + "\n";
  report += headingReport(said("Speaking texts by heading"), content.speaking) + "\n";
  report += unitReport(content.listening) + "\n";
  report += kindReport(said("Word list"), list.words()) + "\n";
  report += kindReport(said("Vietnamese side, which needs {}", VietnameseSideCount), side);
  report += "\n";
  report += said("Words without a Vietnamese sense") + "\n" + coverageLines(coverage);
  return report;
}

std::string wordRulesReport(const std::filesystem::path& source, const Content& content,
                            const WordList& list, const std::vector<Corpus>& corpora) {
  const auto countOf = [&source](void (*check)(const std::filesystem::path&, Problems&)) {
    Problems problems;
    check(source, problems);
    return problems.all().size();
  };
  return line(said("forms that the entry of their own head word hides"),
              hiddenForms(list, content.words).size()) +
         line(said("entries with English senses beside Vietnamese ones"),
              englishSenses(list).size()) +
         line(said("forms that no word list has and that are not accepted"),
              unlistedForms(corpora, list, content.words).size()) +
         line(said("words and spellings that the course does not write"), countOf(checkWordings)) +
         line(said("words of several pronunciations that are said by chance"),
              countOf(checkHeteronyms));
}

} // namespace talvora::pack
