#include "pack/words/StableId.h"

#include "platform/Files.h"

#include <nettle/sha1.h>
#include <nettle/sha2.h>

#include <array>
#include <cstdio>

namespace talvora::pack {

std::string stableId(std::string_view text) {
  sha256_ctx context;
  sha256_init(&context);
  sha256_update(&context, text.size(), bytesOfText(text).data());
  std::array<std::uint8_t, 8> digest{};
  sha256_digest(&context, digest.size(), digest.data());
  std::string id;
  for (const std::uint8_t byte : digest) {
    std::array<char, 3> digits{};
    std::snprintf(digits.data(), digits.size(), "%02x", static_cast<unsigned>(byte));
    id += digits.data();
  }
  return id;
}

std::uint32_t fieldSum(std::string_view text) {
  sha1_ctx context;
  sha1_init(&context);
  sha1_update(&context, text.size(), bytesOfText(text).data());
  std::array<std::uint8_t, 4> digest{};
  sha1_digest(&context, digest.size(), digest.data());
  std::uint32_t sum = 0;
  for (const std::uint8_t byte : digest)
    sum = sum << 8U | byte;
  return sum;
}

} // namespace talvora::pack
