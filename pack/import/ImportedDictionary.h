// A dictionary that somebody brings, whatever its form was.
#pragma once

#include "pack/Problems.h"

#include <cstddef>
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
/// More entries and more text are refused.
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

} // namespace talvora::pack
