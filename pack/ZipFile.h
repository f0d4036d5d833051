// Archives of the zip form, in memory.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

struct ZipEntry {
  std::string name; ///< a path with slashes
  std::string bytes;
};

/// The bytes of an archive; the same for the same entries. Throws std::runtime_error when it cannot
/// be made.
[[nodiscard]] std::string zipOf(const std::vector<ZipEntry>& entries);

/// How much of an archive is read.
struct ZipLimits {
  std::size_t entries = 5000;
  std::size_t bytes = std::size_t{64} << 20; ///< of all entries, unpacked
};

/// What is in an archive; nothing when it cannot be read, or is larger than the limits. Names are
/// only names here: nothing is written anywhere.
struct ZipContent {
  std::optional<std::map<std::string, std::string>> entries; ///< bytes by name
  std::string problem;
};
[[nodiscard]] ZipContent zipContentOf(std::string_view bytes, const ZipLimits& limits = {});

} // namespace talvora::pack
