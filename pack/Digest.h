// A number for a run of bytes that no other bytes have.
#pragma once

#include <nettle/sha2.h>

#include <string>
#include <string_view>

namespace talvora::pack {

class Digest {
 public:
  Digest() { sha256_init(&context_); }

  /// Adds a text; where one ends and the next begins counts, too.
  void add(std::string_view text);
  /// The digest of everything added, in hexadecimal digits. To be called once.
  [[nodiscard]] std::string digits();

 private:
  sha256_ctx context_{};
};

} // namespace talvora::pack
