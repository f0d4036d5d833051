// A recording read by libsndfile. This is what the library talvora-recordings is made of; the
// program loads it with the first recording and knows nothing else of libsndfile.
#pragma once

#include "desktop/Recording.h"

#include <sndfile.hh>

#include <memory>
#include <string>

namespace talvora {

/// A file that cannot be read has no samples.
class SndfileRecording final : public Recording {
 public:
  explicit SndfileRecording(const std::string& path) : file_(path) {}

  [[nodiscard]] int rate() const override { return file_.samplerate(); }
  [[nodiscard]] Samples read(int from, int to) override;

 private:
  SndfileHandle file_;
};

} // namespace talvora

/// What the library of the recordings is loaded for.
extern "C" [[gnu::visibility("default")]] void
talvoraOpenRecording(std::unique_ptr<talvora::Recording>& recording, const std::string& path);
