// The journal of the learner's list: what was done to it since data.c was written, each deed on the
// disk before the program goes on.
#pragma once

#include "learner/WordRows.h"
#include "platform/FileSystem.h"

#include <optional>
#include <string>
#include <system_error>
#include <vector>

namespace talvora {

/// Something that was done to the list.
struct WordDeed {
  enum class Kind { Added, Removed };

  Kind kind = Kind::Added;
  WordRow row;

  friend bool operator==(const WordDeed&, const WordDeed&) = default;
};

class WordJournal {
 public:
  WordJournal(std::string path, FileSystem& files) : files_(files), path_(std::move(path)) {}

  /// All deeds in their order; none when there is no journal, and nothing when there is one that
  /// cannot be read just now. A line that is not whole, as a kill leaves the last one, counts for
  /// nothing; so does a deletion of several words that is not whole.
  [[nodiscard]] std::optional<std::vector<WordDeed>> read() const;
  /// Returns when the deeds are on the disk. After a failure the journal is what it was.
  [[nodiscard]] std::error_code append(const std::vector<WordDeed>& deeds);
  /// Empties the journal; one that is not there is empty.
  [[nodiscard]] std::error_code clear();

 private:
  FileSystem& files_;
  std::string path_;
};

} // namespace talvora
