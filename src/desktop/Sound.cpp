#include "desktop/Sound.h"

#include "desktop/Modules.h"
#include "desktop/SoundDevice.h"
#include "desktop/ThreadedSpeech.h"
#include "desktop/WaveOutput.h"

#include <fstream>
#include <sstream>
#include <utility>

namespace talvora {

namespace {

/// A pack without the file is spoken as the voices know it.
Pronunciations pronunciationsOf(const std::filesystem::path& pack) {
  std::ifstream file(pack / Pronunciations::FileName, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return Pronunciations::read(text.str());
}

} // namespace

std::unique_ptr<Voices> loadVoices(const std::vector<LexiconEntry>& lexicon) {
  using Make = void(std::unique_ptr<Voices> & voices, const std::vector<LexiconEntry>& lexicon);
  static auto* const make =
      reinterpret_cast<Make*>(functionOfModule("talvora-voices", "talvoraMakeVoices", "speech"));
  std::unique_ptr<Voices> voices;
  if (make != nullptr) make(voices, lexicon);
  return voices;
}

std::unique_ptr<Recording> openRecording(const std::string& path) {
  using Open = void(std::unique_ptr<Recording> & recording, const std::string& path);
  static auto* const open = reinterpret_cast<Open*>(
      functionOfModule("talvora-recordings", "talvoraOpenRecording", "recordings"));
  std::unique_ptr<Recording> recording;
  if (open != nullptr) open(recording, path);
  return recording;
}

Sound makeSound(const std::filesystem::path& pack) {
  return {std::make_unique<ThreadedSpeech>(openSoundDevice, loadVoices,
                                           [pack] { return pronunciationsOf(pack); }),
          std::make_unique<WaveOutput>(openSoundDevice, openRecording)};
}

} // namespace talvora
