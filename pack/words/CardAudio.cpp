#include "pack/words/CardAudio.h"

#include "pack/SourceFile.h"
#include "pack/words/StableId.h"
#include "text/Text.h"

#include <filesystem>

namespace talvora::pack {

namespace {

/// A little slower than the voice's own pace, as a learner hears it in the program.
constexpr float stretch = 1.15F;

Pronunciations pronunciationsOf(const std::string& pack) {
  if (pack.empty()) return {};
  const auto text = readWhole(std::filesystem::path(pack) / Pronunciations::FileName);
  return text ? Pronunciations::read(*text) : Pronunciations();
}

} // namespace

CardAudio::CardAudio(const std::string& pack)
    : pronunciations_(pronunciationsOf(pack)), voice_(Speaker::Slt) {
  Voice::learn(pronunciations_);
}

SoundClip CardAudio::clipOf(std::string_view spoken) const {
  const std::string text = pronunciations_.prepared(plainAscii(spoken));
  const SmallSound sound =
      smallSoundOf(voice_.speak(text, stretch).samples, Voice::SamplesPerSecond);
  return {"talvora-" + stableId(synthesiserName() + text) + "." + sound.extension, sound.bytes};
}

} // namespace talvora::pack
