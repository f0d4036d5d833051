// A small SQLite database in memory.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <variant>
#include <vector>

struct sqlite3;

namespace talvora::pack {

/// A value of a row: a number or a text.
using Cell = std::variant<std::int64_t, std::string>;

/// Every call throws std::runtime_error when the library refuses it.
class Database {
 public:
  Database();

  /// Runs statements that take nothing and give nothing.
  void run(const std::string& statements);
  /// Adds a row to a table, all of its columns in their order.
  void add(const std::string& table, const std::vector<Cell>& row);
  /// The bytes of the database's file.
  [[nodiscard]] std::string bytes() const;

 private:
  struct Close {
    void operator()(sqlite3* database) const;
  };

  std::unique_ptr<sqlite3, Close> database_;
};

} // namespace talvora::pack
