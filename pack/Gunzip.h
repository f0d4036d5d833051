// Files that may be compressed by gzip, dictzip among them.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace talvora::pack {

/// What came of unpacking.
struct Unpacked {
  std::optional<std::string> bytes;
  std::string
      problem; ///< what is wrong, with the offset in the packed bytes; empty when nothing is
};

/// The content of gzip's bytes; others are given back as they are. More than `most` bytes of
/// content are refused, so that a small file cannot fill the memory.
[[nodiscard]] Unpacked unpacked(std::string_view bytes, std::size_t most);

} // namespace talvora::pack
