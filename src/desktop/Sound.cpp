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

namespace talvora {

namespace {

std::unique_ptr<SpeechEngine> makeSpeech() {
#ifdef TALVORA_HAS_FLITE
  return std::make_unique<FliteSpeech>(openSoundDevice);
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

Sound makeSound() {
  return {makeSpeech(), makeWave()};
}

} // namespace talvora
