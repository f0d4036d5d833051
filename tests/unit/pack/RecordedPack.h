// A folder of a pack in which scripts become recordings.
#pragma once

#include "formats/Integers.h"
#include "pack/Recordings.h"
#include "pack/SourceFile.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// A wave file's bytes ahead of its samples, and of a millisecond of them.
constexpr std::size_t waveHeader = 44;
constexpr std::size_t waveBytesPerMs = 32;

/// A text of one paragraph.
inline ReadingText textOf(const std::vector<std::string>& sentences) {
  ReadingText text{"Title", {{}}};
  for (const std::string& sentence : sentences)
    text.paragraphs[0].push_back({sentence, "..."});
  return text;
}

/// The script of the first recording.
inline ReadingSource oneScript() {
  ReadingSource readings;
  readings.texts[400] = textOf({"Good morning.", "It rains."});
  return readings;
}

/// Those of the first and the fourth, and a text that nobody records.
inline ReadingSource twoScripts() {
  ReadingSource readings;
  readings.texts[5] = textOf({"Nobody records this."});
  readings.texts[400] = textOf({"Good morning.", "She works here."});
  readings.texts[403] = textOf({"It rains."});
  return readings;
}

class RecordedPack {
 public:
  /// Builds and gives the names of the files that were written.
  std::vector<std::string> build(const ReadingSource& readings) {
    std::vector<std::string> names;
    steps_.clear();
    std::filesystem::create_directories(path() / "sound");
    for (const PackFile& file :
         compileRecordings(readings, own, pronunciations, path(),
                           [this](std::string_view step) { steps_.emplace_back(step); })) {
      EXPECT_FALSE(store(file, path()));
      names.push_back(file.name);
    }
    std::sort(names.begin(), names.end());
    return names;
  }

  [[nodiscard]] std::filesystem::path path() const { return folder_.path(); }
  [[nodiscard]] std::string bytes(const std::string& name) const {
    return readWhole(path() / name).value_or("(missing)");
  }
  /// The table of marks as lists of marks, one for each recording.
  [[nodiscard]] std::vector<Marks> blocks() const {
    const std::string table = bytes("DataS");
    std::vector<Marks> blocks;
    for (std::size_t record = 1; record <= table.size() / 4; ++record) {
      const auto value = integerAt(table, record);
      if (value == 1) {
        blocks.emplace_back();
      } else {
        blocks.back().push_back(value);
      }
    }
    return blocks;
  }
  /// What the last build told as it went on.
  [[nodiscard]] const std::vector<std::string>& steps() const { return steps_; }

  std::map<int, OwnRecording> own;
  Pronunciations pronunciations;

 private:
  test::TestFolder folder_;
  std::vector<std::string> steps_;
};

} // namespace talvora::pack
