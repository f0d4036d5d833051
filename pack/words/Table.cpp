#include "pack/words/Table.h"

#include <algorithm>
#include <utility>

namespace talvora::pack {

namespace {

constexpr char quote = '"';

/// Takes a text apart character by character.
class TableReader {
 public:
  explicit TableReader(char separator) : separator_(separator) {}

  void take(char character) {
    if (character == '\n') ++line_;
    if (quoted_) return takeQuoted(character);
    if (character == quote && field_.empty() && !closed_) {
      quoted_ = true;
    } else if (character == quote && closed_) {
      // A doubled one within quotation marks is one of the field's own.
      field_ += quote;
      quoted_ = true;
      closed_ = false;
    } else if (character == separator_) {
      endField();
    } else if (character == '\n') {
      endRow();
    } else if (character != '\r') {
      field_ += character;
    }
  }

  std::vector<TableRow> finish() {
    endRow();
    return std::move(rows_);
  }

 private:
  void takeQuoted(char character) {
    if (character == quote) {
      quoted_ = false;
      closed_ = true;
    } else {
      field_ += character;
    }
  }

  void endField() {
    row_.fields.push_back(std::exchange(field_, {}));
    closed_ = false;
  }

  void endRow() {
    endField();
    const bool isEmpty = row_.fields.size() == 1 && row_.fields.front().empty();
    if (!isEmpty) rows_.push_back(std::move(row_));
    row_ = {{}, line_};
  }

  char separator_;
  std::vector<TableRow> rows_;
  TableRow row_{{}, 1};
  std::string field_;
  int line_ = 1;
  bool quoted_ = false;
  bool closed_ = false; ///< the field's quotation mark has been closed
};

} // namespace

std::string tableRow(const Fields& fields, char separator) {
  std::string row;
  for (const std::string& field : fields) {
    if (&field != &fields.front()) row += separator;
    const bool isPlain = std::none_of(field.begin(), field.end(), [&](char each) {
      return each == separator || each == quote || each == '\n' || each == '\r';
    });
    if (isPlain) {
      row += field;
      continue;
    }
    row += quote;
    for (const char each : field)
      row.append(each == quote ? 2 : 1, each);
    row += quote;
  }
  return row + '\n';
}

std::vector<TableRow> tableRows(std::string_view text, char separator) {
  TableReader reader(separator);
  for (const char character : text)
    reader.take(character);
  return reader.finish();
}

} // namespace talvora::pack
