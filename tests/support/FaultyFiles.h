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
  /// Calls that only look, as "read" or "status", count as well.
  bool looksCount = false;
  /// The calls with these numbers, from 1, fail with `error`; 0 for none.
  int failFrom = 0;
  int failTo = 0;
  std::errc error = std::errc::no_space_on_device;
  /// Is called ahead of each call that counts, with its number.
  std::function<void(int number)> before;
  /// Is called with the number when a call that did not fail has done its work.
  std::function<void(int number)> after;
  /// Is called in the middle of a write, when half of it has been done.
  std::function<void(int number)> within;
  /// Calls that counted so far.
  int calls = 0;

  /// Every call that counts fails from now on.
  void failAlways(std::errc with = std::errc::no_space_on_device) {
    error = with;
    failFrom = 1;
    failTo = calls + (1 << 30);
  }
  void failNever() { failFrom = failTo = 0; }

  std::unique_ptr<OpenFile> open(const std::string& path, OpenFor purpose,
                                 std::error_code& problem) override;
  FileStatus status(const std::string& path, std::error_code& problem) override;
  std::string followLinks(const std::string& path, std::error_code& problem) override;
  std::error_code rename(const std::string& from, const std::string& to) override;
  std::error_code remove(const std::string& path) override;
  std::error_code syncFolder(const std::string& folder) override;
  std::error_code makeFolder(const std::string& folder) override;
  std::vector<std::string> list(const std::string& folder, std::error_code& problem) override;
  bool mayCreateIn(const std::string& folder) override {
    return !readOnly && under_.mayCreateIn(folder);
  }

  bool readOnly = false;

 private:
  friend class FaultyFile;

  /// Does a call that changes something, and what the test wants around it.
  std::error_code change(const std::string& call, const std::string& path,
                         const std::function<std::error_code()>& work);
  /// The same of a call that only looks; `otherwise` is what it gives when it fails.
  template <class Work, class Result>
  Result look(const std::string& call, const std::string& path, std::error_code& problem,
              const Work& work, Result otherwise);
  /// Counts a call; the fault that it meets, or none.
  std::error_code faultAt(const std::string& call, const std::string& path, bool onlyLooks);
  void done();

  FileSystem& under_ = systemFiles();
  bool counted_ = false; ///< the call under way
};

} // namespace talvora::test
