#include "pack/Digest.h"

#include "platform/Files.h"

#include <array>
#include <cstdint>

namespace talvora::pack {

void Digest::add(std::string_view text) {
  const std::string length = std::to_string(text.size()) + " ";
  sha256_update(&context_, length.size(), bytesOfText(length).data());
  sha256_update(&context_, text.size(), bytesOfText(text).data());
}

std::string Digest::digits() {
  std::array<std::uint8_t, SHA256_DIGEST_SIZE> digest{};
  sha256_digest(&context_, digest.size(), digest.data());
  constexpr std::string_view hexadecimal = "0123456789abcdef";
  std::string text;
  for (const std::uint8_t byte : digest) {
    text += hexadecimal[byte >> 4U];
    text += hexadecimal[byte & 15U];
  }
  return text;
}

} // namespace talvora::pack
