// Counting of items for the table.
#include "pack/CourseReport.h"

#include "pack/AnswerStatistics.h"
#include "pack/CourseRules.h"
#include "pack/Message.h"
#include "pack/WordCoverage.h"

#include <iomanip>
#include <map>
#include <set>
#include <sstream>
#include <vector>

namespace talvora::pack {

namespace {

/// The counts of a bank, or of the lessons together.
struct Row {
  std::map<ItemForm, std::size_t> kinds;
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
    ++row.kinds[each.item->form];
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

void writeRow(std::ostream& out, const std::vector<std::string>& cells) {
  constexpr int nameWidth = 18;
  constexpr int cellWidth = 10;
  out << "  " << std::left << std::setw(nameWidth) << cells.front();
  for (std::size_t at = 1; at < cells.size(); ++at)
    out << std::right << std::setw(at == 6 ? 2 * cellWidth : cellWidth) << cells[at];
  out << "\n";
}

void writeRow(std::ostream& out, std::string_view name, const Row& row) {
  const auto kind = [&](ItemForm form) {
    const auto found = row.kinds.find(form);
    return std::to_string(found == row.kinds.end() ? 0 : found->second);
  };
  writeRow(out, {std::string(name), std::to_string(row.items), kind(ItemForm::Fill),
                 kind(ItemForm::Choice), kind(ItemForm::Mistake), kind(ItemForm::Order),
                 positionsOf(row.answers), share(row.answers.longestRight, row.answers.choices),
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
  out << said("Items") << "\n"
      << said("                         items      fill    choice   mistake     order       right "
              "A/B/C/D   longest     words  no sense no lesson")
      << "\n";
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
