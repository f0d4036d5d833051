// A pack back to sources.
#pragma once

#include "pack/Problems.h"

#include <filesystem>
#include <string>
#include <vector>

namespace talvora::pack {

/// A source written from a pack; the name is relative to the content tree.
struct SourceText {
  std::string name;
  std::string text;
};

/// The reading texts, the headings and the dictionary's own entries of a pack.
[[nodiscard]] std::vector<SourceText> dump(const std::filesystem::path& pack, Problems& problems);

} // namespace talvora::pack
