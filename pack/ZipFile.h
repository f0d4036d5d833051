// Archives of the zip form, in memory.
#pragma once

#include <string>
#include <vector>

namespace talvora::pack {

struct ZipEntry {
  std::string name; ///< a path with slashes
  std::string bytes;
};

/// The bytes of an archive; the same for the same entries. Throws std::runtime_error when it cannot
/// be made.
[[nodiscard]] std::string zipOf(const std::vector<ZipEntry>& entries);

} // namespace talvora::pack
