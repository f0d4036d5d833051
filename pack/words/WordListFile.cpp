#include "pack/words/WordListFile.h"

#include "learner/VocabularyFile.h"
#include "learner/WordRows.h"
#include "pack/Message.h"
#include "pack/PlainMarkup.h"
#include "pack/words/CardFields.h"
#include "pack/words/Table.h"
#include "text/CharClass.h"
#include "text/Contains.h"
#include "text/Text.h"

#include <algorithm>
#include <optional>

namespace talvora::pack {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view columnsOpener = "#columns:";
constexpr std::string_view separatorOpener = "#separator:";

/// What the columns of a table hold; from 0.
struct Columns {
  std::size_t word = 0;
  std::optional<std::size_t> sentence;
  std::optional<std::size_t> title;
};

/// The settings ahead of a table, as flash-card programs write them.
struct TableHead {
  std::size_t lines = 0;
  std::optional<char> separator;
  std::string columns;
  bool html = false;
};

TableHead headOf(std::string_view content) {
  TableHead head;
  while (content.starts_with('#')) {
    const std::size_t end = std::min(content.find('\n'), content.size());
    std::string_view line = content.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (line == "#html:true") head.html = true;
    if (line.starts_with(columnsOpener)) head.columns = line.substr(columnsOpener.size());
    if (line.starts_with(separatorOpener)) {
      const auto name = lower(line.substr(separatorOpener.size()));
      head.separator = name == "comma" || name == ","       ? ','
                       : name == "semicolon" || name == ";" ? ';'
                                                            : '\t';
    }
    ++head.lines;
    content.remove_prefix(std::min(end + 1, content.size()));
  }
  return head;
}

/// The separator that a table without settings uses.
char separatorIn(std::string_view content) {
  for (const char each : {'\t', ',', ';'}) {
    if (content.find(each) != std::string_view::npos) return each;
  }
  return '\t';
}

std::optional<std::size_t> columnNamed(const Fields& names,
                                       std::initializer_list<std::string_view> wanted) {
  const auto found = std::find_if(names.begin(), names.end(), [&](const std::string& name) {
    return contains(wanted, lower(trim(name)));
  });
  if (found == names.end()) return std::nullopt;
  return static_cast<std::size_t>(found - names.begin());
}

/// The columns by their headings; nothing when these are no headings.
std::optional<Columns> columnsBy(const Fields& names) {
  const std::string ownWord = lower(CardFieldNames[WordField]);
  const std::string ownSentence = lower(CardFieldNames[SentenceField]);
  const std::string ownTitle = lower(CardFieldNames[TitleField]);
  const auto word = columnNamed(names, {ownWord, "word", "front"});
  if (!word) return std::nullopt;
  return Columns{*word, columnNamed(names, {ownSentence, "sentence", "example"}),
                 columnNamed(names, {ownTitle, "text", "title"})};
}

/// Why the list of the program cannot hold a word; empty when it can.
std::string faultOf(std::string_view word) {
  constexpr CharClass ofWords("[a-zA-Z0-9' -]");
  if (word.empty()) return said("there is no word");
  if (word.size() > VocabularyWord::LongestWord) {
    return said("the word has more than {} letters", VocabularyWord::LongestWord);
  }
  const bool isEnglish =
      std::all_of(word.begin(), word.end(), [&](char each) { return ofWords.has(each); }) &&
      std::any_of(word.begin(), word.end(), [](char each) { return Letters.has(each); });
  return isEnglish ? "" : said("this is no English word");
}

class ListReader {
 public:
  ListReader(Columns columns, bool html, int firstLine)
      : columns_(columns), html_(html), firstLine_(firstLine) {}

  void read(const TableRow& row) {
    const int line = row.line + firstLine_;
    const std::string text = fieldOf(row, columns_.word);
    const std::string word = text.starts_with('I') ? text : lower(text);
    if (std::string why = faultOf(word); !why.empty()) {
      content_.refused.push_back({line, std::move(why)});
      return;
    }
    content_.words.push_back(
        {word, fieldOf(row, columns_.sentence), fieldOf(row, columns_.title), line});
  }

  WordListContent finish() { return std::move(content_); }

 private:
  [[nodiscard]] std::string fieldOf(const TableRow& row, std::optional<std::size_t> column) const {
    if (!column || *column >= row.fields.size()) return {};
    const std::string& field = row.fields[*column];
    return std::string(trim(bytesOfReadable(html_ ? withoutMarkup(field) : field)));
  }

  Columns columns_;
  bool html_;
  int firstLine_; ///< lines ahead of the table
  WordListContent content_;
};

} // namespace

WordListContent wordListFrom(std::string_view content) {
  if (content.starts_with(byteOrderMark)) content.remove_prefix(byteOrderMark.size());
  const TableHead head = headOf(content);
  for (std::size_t line = 0; line < head.lines; ++line)
    content.remove_prefix(std::min(content.find('\n'), content.size() - 1) + 1);
  const char separator = head.separator.value_or(separatorIn(content));
  std::optional<Columns> columns = columnsBy(split(head.columns, separator));
  const auto rows = tableRows(content, separator);
  auto first = rows.begin();
  if (!columns && first != rows.end()) {
    columns = columnsBy(first->fields);
    if (columns) ++first;
  }
  ListReader reader(columns.value_or(Columns()), head.html, static_cast<int>(head.lines));
  for (auto row = first; row != rows.end(); ++row)
    reader.read(*row);
  return reader.finish();
}

} // namespace talvora::pack
