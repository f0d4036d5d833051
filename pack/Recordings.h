// The recordings of the listening scripts and the marks at which their sentences end.
#pragma once

#include "formats/Limits.h"
#include "pack/OwnRecording.h"
#include "pack/PackFile.h"
#include "pack/Progress.h"
#include "pack/ReadingSource.h"
#include "pack/Voice.h"

#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// Recording n, from 1, is of reading text 399 + n.
inline constexpr int RecordingCount = limit::Recordings;
inline constexpr int FirstRecordedText = limit::FirstRecordedText;

/// A sentence in the text font's bytes, and who says it.
struct ScriptLine {
  std::string sentence;
  Speaker speaker = Speaker::Rms;
};

/// What is heard of a text: its sentences without the title. Where the text names no speaker the
/// two take turns, sentence by sentence.
struct Script {
  int number = 0; ///< of the recording
  std::vector<ScriptLine> lines;
};

/// How many syllables a second a recording has, from 1: slow for a beginner, and at the end as
/// people speak.
[[nodiscard]] double syllablesASecond(int number);

/// The scripts that are written.
[[nodiscard]] std::vector<Script> scriptsOf(const ReadingSource& readings);

struct Recording {
  Samples samples;
  Marks marks;
};

/// Joins the sentences of a script, with a pause of 300 ms between.
[[nodiscard]] Recording joined(const std::vector<Samples>& sentences);

/// The wave files of the scripts, spoken with the corrections of the pronunciations, each with a
/// stamp that tells what it was made from, and DataS. A
/// recording of a teacher's own takes the place of the synthesised one. A recording that stands in
/// `earlierPack` with the right stamp is kept and is not among the files; without such a folder
/// none is made, and all blocks of DataS are empty.
[[nodiscard]] std::vector<PackFile>
compileRecordings(const ReadingSource& readings, const std::map<int, OwnRecording>& own,
                  const Pronunciations& pronunciations,
                  const std::optional<std::filesystem::path>& earlierPack,
                  const Progress& progress);

/// Removes recordings whose block in DataS is empty from a pack: their scripts are gone.
void removeUnmarkedRecordings(const std::filesystem::path& pack, std::string_view dataS);

} // namespace talvora::pack
