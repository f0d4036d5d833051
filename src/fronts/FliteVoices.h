// The voices of flite. Belongs to whoever links flite.
#pragma once

#include "fronts/Voices.h"
#include "sound/Pronunciations.h"

#include <vector>

struct cst_voice_struct;

namespace talvora {

/// The name of the flite voice that a number has, from 1 to `VoiceNumbers`.
[[nodiscard]] const char* fliteVoiceName(int number);

/// flite keeps its voices for the whole process: one of these at a time.
class FliteVoices final : public Voices {
 public:
  /// Gives the voice of a name, which is loaded when it is first asked for and stays; null when it
  /// is not there.
  using Load = cst_voice_struct* (*)(const char* name);

  /// `lexicon` is what the voices say wrong of themselves.
  FliteVoices(Load load, std::vector<LexiconEntry> lexicon);

  bool say(const std::string& text, int number, int wordsPerMinute, const Take& take) override;

 private:
  const Load load_;
  const std::vector<LexiconEntry> lexicon_;
  bool taught_ = false; ///< whether flite's lexicon has them
};

} // namespace talvora
