#include "stores/ByteCode.h"

namespace talvora {

namespace {

constexpr std::array<char, 256> singles = [] {
  std::array<char, 256> characters{};
  for (std::size_t code = 0; code < characters.size(); ++code) {
    characters[code] = static_cast<char>(static_cast<unsigned char>(code));
  }
  return characters;
}();

constexpr std::array<std::string_view, 256> texts = [] {
  std::array<std::string_view, 256> table{};
  for (std::size_t code = 0; code < table.size(); ++code)
    table[code] = {&singles[code], 1};
  for (const Expansion& each : ExpansionTable)
    table[each.plain] = each.text;
  return table;
}();

} // namespace

std::string_view MoRongByte(unsigned char plain) {
  return texts[plain];
}

} // namespace talvora
