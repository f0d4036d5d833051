#include "desktop/SilentSpeech.h"

#include <algorithm>

namespace talvora {

std::int64_t spokenMs(std::string_view text, int wordsPerMinute) {
  // A spoken word has about six characters with its blank.
  constexpr std::int64_t CharactersPerWord = 6;
  return static_cast<std::int64_t>(text.size()) * 60'000 /
         (CharactersPerWord * std::max(wordsPerMinute, 1));
}

void SilentSpeech::Speak(std::string_view text) {
  silentFrom_ = std::max(silentFrom_, clock_.elapsed()) + spokenMs(text, wordsPerMinute_);
}

void SilentSpeech::Speed(int wordsPerMinute) {
  wordsPerMinute_ = std::max(wordsPerMinute, 1);
}

} // namespace talvora
