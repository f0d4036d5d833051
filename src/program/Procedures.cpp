#include "program/Procedures.h"

#include <cmath>
#include <limits>
#include <utility>

namespace talvora {

std::optional<std::string> textArgument(const Procedures::Arguments& arguments, std::size_t place) {
  if (place >= arguments.size()) return std::nullopt;
  const auto* text = std::get_if<std::string>(&arguments[place].value);
  return text == nullptr ? std::nullopt : std::optional(*text);
}

std::optional<int> numberArgument(const Procedures::Arguments& arguments, std::size_t place) {
  if (place >= arguments.size()) return std::nullopt;
  const auto* number = std::get_if<double>(&arguments[place].value);
  if (number == nullptr || *number != std::floor(*number) ||
      std::abs(*number) > std::numeric_limits<int>::max()) {
    return std::nullopt;
  }
  return static_cast<int>(*number);
}

void Procedures::addOfText(std::string name,
                           std::function<VariableValue(const std::string&)> call) {
  add(std::move(name),
      [call = std::move(call)](const Arguments& arguments) -> std::optional<VariableValue> {
        const auto text = textArgument(arguments, 0);
        if (!text || arguments.size() != 1) return std::nullopt;
        return call(*text);
      });
}

void Procedures::addOfNumber(std::string name, std::function<VariableValue(int)> call) {
  add(std::move(name),
      [call = std::move(call)](const Arguments& arguments) -> std::optional<VariableValue> {
        const auto number = numberArgument(arguments, 0);
        if (!number || arguments.size() != 1) return std::nullopt;
        return call(*number);
      });
}

void Procedures::addOfByte(std::string name, std::function<VariableValue(unsigned char)> call) {
  add(std::move(name),
      [call = std::move(call)](const Arguments& arguments) -> std::optional<VariableValue> {
        const auto number = numberArgument(arguments, 0);
        const bool isByte = number && *number >= 0 && *number <= 0xFF;
        if (!isByte || arguments.size() != 1) return std::nullopt;
        return call(static_cast<unsigned char>(*number));
      });
}

const Procedures::Procedure* Procedures::find(const std::string& name) const {
  const auto found = calls_.find(name);
  return found == calls_.end() ? nullptr : &found->second;
}

} // namespace talvora
