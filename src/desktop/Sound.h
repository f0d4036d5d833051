// The sound of the desktop: the speech engine and the wave player.
#pragma once

#include "desktop/Recording.h"
#include "fronts/Voices.h"
#include "platform/Speech.h"
#include "platform/WavePlayer.h"
#include "sound/Pronunciations.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace talvora {

struct Sound {
  std::unique_ptr<SpeechEngine> speech;
  std::unique_ptr<WavePlayer> wave;
};

/// Makes both, for a pack in a folder, which tells what the voices say wrong of themselves. They
/// look for the default sound device, for voices, for that and for what reads recordings when the
/// first sound comes. What is missing keeps its timing silently.
[[nodiscard]] Sound makeSound(const std::filesystem::path& pack);

/// The voices and the reader of recordings that lie in libraries beside the program, which are
/// loaded here. Null when they cannot be loaded; standard error says why, once.
[[nodiscard]] std::unique_ptr<Voices> loadVoices(const std::vector<LexiconEntry>& lexicon);
[[nodiscard]] std::unique_ptr<Recording> openRecording(const std::string& path);

} // namespace talvora
