#include "surface/LineEnds.h"

#include <array>
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

std::uint64_t wordAt(std::string_view text, std::size_t at) {
  std::uint64_t word = 0;
  std::memcpy(&word, text.data() + at, sizeof word);
  return word;
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
    // Eight characters at a time. Most words hold one line end or none, in an order that no
    // processor foresees, so the first two places are written down without asking.
    std::array<int, 1024> found;
    std::size_t count = 0;
    for (; at + sizeof(std::uint64_t) <= inner; at += sizeof(std::uint64_t)) {
      const std::uint64_t ends =
          bytesEqual(wordAt(text, at), '\n') |
          (bytesEqual(wordAt(text, at), '\r') & ~bytesEqual(wordAt(text, at + 1), '\n'));
      std::uint64_t left = ends;
      const auto note = [&] {
        found[count] = base + static_cast<int>(at + 1) + std::countr_zero(left) / 8;
        count += left != 0 ? 1 : 0;
        left &= left - 1;
      };
      note();
      note();
      while (left != 0)
        note();
      if (count > found.size() - sizeof(std::uint64_t) - 2) {
        starts.insert(starts.end(), found.begin(),
                      found.begin() + static_cast<std::ptrdiff_t>(count));
        count = 0;
      }
    }
    starts.insert(starts.end(), found.begin(), found.begin() + static_cast<std::ptrdiff_t>(count));
  }
  for (; at < inner; ++at)
    visit(at);
}

std::string_view withoutLineEnd(std::string_view text) noexcept {
  if (text.ends_with("\r\n")) return text.substr(0, text.size() - 2);
  if (text.ends_with('\r') || text.ends_with('\n')) return text.substr(0, text.size() - 1);
  return text;
}

} // namespace talvora
