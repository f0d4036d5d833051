// Synthesis of what has changed, and the table of marks.
#include "pack/Recordings.h"

#include "formats/Integers.h"
#include "formats/PackFiles.h"
#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "pack/SpeechLevel.h"
#include "pack/StreamText.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <sstream>
#include <utility>

namespace talvora::pack {

namespace {

constexpr int samplesPerMs = Voice::SamplesPerSecond / 1000;
constexpr int pauseMs = 300;
/// Opens a block of DataS; no mark is so small.
constexpr std::size_t blockStart = 1;
constexpr std::array speakers = {Speaker::Rms, Speaker::Slt};
/// Beginners need time between sounds, so that the first units are slow.
constexpr std::array<double, RecordingCount> rates = {3.0, 3.2, 3.3, 3.4, 3.5, 3.8, 4.2, 4.4, 4.8};
/// So many sentences of a script tell how fast a voice speaks it by nature.
constexpr std::size_t samplesOfRate = 10;
constexpr float slowest = 2.0F;
constexpr float fastest = 0.6F;

std::string waveName(int number) {
  return "sound/" + std::to_string(number) + ".wav";
}

std::string stampName(int number) {
  return "sound/" + std::to_string(number) + ".stamp";
}

/// A number that changes with any byte of a text, the same on every machine (FNV-1a).
std::uint64_t fingerprint(std::string_view text) {
  std::uint64_t hash = 0xCBF29CE484222325U;
  for (const char character : text)
    hash = (hash ^ static_cast<unsigned char>(character)) * 0x100000001B3U;
  return hash;
}

std::string hexadecimal(std::uint64_t number) {
  std::ostringstream text;
  text << std::hex << number;
  return text.str();
}

/// Tells recordings apart by everything that they are made from.
std::string keyOf(const Script& script, const Pronunciations& pronunciations) {
  std::ostringstream all;
  all << synthesiserName() << ' ' << syllablesASecond(script.number) << ' ' << pauseMs << ' '
      << RecordedLevel << ' ' << Voice::SamplesPerSecond;
  for (const ScriptLine& line : script.lines) {
    all << '\n' << static_cast<int>(line.speaker) << line.sentence;
    for (const LexiconEntry& entry : pronunciations.lexiconFor(plainAscii(line.sentence)))
      all << ' ' << entry.word << '=' << entry.phones;
  }
  return hexadecimal(fingerprint(all.str()));
}

std::string keyOf(const OwnRecording& own) {
  return "own-" + hexadecimal(fingerprint(own.wave));
}

/// The key on the first line, the marks on the second.
std::string stampOf(const std::string& key, const Marks& marks) {
  std::string stamp = key + "\n";
  for (const std::int32_t mark : marks)
    stamp += std::to_string(mark) + " ";
  return stamp + "\n";
}

/// The marks of a recording that can stay as it is.
std::optional<Marks> keptMarks(const std::filesystem::path& pack, int number,
                               const std::string& key, std::size_t sentences) {
  const auto stamp = readWhole(pack / stampName(number));
  if (!stamp || !std::filesystem::is_regular_file(pack / waveName(number))) return std::nullopt;
  std::istringstream fields(*stamp);
  std::string keptKey;
  fields >> keptKey;
  Marks marks;
  for (std::int32_t mark = 0; fields >> mark;)
    marks.push_back(mark);
  const bool valid = keptKey == key && marks.size() == sentences;
  return valid ? std::optional(std::move(marks)) : std::nullopt;
}

using MarksByNumber = std::map<int, Marks>;

std::vector<std::size_t> placesOf(const Script& script, Speaker speaker) {
  std::vector<std::size_t> places;
  for (std::size_t place = 0; place < script.lines.size(); ++place) {
    if (script.lines[place].speaker == speaker) places.push_back(place);
  }
  return places;
}

/// A voice with the corrections of what it says.
struct Reader {
  Voice voice;
  const Pronunciations& pronunciations;

  [[nodiscard]] SpokenSentence speak(std::string_view sentence, float stretch) const {
    return voice.speak(pronunciations.prepared(plainAscii(sentence)), stretch);
  }
};

/// How many times its natural length a voice needs for a script, so that it has the wanted rate.
float stretchFor(const Script& script, const std::vector<std::size_t>& places,
                 const Reader& reader) {
  double syllables = 0;
  double seconds = 0;
  for (std::size_t at = 0; at < std::min(places.size(), samplesOfRate); ++at) {
    const SpokenSentence natural = reader.speak(script.lines[places[at]].sentence, 1.0F);
    syllables += natural.syllables;
    seconds += static_cast<double>(natural.samples.size()) / Voice::SamplesPerSecond;
  }
  if (syllables <= 0 || seconds <= 0) return 1.0F;
  const double wanted = syllables / syllablesASecond(script.number);
  return std::clamp(static_cast<float>(wanted / seconds), fastest, slowest);
}

/// Speaks what one speaker has to say in a script, to the places of a list of its sentences.
void speakLines(const Script& script, const std::vector<std::size_t>& places, const Reader& reader,
                std::vector<Samples>& sentences) {
  const float stretch = stretchFor(script, places, reader);
  for (const std::size_t place : places) {
    Samples samples = reader.speak(script.lines[place].sentence, stretch).samples;
    highPass(samples, Voice::SamplesPerSecond);
    bringToLevel(samples, Voice::SamplesPerSecond, RecordedLevel);
    sentences.at(place) = std::move(samples);
  }
}

/// A recording with the script that it speaks.
struct Spoken {
  Script script;
  Recording recording;
};

std::vector<Spoken> recordTogether(const std::vector<Script>& scripts,
                                   const Pronunciations& pronunciations, const Progress& progress) {
  std::vector<Spoken> all;
  if (!scripts.empty()) Voice::learn(pronunciations);
  for (const Script& script : scripts) {
    std::vector<Samples> sentences(script.lines.size());
    for (const Speaker speaker : speakers) {
      const auto places = placesOf(script, speaker);
      progress(said("{}, {} sentences by {}", waveName(script.number), places.size(),
                    SpeakerNames.at(static_cast<std::size_t>(speaker))));
      speakLines(script, places, {Voice(speaker), pronunciations}, sentences);
    }
    all.push_back({script, joined(sentences)});
  }
  return all;
}

// The stamp comes behind its wave file: broken off between, a build makes the wave again.
void appendFiles(std::vector<PackFile>& files, int number, std::string wave, const std::string& key,
                 const Marks& marks) {
  files.push_back({waveName(number), std::move(wave)});
  files.push_back({stampName(number), stampOf(key, marks)});
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

double syllablesASecond(int number) {
  return rates.at(static_cast<std::size_t>(number - 1));
}

std::vector<Script> scriptsOf(const ReadingSource& readings) {
  std::vector<Script> scripts;
  for (int number = 1; number <= RecordingCount; ++number) {
    const auto text = readings.texts.find(FirstRecordedText + number - 1);
    if (text == readings.texts.end()) continue;
    Script& script = scripts.emplace_back(Script{number, {}});
    for (const Paragraph& paragraph : text->second.paragraphs) {
      for (const SentencePair& pair : paragraph) {
        const Speaker turn = speakers.at(script.lines.size() % speakers.size());
        script.lines.push_back({pair.english, speakerNamed(pair.speaker).value_or(turn)});
      }
    }
  }
  return scripts;
}

Recording joined(const std::vector<Samples>& sentences) {
  Recording recording;
  Samples& samples = recording.samples;
  for (std::size_t place = 0; place < sentences.size(); ++place) {
    samples.insert(samples.end(), sentences[place].begin(), sentences[place].end());
    const bool last = place + 1 == sentences.size();
    const std::size_t end = samples.size() + (last ? 0 : pauseMs * samplesPerMs);
    // Up to a whole millisecond, so that the mark is exact.
    samples.resize((end + samplesPerMs - 1) / samplesPerMs * samplesPerMs);
    recording.marks.push_back(static_cast<std::int32_t>(samples.size() / samplesPerMs));
  }
  return recording;
}

std::vector<PackFile> compileRecordings(const ReadingSource& readings,
                                        const std::map<int, OwnRecording>& own,
                                        const Pronunciations& pronunciations,
                                        const std::optional<std::filesystem::path>& earlierPack,
                                        const Progress& progress) {
  std::vector<PackFile> files;
  MarksByNumber marks;
  if (earlierPack) {
    std::vector<Script> changed;
    for (Script& script : scriptsOf(readings)) {
      const auto brought = own.find(script.number);
      const std::string key =
          brought != own.end() ? keyOf(brought->second) : keyOf(script, pronunciations);
      auto kept = keptMarks(*earlierPack, script.number, key, script.lines.size());
      if (brought != own.end()) {
        const Marks& given = brought->second.marks;
        if (kept != given) appendFiles(files, script.number, brought->second.wave, key, given);
        marks[script.number] = given;
      } else if (kept) {
        marks[script.number] = std::move(*kept);
      } else {
        changed.push_back(std::move(script));
      }
    }
    for (const auto& [script, recording] : recordTogether(changed, pronunciations, progress)) {
      appendFiles(files, script.number, waveFileOf(recording.samples, Voice::SamplesPerSecond),
                  keyOf(script, pronunciations), recording.marks);
      marks[script.number] = recording.marks;
    }
  }
  files.push_back({std::string(packfile::Marks), tableOf(marks)});
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
