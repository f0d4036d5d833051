// A file system that passes everything on to the machine's and does what a test wants at a chosen
// call: fails it, fails all from then on, or kills the program.
#pragma once

#include "platform/FileSystem.h"

#include <functional>
#include <string>
#include <system_error>

namespace talvora::test {

class FaultyFiles final : public FileSystem {
 public:
  /// Which calls count, by their name, as "write" or "rename", and the path; all that change
  /// something when it is not set.
  std::function<bool(const std::string& call, const std::string& path)> counts;
  /// The calls with these numbers, from 1, fail with `error`; 0 for none.
  int failFrom = 0;
  int failTo = 0;
  std::errc error = std::errc::no_space_on_device;
  /// Is called ahead of each call that counts, with its number.
  std::function<void(int number)> before;
  /// Calls that counted so far.
  int calls = 0;

  /// Every call that changes something fails from now on.
  void failAlways(std::errc with = std::errc::no_space_on_device) {
    error = with;
    failFrom = 1;
    failTo = calls + (1 << 30);
  }
  void failNever() { failFrom = failTo = 0; }

  std::unique_ptr<OpenFile> open(const std::string& path, OpenFor purpose,
                                 std::error_code& problem) override;
  FileStatus status(const std::string& path, std::error_code& problem) override {
    return under_.status(path, problem);
  }
  std::string followLinks(const std::string& path, std::error_code& problem) override {
    return under_.followLinks(path, problem);
  }
  std::error_code rename(const std::string& from, const std::string& to) override {
    const auto fault = faultAt("rename", to);
    return fault ? fault : under_.rename(from, to);
  }
  std::error_code remove(const std::string& path) override {
    const auto fault = faultAt("remove", path);
    return fault ? fault : under_.remove(path);
  }
  std::error_code syncFolder(const std::string& folder) override {
    const auto fault = faultAt("syncFolder", folder);
    return fault ? fault : under_.syncFolder(folder);
  }
  std::error_code makeFolder(const std::string& folder) override {
    const auto fault = faultAt("makeFolder", folder);
    return fault ? fault : under_.makeFolder(folder);
  }
  std::vector<std::string> list(const std::string& folder, std::error_code& problem) override {
    return under_.list(folder, problem);
  }
  bool mayCreateIn(const std::string& folder) override {
    return !readOnly && under_.mayCreateIn(folder);
  }

  bool readOnly = false;

  /// Counts a call; the fault that it meets, or none.
  std::error_code faultAt(const std::string& call, const std::string& path);

 private:
  FileSystem& under_ = systemFiles();
};

} // namespace talvora::test
