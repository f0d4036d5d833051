// The words of a learner whose folder is the pack's own, over a build of that pack.
#pragma once

#include "learner/LearnerLock.h"
#include "learner/LearnerWords.h"

#include <optional>
#include <string>

namespace talvora::pack {

class KeptWords {
 public:
  /// Ties the words to their sentences in the pack as it was. A folder without words, or with a
  /// program that runs in it and does all this itself, is left alone.
  explicit KeptWords(const std::string& folder);

  /// Finds the sentences anew in the pack as it is now; nothing when there was nothing to do.
  std::optional<Carried> carry();

 private:
  std::string folder_;
  std::optional<LearnerLock> lock_;
  std::optional<LearnerWords> words_;
};

} // namespace talvora::pack
