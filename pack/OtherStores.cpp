// The files that a pack brings for a new learner.
#include "pack/OtherStores.h"

#include "pack/StreamText.h"
#include "stores/SettingsFile.h"

#include <cstdint>
#include <string>

namespace talvora::pack {

std::vector<PackFile> firstSettings() {
  std::string settings;
  for (const std::int32_t record : talvora::firstSettings())
    appendInteger(settings, static_cast<std::uint32_t>(record));
  return {{"data.Kcu", std::move(settings), Owner::Learner}, {"data.c", "", Owner::Learner}};
}

} // namespace talvora::pack
