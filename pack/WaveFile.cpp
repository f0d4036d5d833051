// The wave file is written into memory, so that it reaches the disk as every file of a pack does.
#include "pack/WaveFile.h"

#include "pack/Message.h"

#include <sndfile.hh>

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace talvora::pack {

namespace {

/// So many samples of a channel are copied at a time.
constexpr std::size_t pieceFrames = 16384;

/// A file in memory as libsndfile asks for one.
class MemoryFile {
 public:
  MemoryFile() = default;
  explicit MemoryFile(std::string bytes) : bytes_(std::move(bytes)) {}

  static SF_VIRTUAL_IO operations() {
    SF_VIRTUAL_IO calls{};
    calls.get_filelen = [](void* file) { return self(file).length(); };
    calls.seek = [](sf_count_t offset, int whence, void* file) {
      return self(file).seek(offset, whence);
    };
    calls.read = [](void* to, sf_count_t count, void* file) { return self(file).read(to, count); };
    calls.write = [](const void* from, sf_count_t count, void* file) {
      return self(file).write(from, count);
    };
    calls.tell = [](void* file) { return self(file).at_; };
    return calls;
  }

  [[nodiscard]] std::string takeBytes() { return std::move(bytes_); }

 private:
  static MemoryFile& self(void* file) { return *static_cast<MemoryFile*>(file); }

  [[nodiscard]] sf_count_t length() const { return static_cast<sf_count_t>(bytes_.size()); }

  sf_count_t seek(sf_count_t offset, int whence) {
    const sf_count_t origin = whence == SEEK_SET ? 0 : whence == SEEK_CUR ? at_ : length();
    at_ = std::max<sf_count_t>(origin + offset, 0);
    return at_;
  }

  sf_count_t read(void* to, sf_count_t count) {
    const sf_count_t there = std::clamp<sf_count_t>(length() - at_, 0, count);
    std::copy_n(bytes_.begin() + at_, there, static_cast<char*>(to));
    at_ += there;
    return there;
  }

  sf_count_t write(const void* from, sf_count_t count) {
    if (at_ + count > length()) bytes_.resize(static_cast<std::size_t>(at_ + count));
    std::copy_n(static_cast<const char*>(from), count, bytes_.begin() + at_);
    at_ += count;
    return count;
  }

  std::string bytes_;
  sf_count_t at_ = 0;
};

/// The forms of a sound file, as the library numbers them, the wanted ones first.
struct SoundForm {
  int format;
  const char* extension;
};

/// From 0, the best, to 1, the smallest: speech stays clear here.
constexpr double Compression = 0.8;

constexpr int waveForm = SF_FORMAT_WAV | SF_FORMAT_PCM_16;
constexpr SoundForm smallForms[] = {{SF_FORMAT_MPEG | SF_FORMAT_MPEG_LAYER_III, "mp3"},
                                    {SF_FORMAT_OGG | SF_FORMAT_VORBIS, "ogg"},
                                    {waveForm, "wav"}};

std::string soundFileOf(const Samples& samples, int samplesPerSecond, int format) {
  MemoryFile memory;
  {
    SF_VIRTUAL_IO operations = MemoryFile::operations();
    SndfileHandle sound(operations, &memory, SFM_WRITE, format, 1, samplesPerSecond);
    // What has no such choice passes it over.
    double compression = Compression;
    sound.command(SFC_SET_COMPRESSION_LEVEL, &compression, sizeof compression);
    const auto count = static_cast<sf_count_t>(samples.size());
    if (!sound || sound.write(samples.data(), count) != count)
      throw std::runtime_error(said("no sound file can be made: {}", sound.strError()));
  }
  return memory.takeBytes();
}

} // namespace

std::string waveFileOf(const Samples& samples, int samplesPerSecond) {
  return soundFileOf(samples, samplesPerSecond, waveForm);
}

SmallSound smallSoundOf(const Samples& samples, int samplesPerSecond) {
  const auto* const form =
      std::find_if(std::begin(smallForms), std::end(smallForms) - 1, [&](const SoundForm& each) {
        return SndfileHandle::formatCheck(each.format, 1, samplesPerSecond) != 0;
      });
  return {soundFileOf(samples, samplesPerSecond, form->format), form->extension};
}

std::optional<std::string> flacFileOf(std::string bytes) {
  SF_VIRTUAL_IO operations = MemoryFile::operations();
  MemoryFile from(std::move(bytes));
  SndfileHandle sound(operations, &from, SFM_READ);
  const bool isWave = (sound.format() & SF_FORMAT_TYPEMASK) == SF_FORMAT_WAV &&
                      (sound.format() & SF_FORMAT_SUBMASK) == SF_FORMAT_PCM_16;
  if (sound.error() != SF_ERR_NO_ERROR || !isWave) return std::nullopt;
  MemoryFile to;
  {
    SndfileHandle flac(operations, &to, SFM_WRITE, SF_FORMAT_FLAC | SF_FORMAT_PCM_16,
                       sound.channels(), sound.samplerate());
    Samples part(pieceFrames * static_cast<std::size_t>(sound.channels()));
    const auto wanted = static_cast<sf_count_t>(part.size());
    for (sf_count_t count = wanted; flac && count == wanted;) {
      count = sound.read(part.data(), wanted);
      if (flac.write(part.data(), count) != count) flac = SndfileHandle();
    }
    if (!flac) throw std::runtime_error(said("no FLAC file can be made of a recording"));
  }
  return to.takeBytes();
}

std::optional<std::int64_t> waveLengthMs(std::string bytes) {
  MemoryFile memory(std::move(bytes));
  SF_VIRTUAL_IO operations = MemoryFile::operations();
  const SndfileHandle wave(operations, &memory, SFM_READ);
  const bool isWave = (wave.format() & SF_FORMAT_TYPEMASK) == SF_FORMAT_WAV;
  if (wave.error() != SF_ERR_NO_ERROR || !isWave || wave.samplerate() <= 0) return std::nullopt;
  return static_cast<std::int64_t>(wave.frames()) * 1000 / wave.samplerate();
}

} // namespace talvora::pack
