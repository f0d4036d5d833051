#include "driver/Command.h"

#include <cstdint>
#include <cstdlib>
#include <limits>

namespace talvora {

namespace {

constexpr int LargestCoordinate = 1'000'000'000;

} // namespace

Command::Command(std::string_view line)
    : fields_(Json::parse(line.begin(), line.end(), nullptr, false)) {
  if (!fields_.is_object()) throw CommandError("not a JSON object");
  name_ = text("do");
}

void Command::refuse(const char* field, const std::string& why) const {
  throw CommandError(std::string("field \"") + field + "\": " + why);
}

const Json& Command::at(const char* field) const {
  const auto found = fields_.find(field);
  if (found == fields_.end()) refuse(field, "is missing");
  return *found;
}

std::string Command::text(const char* field) const {
  const Json& value = at(field);
  if (!value.is_string()) refuse(field, "is not a text");
  auto bytes = bytesOfJson(value);
  if (!bytes) refuse(field, "has a character above 255");
  return *bytes;
}

int Command::number(const char* field) const {
  const Json& value = at(field);
  if (!value.is_number_integer()) refuse(field, "is not a whole number");
  constexpr std::int64_t Largest = std::numeric_limits<std::int32_t>::max();
  constexpr std::int64_t Smallest = std::numeric_limits<std::int32_t>::min();
  const bool beyond64Bits =
      value.is_number_unsigned() && value.get<std::uint64_t>() > std::uint64_t{Largest};
  const auto number = value.get<std::int64_t>();
  if (beyond64Bits || number > Largest || number < Smallest) refuse(field, "is out of range");
  return static_cast<int>(number);
}

int Command::coordinate(const char* field) const {
  const int value = number(field);
  if (value > LargestCoordinate || value < -LargestCoordinate) refuse(field, "is out of range");
  return value;
}

bool Command::flag(const char* field, bool byDefault) const {
  if (!has(field)) return byDefault;
  const Json& value = at(field);
  if (!value.is_boolean()) refuse(field, "is not true or false");
  return value.get<bool>();
}

bool Command::choice(const char* field, const char* byDefault, const char* first,
                     const char* second) const {
  const std::string word = byDefault != nullptr && !has(field) ? byDefault : text(field);
  if (word != first && word != second) {
    refuse(field, std::string("is neither \"") + first + "\" nor \"" + second + "\"");
  }
  return word == first;
}

const Json& Command::list(const char* field) const {
  const Json& value = at(field);
  if (!value.is_array()) refuse(field, "is not an array");
  return value;
}

} // namespace talvora
