// The files that a pack brings for a new learner.
#include "pack/OtherStores.h"

#include "pack/StreamText.h"

#include <string>

namespace talvora::pack {

std::vector<PackFile> firstSettings() {
  constexpr int settingRecords = 19;
  constexpr int soundOn = 2;
  constexpr int speedLevel = 4;
  std::string settings;
  for (int record = 1; record <= settingRecords; ++record) {
    appendInteger(settings, record == soundOn ? 1 : record == speedLevel ? 5 : 0);
  }
  return {{"data.Kcu", std::move(settings), Owner::Learner}, {"data.c", "", Owner::Learner}};
}

} // namespace talvora::pack
