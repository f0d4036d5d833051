// The files that a pack brings for a new learner.
#include "pack/OtherStores.h"

#include "formats/Integers.h"
#include "formats/LearnerFiles.h"
#include "formats/Settings.h"
#include "pack/StreamText.h"

#include <cstdint>
#include <string>

namespace talvora::pack {

std::vector<PackFile> firstSettings() {
  std::string settings;
  for (const std::int32_t record : talvora::firstSettings())
    appendInteger(settings, static_cast<std::size_t>(record));
  return {{std::string(learnerfile::Settings), std::move(settings), Owner::Learner},
          {std::string(learnerfile::Words), "", Owner::Learner}};
}

} // namespace talvora::pack
