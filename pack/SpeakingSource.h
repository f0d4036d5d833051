// The sources of the speaking texts: written as reading texts are, in a list of their own.
#pragma once

#include "formats/Limits.h"
#include "pack/ReadingSource.h"
#include "pack/ReadingStore.h"

#include <filesystem>
#include <string_view>

namespace talvora::pack {

/// Number of slots in the list of speaking texts.
inline constexpr int SpeakingSlots = limit::SpeakingTexts;

/// Reads a folder of texts "NNNN-slug.txt" with its "headings.txt"; none when there is no folder.
[[nodiscard]] inline ReadingSource readSpeaking(const std::filesystem::path& folder,
                                                Problems& problems) {
  return readTexts(folder, SpeakingSlots, problems);
}

/// Every slot filled: texts, headings, and slots still open.
[[nodiscard]] inline TextStore compileSpeakingTexts(const ReadingSource& source) {
  return compileReadings(source, SpeakingSlots);
}

/// The texts and headings of a store; open slots are left out.
[[nodiscard]] inline ReadingSource decodeSpeaking(std::string_view positions,
                                                  std::string_view stream, Problems& problems) {
  return decodeReadings(positions, stream, problems, SpeakingSlots);
}

} // namespace talvora::pack
