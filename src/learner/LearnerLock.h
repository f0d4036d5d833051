// The lock on a learner's folder: one program at a time writes there.
#pragma once

#include "platform/FileSystem.h"

#include <memory>
#include <string>

namespace talvora {

class LearnerLock {
 public:
  enum class State {
    Held,      ///< by this object
    Taken,     ///< by another program
    Impossible ///< the folder cannot be locked, nor perhaps written
  };

  /// Locks a folder, which is made when it is missing. The lock goes with this object, and with the
  /// program however that ends.
  LearnerLock(FileSystem& files, const std::string& learner);

  [[nodiscard]] State state() const noexcept { return state_; }

 private:
  std::unique_ptr<OpenFile> file_;
  State state_ = State::Impossible;
};

} // namespace talvora
