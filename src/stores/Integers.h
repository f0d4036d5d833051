// Integers as they lie on disk: 32 bits, signed, little-endian.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace talvora {

inline constexpr std::size_t IntegerSize = 4;

/// The integer in four bytes; the caller has checked that they are there.
[[nodiscard]] constexpr std::int32_t integerAt(const unsigned char* bytes) {
  std::uint32_t value = 0;
  for (std::size_t place = 0; place < IntegerSize; ++place) {
    value |= static_cast<std::uint32_t>(bytes[place]) << (8 * place);
  }
  return static_cast<std::int32_t>(value);
}

[[nodiscard]] constexpr std::array<unsigned char, IntegerSize> bytesOf(std::int32_t value) {
  std::array<unsigned char, IntegerSize> bytes{};
  for (std::size_t place = 0; place < IntegerSize; ++place) {
    bytes[place] = static_cast<unsigned char>(static_cast<std::uint32_t>(value) >> (8 * place));
  }
  return bytes;
}

} // namespace talvora
