// Laying out of sources for a reader at a terminal.
#include "pack/Show.h"

#include "exercises/ItemHeadings.h"
#include "pack/BlankWidth.h"
#include "pack/ExerciseSource.h"
#include "pack/LessonSource.h"
#include "pack/ReadingSource.h"
#include "pack/SourceFile.h"
#include "pack/StreamText.h"
#include "text/CharClass.h"
#include "text/Text.h"

#include <algorithm>
#include <charconv>

namespace talvora::pack {

namespace {

constexpr char lineEnd = '\r';

/// A blank's answers or a phrase, in the order of the question.
struct Marked {
  std::string shown;             ///< the question with its cells, or with its phrases in brackets
  std::vector<std::string> keys; ///< what stands in the braces, "in / during" for two answers
};

Marked markedOf(std::string_view stored, ItemForm form) {
  Marked marked;
  bool inKey = false;
  for (const char character : stored) {
    const bool cell = form == ItemForm::Fill && (inKey || character == '*' || character == '_');
    const bool phrase = form != ItemForm::Fill;
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

/// The name of what an explanation is about: "blank 2 (goes / went)", "C went, right".
std::string subjectOf(const Item& item, const Marked& marked, int number) {
  const auto at = static_cast<std::size_t>(number) - 1;
  const std::string right = number == item.key ? ", right" : "";
  if (item.form == ItemForm::Choice && at < item.options.size()) {
    return std::string(1, static_cast<char>('A' + at)) + ". " + utf8Of(item.options[at]) + right;
  }
  const std::string key = at < marked.keys.size() ? utf8Of(marked.keys[at]) : "";
  if (item.form == ItemForm::Mistake)
    return std::to_string(number) + ". " + key + (number == item.key ? ", the mistake" : "");
  return "blank " + std::to_string(number) + " (" + (key.empty() ? "stays empty" : key) + ")";
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
    text += (text.empty() ? "hints: " : ", ") + utf8Of(hint);
  return text.empty() ? "" : text + "\n";
}

int explainedCount(const Item& item, const Marked& marked) {
  return static_cast<int>(item.form == ItemForm::Choice ? item.options.size() : marked.keys.size());
}

std::string itemShown(const Item& item, ItemPlace place) {
  std::string text = "-- " + item.where.file + ":" + std::to_string(item.where.line) +
                     (item.id.empty() ? "" : " " + item.id) + "\n";
  const auto origin = place == ItemPlace::Bank ? ItemOrigin::Bank : ItemOrigin::OwnTest;
  const std::string heading = utf8Of(ChonDeMuc(item.heading, origin));
  if (!heading.empty()) text += heading + "\n";
  if (item.form == ItemForm::Order) return text + sentencesOf(item);
  const bool evened = item.form == ItemForm::Fill && item.hints.empty();
  const Marked marked = markedOf(evened ? withEvenBlanks(item.question) : item.question, item.form);
  text += hintsOf(item) + linesFrom(marked.shown);
  for (std::size_t at = 0; at < item.options.size(); ++at)
    text += std::string(1, static_cast<char>('A' + at)) + ". " + utf8Of(item.options[at]) + "\n";
  if (!item.general.empty()) text += "  before judging\n" + explained(item.general);
  for (int number = 1; number <= explainedCount(item, marked); ++number) {
    const auto lines = item.explanations.find(number);
    text += "  " + subjectOf(item, marked, number) + "\n" +
            (lines == item.explanations.end() ? "" : explained(lines->second));
  }
  return text;
}

std::string itemsShown(const ShownPlace& place, const std::string& source, Problems& problems) {
  const bool lesson = lessonSlotOf(place.file).has_value();
  const ItemPlace where = lesson ? ItemPlace::Lesson : ItemPlace::Bank;
  const auto items = parseItems(source, place.file.string(), where, BlankHelp::Own, problems);
  std::string text;
  for (auto item = items.begin(); item != items.end(); ++item) {
    const auto next = std::next(item);
    const bool holds =
        item->where.line <= place.line && (next == items.end() || place.line < next->where.line);
    if (place.line > 0 && !holds) continue;
    text += (text.empty() ? "" : "\n") + itemShown(*item, where);
  }
  return text;
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

bool beginsAsItems(std::string_view source) {
  return source.starts_with("item:") || source.find("\nitem:") != std::string_view::npos;
}

} // namespace

ShownPlace shownPlaceOf(const std::string& text) {
  const std::size_t colon = text.rfind(':');
  int line = 0;
  if (colon != std::string::npos) {
    const char* const end = text.data() + text.size();
    const auto [behind, failure] = std::from_chars(text.data() + colon + 1, end, line);
    if (failure == std::errc() && behind == end && line > 0) return {text.substr(0, colon), line};
  }
  return {text, 0};
}

std::string show(const ShownPlace& place, Problems& problems) {
  const std::string source = readText(place.file, problems);
  if (!problems.none()) return {};
  const std::string file = place.file.string();
  if (beginsAsItems(source)) return itemsShown(place, source, problems);
  if (place.file.parent_path().filename() == "lessons")
    return lessonShown(parseLesson(source, file, problems));
  return textShown(parseReadingText(source, file, problems));
}

} // namespace talvora::pack
