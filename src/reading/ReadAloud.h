// Reading a whole text aloud, sentence by sentence, steered by the arrow keys.
#pragma once

#include "platform/Clock.h"
#include "reading/SentencePick.h"
#include "shell/Steering.h"
#include "sound/AmthanhThuc.h"
#include "sound/Speech.h"
#include "surface/State.h"
#include "surface/Surface.h"

namespace talvora {

class ReadAloud {
 public:
  ReadAloud(Surface& R2, SharedState& state, SentencePick& sentences, Speech& speech,
            RecordedVoice& voice, Steering& steering, Clock& clock)
      : R2_(R2), state_(state), sentences_(sentences), speech_(speech), voice_(voice),
        steering_(steering), clock_(clock) {}

  /// Reads from the sentence at the caret on to the text's end, or until Esc.
  void DocCa();

  bool DangDocCa = false; ///< the text is being read aloud

 private:
  /// How many sentences a page holds before the surface is scrolled on.
  static constexpr int trang = 15;

  struct Progress {
    int sentence = 0; ///< number of the sentence to read next
    int pageEnd = 0;
    int caret = 0; ///< where the reading stood last
    int savedCaret = 0;
    int savedSentence = 0;
    int quit = 0;
  };

  [[nodiscard]] int lastSentence() const noexcept { return state_.text.SoCauVanBan; }
  [[nodiscard]] int pageEndFrom(int sentence) const;
  [[nodiscard]] bool silent() const;
  void readOne(Progress& progress);
  /// Waits; when closing is wanted the reading is over.
  void rest(int ms, Progress& progress);
  void scrollOn(Progress& progress);

  Surface& R2_;
  SharedState& state_;
  SentencePick& sentences_;
  Speech& speech_;
  RecordedVoice& voice_;
  Steering& steering_;
  Clock& clock_;
};

} // namespace talvora
