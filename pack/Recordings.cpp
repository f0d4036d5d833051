// Synthesis of what has changed, and the table of marks.
#include "pack/Recordings.h"

#include "pack/SourceFile.h"
#include "pack/StreamText.h"

#include <algorithm>
#include <array>
#include <future>
#include <iterator>
#include <map>
#include <mutex>
#include <sstream>
#include <utility>

namespace talvora::pack {

namespace {

constexpr int samplesPerMs = Voice::SamplesPerSecond / 1000;
constexpr int pauseMs = 300;
/// Slower than by nature, for learners.
constexpr float stretch = 1.15F;
/// Opens a block of DataS; no mark is so small.
constexpr std::size_t blockStart = 1;
constexpr std::array speakers = {Speaker::Rms, Speaker::Awb};

std::string waveName(int number) {
  return "sound/" + std::to_string(number) + ".wav";
}

std::string stampName(int number) {
  return "sound/" + std::to_string(number) + ".stamp";
}

/// Recordings take turns. Each speaker has a thread of its own, since a voice serves one at a time.
std::size_t speakerOf(const Script& script) {
  return static_cast<std::size_t>(script.number - 1) % speakers.size();
}

/// A number that changes with any byte of a text, the same on every machine (FNV-1a).
std::uint64_t fingerprint(std::string_view text) {
  std::uint64_t hash = 0xCBF29CE484222325U;
  for (const char character : text)
    hash = (hash ^ static_cast<unsigned char>(character)) * 0x100000001B3U;
  return hash;
}

/// Tells recordings apart by everything that they are made from.
std::string keyOf(const Script& script) {
  std::ostringstream all;
  all << synthesiserName() << ' ' << speakerOf(script) << ' ' << stretch << ' ' << pauseMs << ' '
      << Voice::SamplesPerSecond;
  for (const std::string& sentence : script.sentences)
    all << '\n' << sentence;
  std::ostringstream key;
  key << std::hex << fingerprint(all.str());
  return key.str();
}

/// The key on the first line, the marks on the second.
std::string stampOf(const Script& script, const Marks& marks) {
  std::string stamp = keyOf(script) + "\n";
  for (const std::int32_t mark : marks)
    stamp += std::to_string(mark) + " ";
  return stamp + "\n";
}

/// The marks of a recording that can stay as it is.
std::optional<Marks> keptMarks(const std::filesystem::path& pack, const Script& script) {
  const auto stamp = readWhole(pack / stampName(script.number));
  if (!stamp || !std::filesystem::is_regular_file(pack / waveName(script.number)))
    return std::nullopt;
  std::istringstream fields(*stamp);
  std::string key;
  fields >> key;
  Marks marks;
  for (std::int32_t mark = 0; fields >> mark;)
    marks.push_back(mark);
  const bool valid = key == keyOf(script) && marks.size() == script.sentences.size();
  return valid ? std::optional(std::move(marks)) : std::nullopt;
}

using MarksByNumber = std::map<int, Marks>;

/// A recording with the script that it speaks.
struct Spoken {
  Script script;
  Recording recording;
};

/// Speaks several scripts one after the other.
std::vector<Spoken> recordAll(const std::vector<Script>& scripts, const Voice& voice,
                              const Progress& progress) {
  std::vector<Spoken> all;
  for (const Script& script : scripts) {
    progress(waveName(script.number) + ", " + std::to_string(script.sentences.size()) +
             " sentences");
    all.push_back({script, record(script, voice)});
  }
  return all;
}

/// Speaks scripts, a thread for each speaker.
std::vector<Spoken> recordTogether(const std::vector<Script>& scripts, const Progress& progress) {
  std::mutex telling;
  const Progress tell = [&](std::string_view step) {
    const std::lock_guard lock(telling);
    progress(step);
  };
  std::array<std::vector<Script>, speakers.size()> turns;
  for (const Script& script : scripts)
    turns.at(speakerOf(script)).push_back(script);
  std::vector<std::future<std::vector<Spoken>>> work;
  for (std::size_t place = 0; place < speakers.size(); ++place) {
    if (turns.at(place).empty()) continue;
    const Voice voice(speakers.at(place), stretch);
    work.push_back(std::async(std::launch::async, [&turns, &tell, voice, place] {
      return recordAll(turns.at(place), voice, tell);
    }));
  }
  std::vector<Spoken> all;
  for (auto& each : work)
    std::ranges::move(each.get(), std::back_inserter(all));
  return all;
}

// The stamp comes behind its wave file: broken off between, a build makes the wave again.
void appendFiles(std::vector<PackFile>& files, const Spoken& spoken) {
  const int number = spoken.script.number;
  files.push_back(
      {waveName(number), waveFileOf(spoken.recording.samples, Voice::SamplesPerSecond)});
  files.push_back({stampName(number), stampOf(spoken.script, spoken.recording.marks)});
}

std::string tableOf(const MarksByNumber& marks) {
  std::string table;
  for (int number = 1; number <= RecordingCount; ++number) {
    appendInteger(table, blockStart);
    const auto found = marks.find(number);
    if (found == marks.end()) continue;
    for (const std::int32_t mark : found->second)
      appendInteger(table, static_cast<std::size_t>(mark));
  }
  return table;
}

} // namespace

std::vector<Script> scriptsOf(const ReadingSource& readings) {
  std::vector<Script> scripts;
  for (int number = 1; number <= RecordingCount; ++number) {
    const auto text = readings.texts.find(FirstRecordedText + number - 1);
    if (text == readings.texts.end()) continue;
    Script& script = scripts.emplace_back(Script{number, {}});
    for (const Paragraph& paragraph : text->second.paragraphs) {
      for (const SentencePair& pair : paragraph)
        script.sentences.push_back(pair.english);
    }
  }
  return scripts;
}

Recording record(const Script& script, const Voice& voice) {
  Recording recording;
  Samples& samples = recording.samples;
  for (std::size_t place = 0; place < script.sentences.size(); ++place) {
    const Samples sentence = voice.speak(script.sentences[place]);
    samples.insert(samples.end(), sentence.begin(), sentence.end());
    const bool last = place + 1 == script.sentences.size();
    const std::size_t end = samples.size() + (last ? 0 : pauseMs * samplesPerMs);
    // Up to a whole millisecond, so that the mark is exact.
    samples.resize((end + samplesPerMs - 1) / samplesPerMs * samplesPerMs);
    recording.marks.push_back(static_cast<std::int32_t>(samples.size() / samplesPerMs));
  }
  return recording;
}

std::vector<PackFile> compileRecordings(const ReadingSource& readings,
                                        const std::optional<std::filesystem::path>& earlierPack,
                                        const Progress& progress) {
  std::vector<PackFile> files;
  MarksByNumber marks;
  if (earlierPack) {
    std::vector<Script> changed;
    for (Script& script : scriptsOf(readings)) {
      if (auto kept = keptMarks(*earlierPack, script)) {
        marks[script.number] = std::move(*kept);
      } else {
        changed.push_back(std::move(script));
      }
    }
    for (const Spoken& spoken : recordTogether(changed, progress)) {
      appendFiles(files, spoken);
      marks[spoken.script.number] = spoken.recording.marks;
    }
  }
  files.push_back({"DataS", tableOf(marks)});
  return files;
}

void removeUnmarkedRecordings(const std::filesystem::path& pack, std::string_view dataS) {
  std::array<bool, RecordingCount + 1> marked{};
  std::size_t block = 0;
  for (std::size_t record = 1; record <= dataS.size() / 4; ++record) {
    if (static_cast<std::size_t>(integerAt(dataS, record)) == blockStart) {
      ++block;
    } else {
      marked.at(block) = true;
    }
  }
  for (int number = 1; number <= RecordingCount; ++number) {
    if (marked.at(static_cast<std::size_t>(number))) continue;
    std::filesystem::remove(pack / waveName(number));
    std::filesystem::remove(pack / stampName(number));
  }
}

} // namespace talvora::pack
