#include "learner/LearnerLock.h"

#include "formats/LearnerFiles.h"

namespace talvora {

LearnerLock::LearnerLock(FileSystem& files, const std::string& learner) {
  if (files.makeFolder(learner)) return;
  std::error_code error;
  file_ = files.open(learner + "/" + std::string(learnerfile::Lock), OpenFor::Writing, error);
  if (file_ == nullptr) return;
  error = file_->lock();
  if (error == std::errc::resource_unavailable_try_again) {
    state_ = State::Taken;
  } else if (!error) {
    state_ = State::Held;
  }
}

} // namespace talvora
