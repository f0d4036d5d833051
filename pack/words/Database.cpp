#include "pack/words/Database.h"

#include "pack/Message.h"

#include <sqlite3.h>

#include <stdexcept>

namespace talvora::pack {

namespace {

struct Finalize {
  void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
struct FreeBytes {
  void operator()(unsigned char* bytes) const { sqlite3_free(bytes); }
};

void require(sqlite3* database, int result, int wanted) {
  if (result == wanted) return;
  const std::string why = database == nullptr ? said("out of memory") : sqlite3_errmsg(database);
  throw std::runtime_error(said("the deck's database cannot be made: {}", why));
}

std::string insertion(const std::string& table, std::size_t columns) {
  std::string statement = "INSERT INTO " + table + " VALUES (?";
  for (std::size_t column = 1; column < columns; ++column)
    statement += ",?";
  return statement + ")";
}

} // namespace

void Database::Close::operator()(sqlite3* database) const {
  sqlite3_close(database);
}

Database::Database() {
  sqlite3* opened = nullptr;
  const int result = sqlite3_open(":memory:", &opened);
  database_.reset(opened);
  require(opened, result, SQLITE_OK);
}

void Database::run(const std::string& statements) {
  const int result = sqlite3_exec(database_.get(), statements.c_str(), nullptr, nullptr, nullptr);
  require(database_.get(), result, SQLITE_OK);
}

void Database::add(const std::string& table, const std::vector<Cell>& row) {
  sqlite3_stmt* prepared = nullptr;
  const int result = sqlite3_prepare_v2(database_.get(), insertion(table, row.size()).c_str(), -1,
                                        &prepared, nullptr);
  const std::unique_ptr<sqlite3_stmt, Finalize> statement(prepared);
  require(database_.get(), result, SQLITE_OK);
  int place = 1;
  for (const Cell& cell : row) {
    const auto* const text = std::get_if<std::string>(&cell);
    const int bound = text != nullptr
                          ? sqlite3_bind_text(prepared, place, text->data(),
                                              static_cast<int>(text->size()), SQLITE_STATIC)
                          : sqlite3_bind_int64(prepared, place, std::get<std::int64_t>(cell));
    require(database_.get(), bound, SQLITE_OK);
    ++place;
  }
  require(database_.get(), sqlite3_step(prepared), SQLITE_DONE);
}

std::string Database::bytes() const {
  sqlite3_int64 size = 0;
  const std::unique_ptr<unsigned char, FreeBytes> content(
      sqlite3_serialize(database_.get(), "main", &size, 0));
  if (content == nullptr)
    throw std::runtime_error(said("the deck's database cannot be made: {}", said("out of memory")));
  return {content.get(), content.get() + size};
}

} // namespace talvora::pack
