#include "desktop/Sound.h"

#include "desktop/PcmPlayer.h"
#include "desktop/QtPcmDevice.h"

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

[[maybe_unused]] std::unique_ptr<PcmDevice> makeDevice() {
  return std::make_unique<QtPcmDevice>();
}

std::unique_ptr<SpeechEngine> makeSpeech() {
#ifdef TALVORA_HAS_FLITE
  return std::make_unique<FliteSpeech>(makeDevice);
#else
  return std::make_unique<SilentSpeech>();
#endif
}

std::unique_ptr<WavePlayer> makeWave() {
#ifdef TALVORA_HAS_SNDFILE
  return std::make_unique<WaveOutput>(makeDevice);
#else
  return std::make_unique<SilentWave>();
#endif
}

} // namespace

Sound makeSound() {
  return {makeSpeech(), makeWave()};
}

} // namespace talvora
