// Speech: the word or sentence at hand is said by the engine, or by a recording where the text has
// one. Reading a text aloud is paced here by the arrow keys.
#pragma once

#include "platform/Platform.h"
#include "shell/Steering.h"
#include "sound/AmthanhThuc.h"
#include "stores/Stores.h"
#include "surface/State.h"

#include <cstdint>
#include <string>

namespace talvora {

/// What is to be said.
struct Utterance {
  std::string text;
  int sentence = 0; ///< number of the sentence whose recording says it; 0 where none does
};

/// The word or sentence at hand; a sentence is at hand when its translation is.
[[nodiscard]] Utterance utteranceAtHand(const SharedState& state);

class Speech {
 public:
  static constexpr int MaxVoices = 100;

  Speech(Platform& platform, Steering& steering, RecordedVoice& voice)
      : clock_(platform.clock), input_(platform.input), engine_(platform.speech),
        steering_(steering), voice_(voice) {}

  /// Counts the engine's voices into `SoGiong`; an engine without any counts as one.
  void DemGiong();
  /// Takes the stored settings over and chooses the last voice. Nothing is spoken.
  void setUp(const Stores& stores);
  /// Gives the engine the voice and the speed in use.
  void applySettings();

  /// Whether the engine is speaking; a recording does not count.
  [[nodiscard]] bool isSpeaking() const { return engine_.IsSpeaking(); }
  /// Ends what the engine says; a recording plays on.
  void stopEngine() { engine_.StopSpeaking(); }
  /// Ends all sound, spoken or recorded.
  void DungDoc();
  /// Speaks a text, a short one twice; a sentence that is recorded is played. Silent with the sound
  /// off, and for a text with a character that is not of an English sentence.
  void DocTu(const Utterance& utterance);
  /// Starts a sentence, from its recording or as a text, and waits until it is over or an arrow key
  /// or Esc ends it. `position` is the number of the sentence to go on with and moves with the
  /// arrows; `quit` becomes 1 on Esc.
  void ChoDoc(const std::string& text, int& position, int& quit);

  void declare(Variables& variables) const;

  std::int32_t AmThanhBat = 0; ///< 1 sound on, 0 sound off
  std::int32_t TocDoDoc = 0;   ///< speed level, 1 to 10
  std::int32_t GiongDoc = 0;   ///< number of the voice in use, from 1
  int SoGiong = 0;             ///< number of voices that the engine offers, at most 100
  bool LuiCau = false;         ///< the learner went back a sentence while a text is read aloud
  int savedSentence = 0;       ///< number of the sentence that was marked last while reading aloud

 private:
  enum class Wait { GoOn, Over, Up };

  /// Speed of the engine in words a minute: level 1 is 50, level 10 is 230.
  [[nodiscard]] int wordsPerMinute() const noexcept;
  void startSentence(const std::string& text, int position);
  [[nodiscard]] bool sentenceIsOver() const;
  /// One round of the waiting loop: two sleeps, and what the keys say between them.
  Wait waitARound(int& position, int& quit);
  /// Closing is wanted: no sentence is waited for any more.
  static Wait giveUp(int& quit);
  void stepBack(int& position);
  void repeat(int& position);
  bool isDown(int keyCode) { return input_.GetAsyncKeyState(keyCode); }
  void endSentence();

  Clock& clock_;
  Input& input_;
  SpeechEngine& engine_;
  Steering& steering_;
  RecordedVoice& voice_;
};

} // namespace talvora
