// Reading of a teacher's recordings and marks.
#include "pack/OwnRecording.h"

#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "pack/WaveFile.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace talvora::pack {

namespace {

std::optional<std::int32_t> markIn(std::string_view text) {
  std::int32_t mark = 0;
  const auto [end, failure] = std::from_chars(text.data(), text.data() + text.size(), mark);
  // A mark of 1 opens a block in the table of marks.
  if (failure != std::errc() || end != text.data() + text.size() || mark < 2) return std::nullopt;
  return mark;
}

Marks parseMarks(std::string_view text, const std::string& file, Problems& problems) {
  Marks marks;
  for (const SourceLine& line : linesOf(text)) {
    if (line.text.empty() || line.text.starts_with("//")) continue;
    const auto mark = markIn(line.text);
    if (!mark || (!marks.empty() && *mark <= marks.back())) {
      problems.add(
          {file, line.number, 1},
          said("a mark is the end of a sentence in milliseconds, later than the one above it"));
      continue;
    }
    marks.push_back(*mark);
  }
  return marks;
}

/// The number of a file "N.wav"; empty for any other.
std::optional<int> numberOf(const std::filesystem::path& path) {
  const std::string stem = path.stem().string();
  const bool digit = stem.size() == 1 && stem.front() >= '1' && stem.front() <= '9';
  return digit ? std::optional(stem.front() - '0') : std::nullopt;
}

} // namespace

std::map<int, OwnRecording> readOwnRecordings(const std::filesystem::path& folder,
                                              const std::map<int, std::size_t>& sentences,
                                              Problems& problems) {
  std::map<int, OwnRecording> recordings;
  std::error_code none;
  for (const auto& entry : std::filesystem::directory_iterator(folder, none)) {
    const auto& path = entry.path();
    if (path.extension() != ".wav") continue;
    const auto number = numberOf(path);
    const auto script = number ? sentences.find(*number) : sentences.end();
    if (script == sentences.end()) {
      problems.add({path.string()},
                   said("a recording is 1.wav to 9.wav, and its script must be there"));
      continue;
    }
    OwnRecording own{readSource(path, problems), {}};
    const auto marksPath = std::filesystem::path(path).replace_extension(".txt");
    own.marks = parseMarks(readSource(marksPath, problems), marksPath.string(), problems);
    const auto lengthMs = waveLengthMs(own.wave);
    if (!lengthMs) {
      problems.add({path.string()}, said("is no wave file that can be played"));
    } else if (own.marks.size() != script->second) {
      problems.add({marksPath.string()}, said("has {} marks, and the script has {} sentences",
                                              own.marks.size(), script->second));
    } else if (!own.marks.empty() && own.marks.back() > *lengthMs) {
      problems.add({marksPath.string()},
                   said("the last mark lies behind the recording's end at {} ms", *lengthMs));
    }
    recordings.emplace(*number, std::move(own));
  }
  return recordings;
}

} // namespace talvora::pack
