// The texts that a learner has added: one file in the learner's folder, which lies over the
// course's pair of files as if the course went on with them.
#pragma once

#include "platform/Files.h"

#include <memory>
#include <string>
#include <string_view>

namespace talvora {

/// The file in the learner's folder: the number of its texts; the positions of the texts, then
/// those of their translations, then the stream's length, 4 bytes each and counted from the
/// stream's start; then the stream.
inline constexpr std::string_view OwnTextsFile = "owntexts.av";
/// A learner has so many texts at most, the heading of their group among them.
inline constexpr int MostOwnTexts = 300;

/// A position table with its stream, and how many texts they hold.
struct TextFiles {
  std::shared_ptr<const MappedFile> positions;
  std::shared_ptr<const MappedFile> stream;
  int texts = 0;
};

/// The course's files with the learner's texts behind the course's own. A file of own texts that is
/// missing, or is none, leaves the course as it is.
[[nodiscard]] TextFiles withOwnTexts(TextFiles course, const std::string& learner,
                                     FileSystem& files);

} // namespace talvora
