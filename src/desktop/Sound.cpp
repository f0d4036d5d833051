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

#include <QMediaDevices>

namespace talvora {

namespace {

/// The way to the default device; empty when there is none.
[[maybe_unused]] PcmPlayer::MakeDevice defaultDevice() {
  const QAudioDevice device = QMediaDevices::defaultAudioOutput();
  if (device.isNull()) return {};
  return [device] { return std::make_unique<QtPcmDevice>(device); };
}

std::unique_ptr<SpeechEngine> makeSpeech() {
#ifdef TALVORA_HAS_FLITE
  return std::make_unique<FliteSpeech>(defaultDevice());
#else
  return std::make_unique<SilentSpeech>();
#endif
}

std::unique_ptr<WavePlayer> makeWave() {
#ifdef TALVORA_HAS_SNDFILE
  return std::make_unique<WaveOutput>(defaultDevice());
#else
  return std::make_unique<SilentWave>();
#endif
}

} // namespace

Sound makeSound() {
  return {makeSpeech(), makeWave()};
}

} // namespace talvora
