#include "surface/LineEnds.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace talvora {

namespace {

constexpr std::uint64_t eachByte(unsigned char byte) {
  return 0x0101010101010101U * byte;
}

/// The high bit of each byte that equals `byte`, exactly.
constexpr std::uint64_t bytesEqual(std::uint64_t word, unsigned char byte) {
  constexpr std::uint64_t low = eachByte(0x7F);
  const std::uint64_t differing = word ^ eachByte(byte);
  return ~(((differing & low) + low) | differing | low);
}

} // namespace

void appendLineStarts(std::string_view text, int base, std::vector<int>& starts) {
  if (text.empty()) return;
  const std::size_t inner = text.size() - 1;
  const auto visit = [&](std::size_t at) {
    if (endsLine(text[at], text[at + 1])) starts.push_back(base + static_cast<int>(at + 1));
  };
  std::size_t at = 0;
  if constexpr (std::endian::native == std::endian::little) {
    // Eight characters at a time: most hold no line end.
    for (; at + sizeof(std::uint64_t) <= inner; at += sizeof(std::uint64_t)) {
      std::uint64_t word = 0;
      std::memcpy(&word, text.data() + at, sizeof word);
      std::uint64_t hits = bytesEqual(word, '\n') | bytesEqual(word, '\r');
      for (; hits != 0; hits &= hits - 1) {
        visit(at + static_cast<std::size_t>(std::countr_zero(hits)) / 8);
      }
    }
  }
  for (; at < inner; ++at) visit(at);
}

std::string_view withoutLineEnd(std::string_view text) noexcept {
  if (text.ends_with("\r\n")) return text.substr(0, text.size() - 2);
  if (text.ends_with('\r') || text.ends_with('\n')) return text.substr(0, text.size() - 1);
  return text;
}

} // namespace talvora
