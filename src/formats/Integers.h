// Integers as they lie on disk, signed and little-endian: 32 bits in records of 4 bytes, counts in
// records of 2. Records are numbered from 1.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace talvora {

inline constexpr std::size_t IntegerSize = 4;
inline constexpr std::size_t CountSize = 2;

static_assert(IntegerSize == sizeof(std::int32_t) && CountSize == sizeof(std::int16_t));

/// The integer in four bytes; the caller has checked that they are there. Written without a loop,
/// it is a single load.
template <class Byte>
[[nodiscard]] constexpr std::int32_t integerAt(const Byte* bytes) {
  const auto part = [bytes](int place) {
    return std::uint32_t{static_cast<unsigned char>(bytes[place])} << (8 * place);
  };
  return static_cast<std::int32_t>(part(0) | part(1) | part(2) | part(3));
}

[[nodiscard]] constexpr std::array<unsigned char, IntegerSize> bytesOf(std::int32_t value) {
  std::array<unsigned char, IntegerSize> bytes{};
  for (std::size_t place = 0; place < IntegerSize; ++place) {
    bytes[place] = static_cast<unsigned char>(static_cast<std::uint32_t>(value) >> (8 * place));
  }
  return bytes;
}

/// The 4-byte record of a number; 0 outside the table.
[[nodiscard]] constexpr std::int32_t integerAt(std::string_view table, std::size_t record) {
  if (record == 0 || record > table.size() / IntegerSize) return 0;
  return integerAt(table.data() + (record - 1) * IntegerSize);
}

/// Appends a 4-byte record.
inline void appendInteger(std::string& table, std::size_t value) {
  for (const unsigned char byte : bytesOf(static_cast<std::int32_t>(value)))
    table += static_cast<char>(byte);
}

/// The 2-byte record of a number; 0 outside the table.
[[nodiscard]] constexpr std::int16_t countAt(std::string_view table, std::size_t record) {
  if (record == 0 || record > table.size() / CountSize) return 0;
  const auto low = static_cast<unsigned char>(table[(record - 1) * CountSize]);
  const auto high = static_cast<unsigned char>(table[(record - 1) * CountSize + 1]);
  return static_cast<std::int16_t>(low | high << 8);
}

/// Appends a 2-byte record.
inline void appendCount(std::string& table, std::size_t value) {
  table += static_cast<char>(value & 0xFFU);
  table += static_cast<char>(value >> 8 & 0xFFU);
}

} // namespace talvora
