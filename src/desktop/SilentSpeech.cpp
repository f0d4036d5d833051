#include "desktop/SilentSpeech.h"

#include <algorithm>

namespace talvora {

void SilentSpeech::Speak(std::string_view text) {
  // A spoken word has about six characters with its blank.
  constexpr qint64 CharactersPerWord = 6;
  const qint64 length =
      static_cast<qint64>(text.size()) * 60000 / (CharactersPerWord * std::max(wordsPerMinute_, 1));
  silentFrom_ = std::max(silentFrom_, clock_.elapsed()) + length;
}

void SilentSpeech::Speed(int wordsPerMinute) {
  wordsPerMinute_ = std::max(wordsPerMinute, 1);
}

} // namespace talvora
