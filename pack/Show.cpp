// Laying out of sources for a reader at a terminal.
#include "pack/Show.h"

#include "exercises/ItemHeadings.h"
#include "formats/AnalysisLabels.h"
#include "pack/AnalysisSource.h"
#include "pack/ExerciseSource.h"
#include "pack/LessonSource.h"
#include "pack/ListeningSource.h"
#include "pack/Message.h"
#include "pack/ReadingSource.h"
#include "pack/ShowEntry.h"
#include "pack/SourceFile.h"
#include "pack/StreamText.h"
#include "pack/kinds/ItemKind.h"
#include "text/CharClass.h"
#include "text/Text.h"

#include <algorithm>

namespace talvora::pack {

namespace {

constexpr char lineEnd = '\r';
/// Opens a blue span of the panel.
constexpr char blueMark = '&';

/// A blank's answers or a phrase, in the order of the question.
struct Marked {
  std::string shown;             ///< the question with its cells, or with its phrases in brackets
  std::vector<std::string> keys; ///< what stands in the braces, "in / during" for two answers
};

Marked markedOf(std::string_view stored, const ItemKind& kind) {
  Marked marked;
  bool inKey = false;
  for (const char character : stored) {
    const bool cell = kind.isTyped() && (inKey || character == '*' || character == '_');
    const bool phrase = !kind.isTyped();
    if (character == '*') {
      inKey = true;
      marked.keys.emplace_back();
      // Blanks beside a phrase are not stored: its marks are shown as blanks.
      if (phrase && !marked.shown.empty() && Letters.has(marked.shown.back())) marked.shown += ' ';
      marked.shown += phrase ? '[' : '_';
    } else if (inKey && character == '_') {
      inKey = false;
      marked.shown += phrase ? ']' : '_';
    } else {
      if (phrase && marked.shown.ends_with(']') && Letters.has(character)) marked.shown += ' ';
      if (inKey) marked.keys.back() += character == '\\' ? " / " : std::string(1, character);
      marked.shown += cell ? '_' : character;
    }
  }
  return marked;
}

std::string linesFrom(std::string_view bytes) {
  std::string text = utf8Of(bytes);
  std::replace(text.begin(), text.end(), lineEnd, '\n');
  return text + "\n";
}

std::string explained(const ExplanationLines& lines) {
  std::string text;
  for (const ExplanationLine& line : lines) {
    text += "    " + (line.refersTo ? "→ " + utf8Of(line.text.text) : writeMarkedLine(line.text)) +
            "\n";
  }
  return text;
}

std::string sentencesOf(const Item& item) {
  std::string text;
  std::size_t number = 0;
  std::string_view rest = item.question;
  while (!rest.empty()) {
    rest.remove_prefix(1);
    const std::string_view sentence = rest.substr(0, rest.find('_'));
    rest.remove_prefix(sentence.size());
    text += utf8Of(trim(sentence)) + "\n";
    if (number < item.translations.size())
      text += "    = " + utf8Of(item.translations[number++]) + "\n";
  }
  return text;
}

std::string hintsOf(const Item& item) {
  std::string text;
  for (const std::string& hint : item.hints)
    text += (text.empty() ? "" : ", ") + utf8Of(hint);
  return text.empty() ? "" : said("hints: {}", text) + "\n";
}

std::string itemShown(const Item& item, ItemPlace place) {
  std::string text = placeShown(item.where) + (item.id.empty() ? "" : " " + item.id) + "\n";
  const auto origin = place == ItemPlace::Bank ? ItemOrigin::Bank : ItemOrigin::OwnTest;
  const std::string heading = utf8Of(ChonDeMuc(item.heading, origin));
  if (!heading.empty()) text += heading + "\n";
  if (item.kind->hasSentences()) return text + sentencesOf(item);
  const Marked marked = markedOf(item.kind->storedQuestion(item), *item.kind);
  text += hintsOf(item) + linesFrom(marked.shown);
  for (std::size_t at = 0; at < item.options.size(); ++at)
    text += std::string(1, static_cast<char>('A' + at)) + ". " + utf8Of(item.options[at]) + "\n";
  if (!item.general.empty()) text += "  " + said("before judging") + "\n" + explained(item.general);
  for (int number = 1; number <= item.kind->explainable(item); ++number) {
    const auto at = static_cast<std::size_t>(number) - 1;
    const std::string phrase = at < marked.keys.size() ? utf8Of(marked.keys[at]) : "";
    const auto lines = item.explanations.find(number);
    text += "  " + item.kind->subjectOf(item, number, phrase) + "\n" +
            (lines == item.explanations.end() ? "" : explained(lines->second));
  }
  return text;
}

std::string itemsShown(const ShownPlace& place, const std::string& source, Problems& problems) {
  const bool lesson = lessonSlotOf(place.file).has_value();
  const ItemPlace where = lesson ? ItemPlace::Lesson : ItemPlace::Bank;
  return partsShown(place, parseItems(source, place.file.string(), where, BlankHelp::Own, problems),
                    [&](const Item& item) { return itemShown(item, where); });
}

std::string lessonShown(const Lesson& lesson) {
  std::string text = utf8Of(lesson.title) + "\n\n";
  for (const MarkedLine& line : lesson.lines)
    text += writeMarkedLine(line) + "\n";
  return text;
}

std::string textShown(const ReadingText& reading) {
  std::string text = utf8Of(reading.title) + "\n";
  for (const Paragraph& paragraph : reading.paragraphs) {
    text += "\n";
    for (const SentencePair& pair : paragraph)
      text += utf8Of(pair.english) + "\n    " + utf8Of(pair.vietnamese) + "\n";
  }
  return text;
}

std::string questionShown(const ListeningQuestion& question) {
  std::string text = placeShown(question.where) + "\n" +
                     said("{}. heard: {}", question.number, utf8Of(question.sentence)) + "\n" +
                     "A. " + utf8Of(question.right) + said(", right") + "\n";
  for (std::size_t at = 0; at < question.wrong.size(); ++at)
    text += std::string(1, static_cast<char>('B' + at)) + ". " + utf8Of(question.wrong[at]) + "\n";
  return text;
}

std::string unitShown(const ShownPlace& place, const std::string& source, Problems& problems) {
  return partsShown(place, parseListeningUnit(source, place.file.string(), problems),
                    questionShown);
}

/// The title of a lesson in the folder beside a source's; its number when that has none.
std::string titleOfLesson(const ShownPlace& place, int number) {
  const auto folder = std::filesystem::absolute(place.file).parent_path().parent_path();
  Problems elsewhere;
  for (const auto& path : textFilesIn(folder / "lessons", elsewhere)) {
    if (lessonSlotOf(path) != number || holdsItems(path)) continue;
    return utf8Of(parseLesson(readText(path, elsewhere), path.string(), elsewhere).title);
  }
  return std::to_string(number);
}

/// What the panel has for a stretch, with the labels that the program puts in.
std::string stretchShown(const ShownPlace& place, const AnalysisEntry& entry) {
  static_assert(AnalysisLabels.size() == AnalysisFieldCount);
  std::string text = placeShown(entry.where);
  for (std::size_t field = 0; field < AnalysisFieldCount; ++field) {
    std::string label = utf8Of(AnalysisLabels[field]);
    std::erase(label, blueMark);
    text +=
        (field + 1 < AnalysisFieldCount ? "\n" : " ") + label + " " + utf8Of(entry.fields[field]);
  }
  text += "\n";
  for (const int lesson : entry.lessons)
    text += "→ " + titleOfLesson(place, lesson) + "\n";
  return text;
}

std::string analysisShown(const ShownPlace& place, const std::string& source, Problems& problems) {
  return partsShown(place, parseAnalysis(source, place.file.string(), problems),
                    [&](const AnalysisEntry& entry) { return stretchShown(place, entry); });
}

/// The first line that is no comment.
std::string_view firstLineOf(std::string_view source) {
  for (const SourceLine& line : linesOf(source)) {
    if (!line.text.empty() && !line.text.starts_with("//")) return line.text;
  }
  return {};
}

/// "3: She sells bread."
bool opensQuestion(std::string_view line) {
  constexpr CharClass digits("[0-9]");
  const std::size_t colon = line.find(": ");
  return colon != 0 && colon != std::string_view::npos &&
         std::all_of(line.begin(), line.begin() + static_cast<std::ptrdiff_t>(colon),
                     [&](char each) { return digits.has(each); });
}

bool beginsAsItems(std::string_view source) {
  return source.starts_with("item:") || source.find("\nitem:") != std::string_view::npos;
}

} // namespace

std::string show(const ShownPlace& place, Problems& problems) {
  const std::string source = readText(place.file, problems);
  if (!problems.none()) return {};
  const std::string file = place.file.string();
  if (holdsEntries(source)) return entriesShown(place, source, problems);
  if (beginsAsItems(source)) return itemsShown(place, source, problems);
  if (firstLineOf(source).starts_with("word: ")) return analysisShown(place, source, problems);
  if (opensQuestion(firstLineOf(source))) return unitShown(place, source, problems);
  if (place.file.parent_path().filename() == "lessons")
    return lessonShown(parseLesson(source, file, problems));
  return textShown(parseReadingText(source, file, problems));
}

} // namespace talvora::pack
