// Recordings as libsndfile reads them, through the wave player of the desktop.
#include "desktop/Heard.h"
#include "desktop/SndfileRecording.h"
#include "desktop/Sound.h"
#include "desktop/WaveOutput.h"

#include <gtest/gtest.h>
#include <sndfile.hh>

#include <filesystem>
#include <fstream>
#include <limits>
#include <string>
#include <unistd.h>

namespace talvora {
namespace {

constexpr int Rate = HeardRate;

std::unique_ptr<Recording> sndfile(const std::string& path) {
  return std::make_unique<SndfileRecording>(path);
}

/// A wave file in which sample n of the first channel has the value n, and the second is silent.
class WaveFile {
 public:
  WaveFile(int frames, int rate, int channels)
      : path_(std::filesystem::temp_directory_path() /
              ("talvora-sound-" + std::to_string(getpid()) + ".wav")) {
    SndfileHandle file(path_.string(), SFM_WRITE, SF_FORMAT_WAV | SF_FORMAT_PCM_16, channels, rate);
    Samples samples(static_cast<std::size_t>(frames * channels));
    for (int frame = 0; frame < frames; ++frame) {
      samples[static_cast<std::size_t>(frame * channels)] = static_cast<std::int16_t>(frame);
    }
    file.writef(samples.data(), frames);
  }
  WaveFile(const WaveFile&) = delete;
  WaveFile& operator=(const WaveFile&) = delete;
  ~WaveFile() { std::filesystem::remove(path_); }

  [[nodiscard]] std::string path() const { return path_.string(); }

 private:
  std::filesystem::path path_;
};

/// A FLAC file of so many frames, each of the value 1, whose header claims the most that it can.
class BoastingFile {
 public:
  explicit BoastingFile(int frames)
      : path_(std::filesystem::temp_directory_path() /
              ("talvora-sound-" + std::to_string(getpid()) + ".flac")) {
    {
      SndfileHandle file(path_.string(), SFM_WRITE, SF_FORMAT_FLAC | SF_FORMAT_PCM_16, 1, Rate);
      const Samples samples(static_cast<std::size_t>(frames), 1);
      file.writef(samples.data(), frames);
    }
    // The number of frames takes the lower half of the byte 21 and the four that follow.
    std::fstream file(path_, std::ios::in | std::ios::out | std::ios::binary);
    file.seekg(ClaimAt);
    const int half = file.get();
    file.seekp(ClaimAt);
    file.put(static_cast<char>(half | 0x0F));
    file << "\xFF\xFF\xFF\xFF";
  }
  BoastingFile(const BoastingFile&) = delete;
  BoastingFile& operator=(const BoastingFile&) = delete;
  ~BoastingFile() { std::filesystem::remove(path_); }

  [[nodiscard]] std::string path() const { return path_.string(); }

 private:
  static constexpr int ClaimAt = 21;

  std::filesystem::path path_;
};

TEST(WaveOutput, AHeaderThatClaimsMoreThanThereIsCostsNothing) {
  const BoastingFile file(20000);
  ASSERT_EQ(SndfileHandle(file.path()).frames(), (std::int64_t{1} << 36) - 1);
  Heard heard;
  WaveOutput wave(counting(heard), sndfile);
  wave.Open(file.path());
  wave.Play(0, std::numeric_limits<int>::max());
  EXPECT_TRUE(comesTrue([&] { return heard.count() >= 20000; }));
  EXPECT_EQ(heard.samples(), Samples(20000, 1));
}

TEST(WaveOutput, AStretchIsPlayedFromMarkToMark) {
  const WaveFile file(2000, 1000, 1);
  Heard heard;
  WaveOutput wave(counting(heard), sndfile);
  wave.Open(file.path());
  EXPECT_EQ(wave.Mode(), WavePlayer::Stopped);
  wave.Play(100, 350);
  ASSERT_TRUE(comesTrue([&] { return heard.count() >= 250; }));
  ASSERT_TRUE(comesTrue([&] { return wave.Mode() == WavePlayer::Stopped; }));
  const Samples samples = heard.samples();
  ASSERT_EQ(samples.size(), 250U);
  EXPECT_EQ(samples.front(), 100);
  EXPECT_EQ(samples.back(), 349);
  EXPECT_EQ(heard.rate(), 1000);
}

TEST(WaveOutput, AStretchEndsWithTheFile) {
  const WaveFile file(300, 1000, 1);
  Heard heard;
  WaveOutput wave(counting(heard), sndfile);
  wave.Open(file.path());
  wave.Play(200, 5000);
  ASSERT_TRUE(comesTrue([&] { return heard.count() >= 100; }));
  ASSERT_TRUE(comesTrue([&] { return wave.Mode() == WavePlayer::Stopped; }));
  EXPECT_EQ(heard.count(), 100U);
}

TEST(WaveOutput, ChannelsAreMixedToOne) {
  const WaveFile file(1000, 1000, 2);
  Heard heard;
  WaveOutput wave(counting(heard), sndfile);
  wave.Open(file.path());
  wave.Play(100, 110);
  ASSERT_TRUE(comesTrue([&] { return heard.count() >= 10; }));
  EXPECT_EQ(heard.samples(), (Samples{50, 50, 51, 51, 52, 52, 53, 53, 54, 54}));
}

TEST(WaveOutput, AStretchWithoutLengthPlaysNothing) {
  const WaveFile file(2000, 1000, 1);
  WaveOutput wave({}, sndfile);
  wave.Open(file.path());
  wave.Play(500, 500);
  EXPECT_EQ(wave.Mode(), WavePlayer::Stopped);
  wave.Play(500, 0);
  EXPECT_EQ(wave.Mode(), WavePlayer::Stopped);
}

TEST(WaveOutput, StoppingAndClosingEndTheStretch) {
  const WaveFile file(30000, 100, 1);
  WaveOutput wave({}, sndfile);
  wave.Open(file.path());
  wave.Play(1, 300000);
  EXPECT_EQ(wave.Mode(), WavePlayer::Playing);
  wave.Stop();
  EXPECT_EQ(wave.Mode(), WavePlayer::Stopped);
  wave.Play(1, 300000);
  EXPECT_EQ(wave.Mode(), WavePlayer::Playing);
  wave.Close();
  EXPECT_EQ(wave.Mode(), WavePlayer::Stopped);
  wave.Play(1, 300000);
  EXPECT_EQ(wave.Mode(), WavePlayer::Stopped);
}

TEST(WaveOutput, AFileThatIsMissingOrNoWavePlaysNothing) {
  WaveOutput wave({}, sndfile);
  wave.Play(1, 1000);
  EXPECT_EQ(wave.Mode(), WavePlayer::Stopped);
  wave.Open("/nowhere/1.wav");
  wave.Play(1, 1000);
  EXPECT_EQ(wave.Mode(), WavePlayer::Stopped);
}

TEST(WaveOutput, TheLibraryOfTheRecordingsIsFoundAndReads) {
  const WaveFile file(300, 1000, 1);
  const std::unique_ptr<Recording> recording = openRecording(file.path());
  ASSERT_NE(recording, nullptr);
  EXPECT_EQ(recording->rate(), 1000);
  EXPECT_EQ(recording->read(100, 103), (Samples{100, 101, 102}));
}

} // namespace
} // namespace talvora
