// The learner's settings, data.Kcu: 4-byte records, numbered from 1.
#pragma once

#include "platform/FileSystem.h"

#include <cstdint>
#include <string>
#include <vector>

namespace talvora {

class SettingsFile {
 public:
  explicit SettingsFile(FileSystem& files) : files_(files) {}

  /// What a file that is missing is created with: nothing, or `firstSettings`.
  enum class IfMissing { BeginEmpty, BeginFresh };

  /// Reads the file. One that cannot be read counts as one with `firstSettings`, and is left alone
  /// from then on.
  void open(std::string path, IfMissing ifMissing);
  void close();

  /// 0 for what the file does not hold, and when it is closed.
  [[nodiscard]] std::int32_t read(int record) const;
  /// Holds at once for this run, and is written through. What cannot be written is not told of:
  /// nobody wants to be stopped for the place in a list.
  void write(int record, std::int32_t value);

 private:
  void store(std::size_t fromRecord);

  FileSystem& files_;
  std::string path_; ///< empty when it is closed
  std::vector<std::int32_t> records_;
  bool mayWrite_ = true;
};

} // namespace talvora
