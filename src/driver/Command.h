// One command of the driver's protocol: its fields, read with their types.
#pragma once

#include "driver/Json.h"

#include <stdexcept>
#include <string>
#include <string_view>

namespace talvora {

/// A command that cannot be understood, or not now. Nothing has been changed when it is thrown. Its
/// text is single bytes, as the program's texts are.
class CommandError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// All readers of fields throw CommandError for a field that is missing or of another type.
class Command {
 public:
  /// Throws CommandError unless the line is one JSON object with a text "do".
  explicit Command(std::string_view line);

  [[nodiscard]] const std::string& name() const noexcept { return name_; }
  [[nodiscard]] bool has(const char* field) const { return fields_.contains(field); }

  [[nodiscard]] std::string text(const char* field) const;
  /// A whole number of 32 bits.
  [[nodiscard]] int number(const char* field) const;
  /// A number that stays one when others are added to it.
  [[nodiscard]] int coordinate(const char* field) const;
  [[nodiscard]] bool flag(const char* field, bool byDefault) const;
  /// True for the first of two words, false for the second; without `byDefault` one must be there.
  [[nodiscard]] bool choice(const char* field, const char* byDefault, const char* first,
                            const char* second) const;
  [[nodiscard]] const Json& list(const char* field) const;

  /// Throws the CommandError of a field.
  [[noreturn]] void refuse(const char* field, const std::string& why) const;

 private:
  [[nodiscard]] const Json& at(const char* field) const;

  Json fields_;
  std::string name_;
};

} // namespace talvora
