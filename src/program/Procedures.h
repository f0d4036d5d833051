// The program's pure procedures under their names, for a driver that wants to call them alone.
#pragma once

#include "surface/Variables.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace talvora {

class Procedures {
 public:
  using Arguments = std::vector<VariableValue>;
  /// Empty when the arguments do not fit the procedure.
  using Procedure = std::function<std::optional<VariableValue>(const Arguments&)>;

  /// Registers a procedure of one text.
  void addOfText(std::string name, std::function<VariableValue(const std::string&)> call);
  /// Registers a procedure of one byte; a number outside 0 to 255 does not fit it.
  void addOfByte(std::string name, std::function<VariableValue(unsigned char)> call);
  /// Registers a procedure of one whole number.
  void addOfNumber(std::string name, std::function<VariableValue(int)> call);
  void add(std::string name, Procedure call) { calls_[std::move(name)] = std::move(call); }

  /// The procedure of a name, or null.
  [[nodiscard]] const Procedure* find(const std::string& name) const;

 private:
  std::map<std::string, Procedure> calls_;
};

/// An argument as a text or a whole number; empty when it is something else.
[[nodiscard]] std::optional<std::string> textArgument(const Procedures::Arguments& arguments,
                                                      std::size_t place);
[[nodiscard]] std::optional<int> numberArgument(const Procedures::Arguments& arguments,
                                                std::size_t place);

} // namespace talvora
