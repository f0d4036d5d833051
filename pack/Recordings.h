// The recordings of the listening scripts and the marks at which their sentences end.
#pragma once

#include "pack/Compiler.h"
#include "pack/PackFile.h"
#include "pack/ReadingSource.h"
#include "pack/Voice.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// Recording n, from 1, is of reading text 399 + n.
inline constexpr int RecordingCount = 9;
inline constexpr int FirstRecordedText = 400;

/// What is heard of a text: its sentences without the title, in the text font's bytes.
struct Script {
  int number = 0; ///< of the recording
  std::vector<std::string> sentences;
};

/// The scripts that are written.
[[nodiscard]] std::vector<Script> scriptsOf(const ReadingSource& readings);

/// Milliseconds from the recording's start, rising: mark k ends sentence k with the pause behind
/// it.
using Marks = std::vector<std::int32_t>;

struct Recording {
  Samples samples;
  Marks marks;
};

/// Speaks a script: sentence by sentence, with a pause of 300 ms between.
[[nodiscard]] Recording record(const Script& script, const Voice& voice);

/// The wave files of the scripts, each with a stamp that tells what it was made from, and DataS. A
/// recording that stands in `earlierPack` with the right stamp is kept and is not among the files;
/// without such a folder none is made, and all blocks of DataS are empty.
[[nodiscard]] std::vector<PackFile>
compileRecordings(const ReadingSource& readings,
                  const std::optional<std::filesystem::path>& earlierPack,
                  const Progress& progress);

/// Removes recordings whose block in DataS is empty from a pack: their scripts are gone.
void removeUnmarkedRecordings(const std::filesystem::path& pack, std::string_view dataS);

} // namespace talvora::pack
