#include "pack/CompressRecordings.h"

#include "pack/SourceFile.h"
#include "pack/WaveFile.h"
#include "tests/support/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <sndfile.hh>

#include <cmath>
#include <fstream>
#include <stdexcept>

namespace talvora::pack {
namespace {

Samples hum() {
  Samples samples(40000);
  for (std::size_t at = 0; at < samples.size(); ++at)
    samples[at] = static_cast<std::int16_t>(8000 * std::sin(static_cast<double>(at) / 20));
  return samples;
}

class CompressRecordingsTest : public testing::Test {
 protected:
  CompressRecordingsTest() { std::filesystem::create_directory(pack() / "sound"); }

  [[nodiscard]] std::filesystem::path pack() const { return folder_.path(); }

  void put(const std::string& name, const std::string& bytes) const {
    std::ofstream(pack() / "sound" / name, std::ios::binary) << bytes;
  }

  [[nodiscard]] std::string bytesOf(const std::string& name) const {
    return readWhole(pack() / "sound" / name).value_or("");
  }

 private:
  test::TemporaryFolder folder_;
};

TEST_F(CompressRecordingsTest, ARecordingKeepsEverySampleInLessRoom) {
  put("1.wav", waveFileOf(hum(), 16000));
  const Compressed result = compressRecordings(pack());
  EXPECT_EQ(result.recordings, 1);
  EXPECT_LT(result.after, result.before);
  EXPECT_EQ(result.after, bytesOf("1.wav").size());

  SndfileHandle sound((pack() / "sound" / "1.wav").string());
  EXPECT_EQ(sound.format() & SF_FORMAT_TYPEMASK, SF_FORMAT_FLAC);
  EXPECT_EQ(sound.samplerate(), 16000);
  Samples heard(hum().size() + 1);
  EXPECT_EQ(sound.read(heard.data(), static_cast<sf_count_t>(heard.size())),
            static_cast<sf_count_t>(hum().size()));
  heard.pop_back();
  EXPECT_EQ(heard, hum());
}

TEST_F(CompressRecordingsTest, ASecondTimeChangesNothing) {
  put("1.wav", waveFileOf(hum(), 16000));
  compressRecordings(pack());
  const std::string once = bytesOf("1.wav");
  EXPECT_EQ(compressRecordings(pack()).recordings, 0);
  EXPECT_EQ(bytesOf("1.wav"), once);
}

TEST_F(CompressRecordingsTest, WhatIsNoWaveStaysAsItIs) {
  put("1.wav", "no sound");
  put("1.stamp", "key\n");
  EXPECT_EQ(compressRecordings(pack()).recordings, 0);
  EXPECT_EQ(bytesOf("1.wav"), "no sound");
}

TEST_F(CompressRecordingsTest, AFolderWithoutRecordingsIsRefused) {
  EXPECT_THROW(compressRecordings(pack() / "elsewhere"), std::runtime_error);
}

} // namespace
} // namespace talvora::pack
