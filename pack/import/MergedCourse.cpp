#include "pack/import/MergedCourse.h"

#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "pack/words/StableId.h"
#include "stores/Stores.h"

namespace talvora::pack {

std::string courseMark(const std::filesystem::path& pack) {
  std::string marks;
  for (const char* const name : {"datatu.txt", "data.mtd", "data.avt"}) {
    const auto bytes = readWhole(pack / name);
    if (!bytes) return {};
    marks += stableId(*bytes);
  }
  return stableId(marks);
}

bool isMergedWithAnother(const std::filesystem::path& learner, const std::filesystem::path& pack) {
  const auto merged = learner / MergedDictionaryFolder;
  std::error_code error;
  if (!std::filesystem::is_directory(merged, error)) return false;
  const auto mark = readWhole(merged / MergedCourseFile);
  return !mark || *mark != courseMark(pack);
}

std::string mergedWithAnother() {
  return said("The dictionaries that were added were merged with another course than this one, "
              "whose new entries are therefore not seen; add them again: {}",
              "talvora-pack import ...");
}

} // namespace talvora::pack
