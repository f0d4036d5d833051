// Where the commands for learners find the course and what the learner owns, as the program does.
#pragma once

#include "learner/FindFolders.h"

#include <string>

namespace talvora::pack {

/// The folders that the program would use: those asked for, where an empty text is no wish, else
/// what the current directory, the environment and the place of this program lead to. Without a
/// course only the learner's folder is known.
struct LearnersPlaces {
  std::string pack;    ///< empty when there is none
  std::string learner; ///< it need not exist yet
};

[[nodiscard]] LearnersPlaces placesFor(const std::string& pack, const std::string& learner);

} // namespace talvora::pack
