// The files of a dictionary that somebody brings, read by their names.
#pragma once

#include "pack/Problems.h"
#include "pack/import/ImportedDictionary.h"

#include <cstddef>
#include <filesystem>
#include <string>

namespace talvora::pack {

/// Larger files are refused.
inline constexpr std::size_t LargestDictionaryFile = std::size_t{512} << 20;

/// The whole of a file, unpacked if it is packed; empty with a problem when it cannot be read.
[[nodiscard]] std::string readPacked(const std::filesystem::path& path, Problems& problems);

/// Reads a dictionary by the name of its file: ".ifo" of StarDict, ".index" of dictd, ".tsv",
/// ".txt" or ".tab" with a word, a tab and its entry a line. What is wrong is reported with the
/// file and the line or the offset; then the dictionary is not to be used.
[[nodiscard]] ImportedDictionary readImported(const std::filesystem::path& path,
                                              Problems& problems);

} // namespace talvora::pack
