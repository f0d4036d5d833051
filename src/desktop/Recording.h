// A recording as the wave player reads it. What reads files lies in a library of its own
// (SndfileRecording.h).
#pragma once

#include "desktop/PcmPlayer.h"

namespace talvora {

class Recording {
 public:
  virtual ~Recording() = default;

  /// Samples a second.
  [[nodiscard]] virtual int rate() const = 0;
  /// The samples of a stretch in milliseconds, its channels mixed to one; it ends with the
  /// recording.
  [[nodiscard]] virtual Samples read(int from, int to) = 0;
};

} // namespace talvora
