// Counting of items for the table.
#include "pack/CourseReport.h"

#include "pack/AnswerStatistics.h"
#include "pack/CourseRules.h"
#include "pack/Message.h"
#include "pack/WordCoverage.h"
#include "pack/kinds/ItemKinds.h"

#include <algorithm>
#include <iomanip>
#include <map>
#include <set>
#include <sstream>
#include <vector>

namespace talvora::pack {

namespace {

/// The counts of a bank, or of the lessons together.
struct Row {
  std::map<const ItemKind*, std::size_t> kinds;
  std::size_t items = 0;
  std::size_t words = 0;
  std::set<std::string> untranslated;
  AnswerStatistics answers;
  std::size_t withoutLesson = 0;
};

bool hasVietnamese(const WordList& list, const std::string& word) {
  const auto found = lookUp(list, word.substr(0, word.find('\'')));
  return found && list.hasVietnamese(list.at(*found));
}

Row& rowOf(std::vector<Row>& rows, const CourseItem& item) {
  return rows[item.bank.value_or(BankCount)];
}

std::vector<Row> rowsOf(const std::vector<CourseItem>& items, const WordList& list) {
  std::vector<Row> rows(BankCount + 1);
  for (const CourseItem& each : items) {
    Row& row = rowOf(rows, each);
    ++row.items;
    ++row.kinds[each.item->kind];
    row.words += each.words.size();
    countAnswer(row.answers, *each.item);
    for (const std::string& word : each.words) {
      if (!hasVietnamese(list, word)) row.untranslated.insert(word);
    }
  }
  return rows;
}

std::string share(std::size_t part, std::size_t whole) {
  return whole == 0 ? "-" : std::to_string(part * 100 / whole) + "%";
}

std::string meanLength(const Row& row) {
  std::ostringstream text;
  text << std::fixed << std::setprecision(1)
       << (row.items == 0 ? 0.0 : static_cast<double>(row.words) / static_cast<double>(row.items));
  return text.str();
}

std::string positionsOf(const AnswerStatistics& answers) {
  std::string text;
  for (const std::size_t count : answers.positions)
    text += (text.empty() ? "" : "/") + std::to_string(count);
  return text;
}

/// A cell, with blanks on the side given; letters count, and not their bytes.
std::string padded(const std::string& cell, std::size_t width, bool ahead) {
  const auto letters = static_cast<std::size_t>(
      std::count_if(cell.begin(), cell.end(), [](char byte) { return (byte & 0xC0) != 0x80; }));
  const std::string blanks(width - std::min(letters, width), ' ');
  return ahead ? blanks + cell : cell + blanks;
}

/// Writes a row: a name, a count of each kind behind that of all items, and what was found of them.
void writeRow(std::ostream& out, const std::string& name, const std::string& all,
              const std::vector<std::string>& kinds, const std::vector<std::string>& found) {
  constexpr std::size_t nameWidth = 18;
  constexpr std::size_t cellWidth = 10;
  out << "  " << padded(name, nameWidth, false) << padded(all, cellWidth, true);
  for (const std::string& count : kinds)
    out << padded(count, cellWidth, true);
  out << padded(found.front(), 2 * cellWidth, true); // four counts in one
  for (std::size_t at = 1; at < found.size(); ++at)
    out << padded(found[at], cellWidth, true);
  out << "\n";
}

void writeHeading(std::ostream& out) {
  std::vector<std::string> kinds;
  for (const ItemKind* kind : itemKinds())
    kinds.push_back(translated(kind->name()));
  writeRow(
      out, "", said("items"), kinds,
      {said("right A/B/C/D"), said("longest"), said("words"), said("no sense"), said("no lesson")});
}

void writeRow(std::ostream& out, std::string_view name, const Row& row) {
  std::vector<std::string> kinds;
  for (const ItemKind* kind : itemKinds()) {
    const auto found = row.kinds.find(kind);
    kinds.push_back(std::to_string(found == row.kinds.end() ? 0 : found->second));
  }
  writeRow(out, std::string(name), std::to_string(row.items), kinds,
           {positionsOf(row.answers), share(row.answers.longestRight, row.answers.choices),
            meanLength(row), std::to_string(row.untranslated.size()),
            std::to_string(row.withoutLesson)});
}

} // namespace

std::string courseReport(const ExerciseSource& exercises, const LessonSource& lessons,
                         const WordList& list) {
  const auto items = courseItemsOf(exercises);
  const Course course{lessons, exercises, items, list};
  auto rows = rowsOf(items, list);
  std::map<std::pair<std::string, int>, const CourseItem*> byPlace;
  for (const CourseItem& each : items)
    byPlace[{each.item->where.file, each.item->where.line}] = &each;
  for (const Problem& problem : itemsHaveALesson(course).found)
    ++rowOf(rows, *byPlace.at({problem.where.file, problem.where.line})).withoutLesson;
  std::ostringstream out;
  out << said("Items") << "\n";
  writeHeading(out);
  for (std::size_t bank = 0; bank < BankCount; ++bank)
    writeRow(out, BankNames[bank], rows[bank]);
  writeRow(out, said("lessons"), rows[BankCount]);
  const auto unpractised = lessonsArePractised(course).found;
  out << said("Lessons without an item in a bank: {}", unpractised.size()) << "\n";
  for (const Problem& problem : unpractised)
    out << "  " << describe(problem) << "\n";
  return out.str();
}

} // namespace talvora::pack
