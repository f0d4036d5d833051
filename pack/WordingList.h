// The list of what is written in one of several ways: "tỉ", and never "tỷ".
#pragma once

#include "pack/Problems.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// The list in a content tree.
inline constexpr std::string_view WordingFile = "spelling.txt";

/// A word or phrase that is not written, and the one that is; as UTF-8 and as they are listed.
struct Twin {
  std::string unused;
  std::string used;
};

/// What the north of the country says, and what the south says for it.
struct RegionalTwin {
  std::vector<std::string> north;
  std::vector<std::string> south;
};

/// The parts of the list; each holds elsewhere.
struct WordingList {
  std::vector<Twin> everywhere;
  std::vector<Twin> translations;
  std::vector<Twin> english; ///< lessons teach both, and an entry may use its own spelling
  std::vector<Twin> texts;   ///< names with a capital, like "Gray", are left alone
  std::vector<RegionalTwin> regions;
};

/// Reads the list; nothing when it is not there. A line of no part, and one without " = ", is
/// reported.
[[nodiscard]] WordingList readWordingList(const std::filesystem::path& path, Problems& problems);

} // namespace talvora::pack
