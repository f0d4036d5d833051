// Tables as text: fields parted by commas or tabs, in quotation marks where they need to be.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

using Fields = std::vector<std::string>;

/// A row of a table.
struct TableRow {
  Fields fields;
  int line = 0; ///< of the file on which it begins, from 1
};

/// One row with its line end. A field that holds the separator, a quotation mark or a line end
/// stands in quotation marks, in which each of its own is doubled.
[[nodiscard]] std::string tableRow(const Fields& fields, char separator);

/// The rows of a table; lines that are empty are left out. A quotation mark that is not closed ends
/// with its text.
[[nodiscard]] std::vector<TableRow> tableRows(std::string_view text, char separator);

} // namespace talvora::pack
