// The program's variables under their names, for a driver that wants to see them. Modules register
// how to read a variable; nothing is copied until it is asked for.
#pragma once

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <variant>
#include <vector>

namespace talvora {

/// The value of a variable: a number, a flag, a text of single bytes, a table, or a record with its
/// fields by name.
struct VariableValue {
  using Table = std::vector<VariableValue>;
  using Record = std::vector<std::pair<std::string, VariableValue>>;

  VariableValue(bool flag) : value(flag) {}                   // NOLINT(google-explicit-constructor)
  VariableValue(int number) : value(double(number)) {}        // NOLINT(google-explicit-constructor)
  VariableValue(double number) : value(number) {}             // NOLINT(google-explicit-constructor)
  VariableValue(std::string text) : value(std::move(text)) {} // NOLINT(google-explicit-constructor)
  VariableValue(Table table) : value(std::move(table)) {}     // NOLINT(google-explicit-constructor)
  VariableValue(Record record) : value(std::move(record)) {}  // NOLINT(google-explicit-constructor)

  std::variant<bool, double, std::string, Table, Record> value;
};

class Variables {
 public:
  using Reader = std::function<VariableValue()>;

  void add(std::string name, Reader reader) { readers_[std::move(name)] = std::move(reader); }
  /// Registers a plain variable that outlives the table.
  template <class Value>
  void add(std::string name, const Value* variable) {
    add(std::move(name), [variable] { return VariableValue(*variable); });
  }
  /// Registers a table or vector of plain values that outlives the table.
  template <class Values>
  void addTable(std::string name, const Values* values) {
    add(std::move(name), [values] {
      VariableValue::Table table;
      for (const auto& each : *values)
        table.emplace_back(static_cast<int>(each));
      return VariableValue(std::move(table));
    });
  }

  /// The reader of a name, or null.
  [[nodiscard]] const Reader* find(const std::string& name) const {
    const auto found = readers_.find(name);
    return found == readers_.end() ? nullptr : &found->second;
  }

 private:
  std::map<std::string, Reader> readers_;
};

} // namespace talvora
