// The words and sentences of cards, spoken.
#pragma once

#include "pack/Voice.h"

#include <string>
#include <string_view>

namespace talvora::pack {

/// A sound file for a text.
struct SoundClip {
  std::string name; ///< the same for the same text, so that a later export replaces nothing
  std::string bytes;
};

class CardAudio {
 public:
  /// Takes the woman's voice, with what a pack corrects of it; without a pack as it is.
  explicit CardAudio(const std::string& pack);

  /// What is said for a text in the text font's bytes. Throws std::runtime_error when there is no
  /// sound to be had.
  [[nodiscard]] SoundClip clipOf(std::string_view spoken) const;

 private:
  Pronunciations pronunciations_;
  Voice voice_;
};

} // namespace talvora::pack
