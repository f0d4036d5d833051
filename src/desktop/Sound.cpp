#include "desktop/Sound.h"

#include "desktop/PcmPlayer.h"
#include "desktop/SoundDevice.h"

#ifdef TALVORA_HAS_FLITE
#include "desktop/FliteSpeech.h"
#else
#include "desktop/SilentSpeech.h"
#endif
#ifdef TALVORA_HAS_SNDFILE
#include "desktop/WaveOutput.h"
#else
#include "desktop/SilentWave.h"
#endif

#include <fstream>
#include <sstream>

namespace talvora {

namespace {

std::unique_ptr<SpeechEngine> makeSpeech([[maybe_unused]] const std::filesystem::path& pack) {
#ifdef TALVORA_HAS_FLITE
  // A pack without the file is spoken as the voices know it.
  std::ifstream file(pack / Pronunciations::FileName, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  return std::make_unique<FliteSpeech>(openSoundDevice, loadFliteVoice,
                                       Pronunciations::read(text.str()));
#else
  return std::make_unique<SilentSpeech>();
#endif
}

std::unique_ptr<WavePlayer> makeWave() {
#ifdef TALVORA_HAS_SNDFILE
  return std::make_unique<WaveOutput>(openSoundDevice);
#else
  return std::make_unique<SilentWave>();
#endif
}

} // namespace

Sound makeSound(const std::filesystem::path& pack) {
  return {makeSpeech(pack), makeWave()};
}

} // namespace talvora
