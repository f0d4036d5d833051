// What comes up over a page beside the learner's doing, and so has to be told to who does not see
// it.
#pragma once

#include "surface/Form.h"
#include "surface/Surface.h"

#include <cstdint>
#include <map>
#include <vector>

namespace talvora {

class CameUp {
 public:
  explicit CameUp(const Form& form) : form_(form) {}

  /// The entry, explanation and hint that have come up, or have another text, since this was last
  /// asked.
  [[nodiscard]] std::vector<const Surface*> sinceLast();

 private:
  const Form& form_;
  std::map<const Surface*, std::uint64_t> told_; ///< with their revisions
};

} // namespace talvora
