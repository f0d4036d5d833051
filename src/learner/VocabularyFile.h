// The learner's word list on disk, data.c: records of 24 bytes, a word of 20 bytes padded with
// blanks, then the place of its sentence.
#pragma once

#include "platform/FileSystem.h"

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace talvora {

/// One word of the learner's list.
struct VocabularyWord {
  static constexpr std::size_t LongestWord = 20;
  static constexpr std::size_t RecordSize = LongestWord + 4;

  std::string Tu; ///< padded with blanks to 20 characters
  /// Record number of the sentence's first byte: positive in data.av, its negative in datasp.av;
  /// 0 when the sentence is in the pack no more.
  std::int32_t ViTriCauTu = 0;

  /// The word without its padding.
  [[nodiscard]] std::string word() const;

  friend bool operator==(const VocabularyWord&, const VocabularyWord&) = default;
};

/// A word padded with blanks to its field; what is longer is cut.
[[nodiscard]] std::string paddedWord(std::string word);

/// What data.c holds.
struct VocabularyContent {
  std::vector<VocabularyWord> words;
  std::vector<unsigned char> oddBytes; ///< at its end, too few for a record
};

[[nodiscard]] VocabularyContent vocabularyFrom(std::span<const unsigned char> bytes);

class VocabularyFile {
 public:
  explicit VocabularyFile(std::string path, FileSystem& files = systemFiles())
      : files_(files), path_(std::move(path)) {}

  /// All whole records. A length that is no multiple of 24 is read as far as it goes; the odd bytes
  /// stay at the file's end. Nothing when the file is missing or cannot be read; `error` tells
  /// which.
  [[nodiscard]] std::optional<std::vector<VocabularyWord>> read(std::error_code& error);
  /// Replaces all records at once; odd bytes that were read are kept behind them. Returns what went
  /// wrong, or nothing; then the old list stands.
  [[nodiscard]] std::optional<std::string> write(const std::vector<VocabularyWord>& words);

  /// Odd bytes are not written again from now on.
  void dropOddBytes() { keepsOddBytes_ = false; }

 private:
  FileSystem& files_;
  std::string path_;
  std::vector<unsigned char> oddBytes_;
  bool keepsOddBytes_ = true;
};

} // namespace talvora
