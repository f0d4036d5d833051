// A build without speech: sentences are silent, and take about the time that saying them would
// take.
#include "pack/Voice.h"

#include "text/Text.h"

#include <algorithm>

namespace talvora::pack {

namespace {

constexpr double syllablesASecond = 4.5;

bool isVowel(char letter) {
  return std::string_view("aeiouy").find(letter) != std::string_view::npos;
}

/// About: a syllable has a run of vowels.
int syllablesOf(const std::string& text) {
  int count = 0;
  bool before = false;
  for (const char letter : text) {
    const bool vowel = isVowel(letter);
    if (vowel && !before) ++count;
    before = vowel;
  }
  return count;
}

} // namespace

Voice::Voice(Speaker) : voice_(nullptr) {}

void Voice::learn(const Pronunciations&) {}

SpokenSentence Voice::speak(std::string_view sentence, float stretch) const {
  const int syllables = syllablesOf(lower(plainAscii(sentence)));
  const double seconds = static_cast<double>(stretch) * syllables / syllablesASecond;
  return {Samples(static_cast<std::size_t>(seconds * SamplesPerSecond)), syllables};
}

std::string synthesiserName() {
  return "silence-1";
}

} // namespace talvora::pack
