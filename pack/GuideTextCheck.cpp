#include "pack/GuideTextCheck.h"

#include "formats/GuideText.h"
#include "pack/Message.h"
#include "pack/ReadingSource.h"
#include "pack/ReadingStore.h"
#include "pack/SourceFile.h"
#include "text/Text.h"

#include <cstddef>
#include <optional>
#include <string>

namespace talvora::pack {

namespace {

/// A paragraph by its number, from 0, and the line that marks it.
struct MarkedParagraph {
  std::size_t number = 0;
  int line = 0;
};

/// Characters of a text, as carets from 0; the last one is behind them.
struct Stretch {
  int from = 0;
  int to = 0;
};

bool isSentence(std::string_view line) {
  return !line.empty() && !line.starts_with("//") && !line.starts_with('=') &&
         !line.starts_with("title:");
}

std::optional<MarkedParagraph> paragraphBehind(std::string_view mark, std::string_view source) {
  std::size_t paragraphs = 0;
  bool between = true;
  std::optional<int> marked;
  for (const SourceLine& line : linesOf(source)) {
    if (line.text.starts_with(mark)) marked = line.number;
    if (line.text.empty()) between = true;
    if (!isSentence(line.text)) continue;
    if (marked) return MarkedParagraph{between ? paragraphs : paragraphs - 1, *marked};
    if (between) ++paragraphs;
    between = false;
  }
  return std::nullopt;
}

/// The line of a mark that stands ahead of the title; empty for none.
std::optional<int> markOfTitle(std::string_view source) {
  std::optional<int> marked;
  for (const SourceLine& line : linesOf(source)) {
    if (line.text.starts_with(GreyedMark)) marked = line.number;
    if (line.text.starts_with("title:")) return marked;
  }
  return std::nullopt;
}

/// Where the paragraphs ahead of a number end, as a caret.
int endOf(ReadingText text, std::size_t paragraphs) {
  text.paragraphs.resize(paragraphs);
  return static_cast<int>(shownText(text).size()) - 1;
}

/// The checks of one guide text.
class GuideTextChecker {
 public:
  GuideTextChecker(std::string_view source, const std::string& file, const ReadingText& text,
                   Problems& problems)
      : source_(source), file_(file), text_(text), problems_(problems) {}

  /// Each place is looked at where it is marked; the mark is needed in a text that reaches so far.
  void expectPractice() {
    const auto marked = paragraphBehind(PracticeMark, source_);
    const Stretch between = {guidetext::SentencesFrom, guidetext::SentencesTo};
    if (!marked) {
      if (end() > between.from)
        reportMissing(PracticeMark, said("ahead of the practice sentences"));
      return;
    }
    const Stretch lies = {endOf(text_, marked->number) + 1, endOf(text_, marked->number + 1)};
    if (lies.from <= between.from || lies.to >= between.to)
      report(marked->line, said("the practice paragraph"), lies, between);
  }

  /// The paragraph of words is read from the word on that its mark names.
  void expectWords() {
    const auto marked = paragraphBehind(WordsMark, source_);
    if (!marked) {
      if (end() >= guidetext::SentencesTo)
        reportMissing(WordsMark, said("ahead of the paragraph of words"));
      return;
    }
    const std::string word = wordOf(marked->line);
    const auto paragraph = static_cast<std::size_t>(endOf(text_, marked->number));
    const std::size_t from = shownText(text_).find(word, paragraph);
    const int to = endOf(text_, marked->number + 1);
    if (word.empty() || from == std::string::npos || static_cast<int>(from) > to) {
      problems_.add({file_, marked->line, 1},
                    said("the mark names no word of the paragraph below it"));
      return;
    }
    const Stretch lies = {static_cast<int>(from), to};
    const Stretch between = {guidetext::SentencesTo, guidetext::WordsTo};
    if (lies.from < between.from || lies.to >= between.to)
      report(marked->line, said("the paragraph, from \"{}\" on,", word), lies, between);
  }

  /// The title's line is what the list of the analysed texts greys, tabs and all.
  void expectTitle(std::string_view lineAhead) {
    const auto line = markOfTitle(source_);
    if (!line) {
      if (end() > guidetext::SentencesFrom) reportMissing(GreyedMark, said("ahead of the title"));
      return;
    }
    const auto from = static_cast<int>(lineAhead.size());
    const Stretch lies = {from, from + TitleTabs + static_cast<int>(text_.title.size())};
    const Stretch greyed = {guidetext::GreyedFrom, guidetext::GreyedTo};
    if (lies.from != greyed.from || lies.to != greyed.to)
      report(*line, said("the title, in the list of the analysed texts,"), lies, greyed);
  }

 private:
  static constexpr int TitleTabs = 2;

  /// What stands behind the mark of words in a line.
  [[nodiscard]] std::string wordOf(int number) const {
    for (const SourceLine& line : linesOf(source_)) {
      if (line.number == number) return std::string(trim(line.text.substr(WordsMark.size())));
    }
    return {};
  }
  [[nodiscard]] int end() const { return endOf(text_, text_.paragraphs.size()); }

  void reportMissing(std::string_view mark, const std::string& where) {
    problems_.add({file_}, said("\"{}\" is missing {}", mark, where));
  }
  void report(int line, const std::string& what, Stretch lies, Stretch wanted) {
    problems_.add(
        {file_, line, 1},
        said("{} takes the characters {} to {}; the program looks for it between {} and {}", what,
             lies.from, lies.to, wanted.from, wanted.to));
  }

  std::string_view source_;
  const std::string& file_;
  const ReadingText& text_;
  Problems& problems_;
};

/// The line of text 1 in the lists: a heading with its star, or a title with its tabs.
std::string firstLineOf(const std::filesystem::path& folder) {
  Problems ofTheHeadings; // reported by whoever reads the texts
  const ReadingSource readings = readReadings(folder, ofTheHeadings);
  const auto heading = readings.headings.find(1);
  if (heading != readings.headings.end()) return "*" + heading->second + "\r";
  const auto text = readings.texts.find(1);
  return "\t\t" + (text != readings.texts.end() ? text->second.title : openSlotTitle()) + "\r";
}

} // namespace

void checkGuideText(std::string_view source, const std::string& file, std::string_view lineAhead,
                    Problems& problems) {
  Problems ofTheText; // reported by whoever reads the texts
  const ReadingText text = parseReadingText(source, file, ofTheText);
  if (!ofTheText.none()) return;
  GuideTextChecker checker(source, file, text, problems);
  checker.expectPractice();
  checker.expectWords();
  checker.expectTitle(lineAhead);
}

void checkGuideTextIn(const std::filesystem::path& folder, Problems& problems) {
  for (const auto& path : textFilesIn(folder, problems)) {
    if (!path.filename().string().starts_with("002-")) continue;
    checkGuideText(readSource(path, problems), path.string(), firstLineOf(folder), problems);
  }
}

} // namespace talvora::pack
