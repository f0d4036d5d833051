// A dictionary that somebody brings, whatever its form was.
#pragma once

#include "pack/Problems.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// What is said of a word, in UTF-8, a line a line, without markup.
struct ImportedEntry {
  std::string head;
  std::string text;
};

struct ImportedDictionary {
  std::string name;
  std::vector<ImportedEntry> entries;
  std::size_t unread = 0; ///< entries of pictures, sounds and other things that are no text
};

/// The most of one entry that is read, in bytes; the rest is left.
inline constexpr std::size_t LongestImportedEntry = std::size_t{16} << 10;
/// Larger files, more entries and more text are refused.
inline constexpr std::size_t LargestDictionaryFile = std::size_t{512} << 20;
inline constexpr std::size_t MostImportedEntries = 2'000'000;

/// Adds entries to a dictionary as long as there is room for more.
class EntryCollector {
 public:
  EntryCollector(std::string file, Problems& problems)
      : file_(std::move(file)), problems_(problems) {}

  /// False when there is no room; then that has been reported.
  [[nodiscard]] bool add(std::string head, std::string text);
  /// Reports what is wrong at a byte of the file, from 0.
  void fail(std::size_t offset, const std::string& what);

  ImportedDictionary dictionary;

 private:
  std::string file_;
  Problems& problems_;
  std::size_t bytes_ = 0;
};

/// The whole of a file, unpacked if it is packed; empty with a problem when it cannot be read.
[[nodiscard]] std::string readPacked(const std::filesystem::path& path, Problems& problems);

/// Reads a dictionary by the name of its file: ".ifo" of StarDict, ".index" of dictd, ".tsv",
/// ".txt" or ".tab" with a word, a tab and its entry a line. What is wrong is reported with the
/// file and the line or the offset; then the dictionary is not to be used.
[[nodiscard]] ImportedDictionary readImported(const std::filesystem::path& path,
                                              Problems& problems);

} // namespace talvora::pack
