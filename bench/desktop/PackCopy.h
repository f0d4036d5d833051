// A pack that a run may write to: links to the files of another one, and the learner's files new.
#pragma once

#include "tests/support/TemporaryFolder.h"

#include <filesystem>
#include <string>

namespace talvora::bench {

class PackCopy {
 public:
  /// Sound is on, at the middle speed: a click is measured with the speech that belongs to it.
  explicit PackCopy(const std::filesystem::path& pack);

  [[nodiscard]] std::string path() const { return folder_.path().string(); }

 private:
  test::TemporaryFolder folder_;
};

} // namespace talvora::bench
