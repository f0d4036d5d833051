// A build without libsndfile writes sound as a plain wave file and as nothing else.
#include "pack/WaveFile.h"

#include "formats/Integers.h"
#include "pack/Message.h"

#include <algorithm>
#include <stdexcept>
#include <string_view>

namespace talvora::pack {

namespace {

constexpr std::size_t fileHeader = 12; ///< "RIFF", the length of the rest, "WAVE"
constexpr std::size_t chunkHeader = 8; ///< a name of four letters, the length of what follows
constexpr std::size_t formatLength = 16;
constexpr std::size_t plainSamples = 1; ///< the code of samples as they are
constexpr std::size_t sampleBytes = 2;

std::string chunk(std::string_view name, const std::string& content) {
  std::string stored(name);
  appendInteger(stored, content.size());
  return stored + content;
}

std::size_t numberAt(std::string_view bytes, std::size_t at) {
  return static_cast<std::uint32_t>(integerAt(bytes.substr(at), 1));
}

/// What a chunk of that name holds; empty when there is none.
std::optional<std::string_view> contentOf(std::string_view wave, std::string_view name) {
  std::size_t at = fileHeader;
  while (at + chunkHeader <= wave.size()) {
    const std::string_view rest = wave.substr(at + chunkHeader);
    const std::size_t length = std::min<std::size_t>(numberAt(wave, at + 4), rest.size());
    if (wave.substr(at, 4) == name) return rest.substr(0, length);
    at += chunkHeader + length + length % 2; // Chunks begin at even places.
  }
  return std::nullopt;
}

} // namespace

std::string waveFileOf(const Samples& samples, int samplesPerSecond) {
  const auto rate = static_cast<std::size_t>(samplesPerSecond);
  std::string format;
  appendCount(format, plainSamples);
  appendCount(format, 1); // channel
  appendInteger(format, rate);
  appendInteger(format, rate * sampleBytes);
  appendCount(format, sampleBytes);
  appendCount(format, 8 * sampleBytes);
  std::string stored;
  stored.reserve(samples.size() * sampleBytes);
  for (const std::int16_t sample : samples)
    appendCount(stored, static_cast<std::uint16_t>(sample));
  return chunk("RIFF", "WAVE" + chunk("fmt ", format) + chunk("data", stored));
}

SmallSound smallSoundOf(const Samples& samples, int samplesPerSecond) {
  return {waveFileOf(samples, samplesPerSecond), "wav"};
}

std::optional<std::string> flacFileOf(std::string) {
  throw std::runtime_error(
      said("talvora-pack was built without recordings and makes no FLAC files"));
}

std::optional<std::int64_t> waveLengthMs(std::string bytes) {
  const std::string_view wave = bytes;
  if (!wave.starts_with("RIFF") || wave.substr(chunkHeader, 4) != "WAVE") return std::nullopt;
  const auto format = contentOf(wave, "fmt ");
  const auto data = contentOf(wave, "data");
  if (!format || format->size() < formatLength || !data) return std::nullopt;
  const std::size_t bytesASecond = numberAt(*format, 8);
  if (bytesASecond == 0) return std::nullopt;
  return static_cast<std::int64_t>(data->size() * 1000 / bytesASecond);
}

} // namespace talvora::pack
