// A folder of its own for a test, with the store files that the test writes; gone with the test.
#pragma once

#include "tests/support/TemporaryFolder.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::test {

class TestFolder {
 public:
  [[nodiscard]] std::string path() const { return folder_.path().string(); }
  [[nodiscard]] std::string pathOf(std::string_view name) const;
  /// Writes a file of raw bytes.
  void write(std::string_view name, std::string_view bytes) const;
  /// Writes 4-byte records.
  void writeIntegers(std::string_view name, const std::vector<std::int32_t>& values) const;
  /// Writes a stream: each plain character as the byte that decodes to it.
  void writeStream(std::string_view name, std::string_view plain) const;
  [[nodiscard]] std::string read(std::string_view name) const;
  void remove(std::string_view name) const;
  [[nodiscard]] bool has(std::string_view name) const;
  /// What lies in the folder, sorted.
  [[nodiscard]] std::vector<std::string> names() const;

  /// Empty files for every store that stays open for the run, so that the program can start.
  void writeEmptyStores() const;

 private:
  TemporaryFolder folder_;
};

/// The bytes of a stream that decode to plain characters, one byte a character.
[[nodiscard]] std::string encoded(std::string_view plain);

} // namespace talvora::test
