// A teacher's own recording of a script, which takes the place of the synthesised one.
#pragma once

#include "pack/Problems.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace talvora::pack {

/// Milliseconds from the recording's start, rising: mark k ends sentence k with the pause behind
/// it.
using Marks = std::vector<std::int32_t>;

struct OwnRecording {
  std::string wave; ///< the bytes of the file
  Marks marks;
};

/// Reads "N.wav" and its marks "N.txt" of a folder, N from 1 to 9; none when there is no such
/// folder. Each line of the marks is the end of a sentence in milliseconds. `sentences` tells how
/// many sentences the script of a number has. A file that cannot be used is reported.
[[nodiscard]] std::map<int, OwnRecording>
readOwnRecordings(const std::filesystem::path& folder, const std::map<int, std::size_t>& sentences,
                  Problems& problems);

} // namespace talvora::pack
