#include "pack/GuideTextCheck.h"

#include "formats/GuideText.h"
#include "pack/ReadingSource.h"
#include "pack/ReadingStore.h"
#include "pack/SourceFile.h"

#include <cstddef>
#include <optional>

namespace talvora::pack {

namespace {

/// A paragraph by its number, from 0, and the line that marks it.
struct MarkedParagraph {
  std::size_t number = 0;
  int line = 0;
};

bool isSentence(std::string_view line) {
  return !line.empty() && !line.starts_with("//") && !line.starts_with('=') &&
         !line.starts_with("title:");
}

std::optional<MarkedParagraph> markedIn(std::string_view source) {
  std::size_t paragraphs = 0;
  bool between = true;
  std::optional<int> mark;
  for (const SourceLine& line : linesOf(source)) {
    if (line.text.starts_with(PracticeMark)) mark = line.number;
    if (line.text.empty()) between = true;
    if (!isSentence(line.text)) continue;
    if (mark) return MarkedParagraph{between ? paragraphs : paragraphs - 1, *mark};
    if (between) ++paragraphs;
    between = false;
  }
  return std::nullopt;
}

/// Where the paragraphs ahead of a number end, as a caret.
int endOf(ReadingText text, std::size_t paragraphs) {
  text.paragraphs.resize(paragraphs);
  return static_cast<int>(shownText(text).size()) - 1;
}

} // namespace

void checkGuideText(std::string_view source, const std::string& file, Problems& problems) {
  Problems ofTheText; // reported by whoever reads the texts
  const ReadingText text = parseReadingText(source, file, ofTheText);
  if (!ofTheText.none()) return;
  const auto marked = markedIn(source);
  if (!marked) {
    if (endOf(text, text.paragraphs.size()) <= guidetext::SentencesFrom) return;
    problems.add({file}, "\"" + std::string(PracticeMark) +
                             "\" is missing ahead of the practice sentences");
    return;
  }
  const int from = endOf(text, marked->number) + 1;
  const int to = endOf(text, marked->number + 1);
  if (from > guidetext::SentencesFrom && to < guidetext::SentencesTo) return;
  problems.add({file, marked->line, 1}, "the practice sentences take the characters " +
                                            std::to_string(from) + " to " + std::to_string(to) +
                                            "; the program looks for them between " +
                                            std::to_string(guidetext::SentencesFrom) + " and " +
                                            std::to_string(guidetext::SentencesTo));
}

void checkGuideTextIn(const std::filesystem::path& folder, Problems& problems) {
  for (const auto& path : textFilesIn(folder)) {
    if (!path.filename().string().starts_with("002-")) continue;
    checkGuideText(readSource(path, problems), path.string(), problems);
  }
}

} // namespace talvora::pack
