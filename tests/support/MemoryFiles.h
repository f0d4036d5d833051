// A file system in memory, for tests that read and write the same few files very often.
#pragma once

#include "platform/FileSystem.h"

#include <map>
#include <memory>
#include <string>
#include <system_error>
#include <vector>

namespace talvora::test {

class MemoryFiles final : public FileSystem {
 public:
  using Bytes = std::vector<unsigned char>;

  /// Puts a file in place of what was there.
  void put(const std::string& path, std::span<const unsigned char> bytes);
  void clear() { files_.clear(); }

  std::unique_ptr<OpenFile> open(const std::string& path, OpenFor purpose,
                                 std::error_code& error) override;
  FileStatus status(const std::string& path, std::error_code& error) override;
  std::string followLinks(const std::string& path, std::error_code& error) override;
  std::error_code rename(const std::string& from, const std::string& to) override;
  std::error_code remove(const std::string& path) override;
  /// A folder is there as soon as a file lies below it.
  std::error_code makeFolder(const std::string& folder) override;
  std::error_code syncFolder(const std::string&) override { return {}; }
  std::vector<std::string> list(const std::string& folder, std::error_code& error) override;
  bool mayCreateIn(const std::string&) override { return true; }

 private:
  // Shared with those who have the file open.
  std::map<std::string, std::shared_ptr<Bytes>> files_;
};

} // namespace talvora::test
