// The voices of flite. This is what the library talvora-voices is made of; the program loads it
// with the first word and knows nothing else of flite.
#pragma once

#include "desktop/Voices.h"
#include "sound/Pronunciations.h"

#include <memory>
#include <vector>

struct cst_voice_struct;

namespace talvora {

/// The flite voice of a number, from 1 to 10. Null when its library is not installed. A voice takes
/// up memory, and stays for the whole process.
[[nodiscard]] cst_voice_struct* loadFliteVoice(int number);

/// flite keeps its voices for the whole process: one of these at a time. A voice is loaded when it
/// is first used.
class FliteVoices final : public Voices {
 public:
  /// `lexicon` is what the voices say wrong of themselves.
  explicit FliteVoices(std::vector<LexiconEntry> lexicon);

  bool say(const std::string& text, int number, int wordsPerMinute, const Take& take) override;

 private:
  const std::vector<LexiconEntry> lexicon_;
  bool taught_ = false; ///< whether flite's lexicon has them
};

} // namespace talvora

/// What the library of the voices is loaded for.
extern "C" [[gnu::visibility("default")]] void
talvoraMakeVoices(std::unique_ptr<talvora::Voices>& voices,
                  const std::vector<talvora::LexiconEntry>& lexicon);
