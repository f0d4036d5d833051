// A folder of its own for a test, a scenario or a benchmark; gone with its owner.
#pragma once

#include <filesystem>
#include <stdexcept>
#include <string>
#include <system_error>

#include <stdlib.h>

namespace talvora::test {

class TemporaryFolder {
 public:
  /// Throws std::runtime_error when there is no room for one.
  TemporaryFolder() {
    // The name ends with six letters that mkdtemp puts others in place of, until no folder has it.
    const std::string name = "talvora-" + std::string(6, 'X');
    std::string pattern = (std::filesystem::temp_directory_path() / name).string();
    if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
    path_ = pattern;
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  [[nodiscard]] const std::filesystem::path& path() const noexcept { return path_; }

 private:
  std::filesystem::path path_;
};

} // namespace talvora::test
