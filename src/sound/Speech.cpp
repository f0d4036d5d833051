#include "sound/Speech.h"

#include "platform/Input.h"
#include "text/CharClass.h"
#include "text/Text.h"

#include <algorithm>

namespace talvora {

namespace {

/// The characters of an English sentence; ")-?" is a range and takes in the digits.
constexpr CharClass Speakable("[a-z,A-Z,'. ()-?!]");
/// A text shorter than this is a word or two, and is heard twice.
constexpr std::size_t SentenceLength = 15;
constexpr int PollMs = 10;
/// Debounces the arrow keys.
constexpr int PauseMs = 50;
constexpr int LevelLimit = 1'000'000;

} // namespace

// -- Set-up.

void Speech::DemGiong() {
  int voice = 1;
  while (voice <= MaxVoices && engine_.Select(voice))
    ++voice;
  SoGiong = std::max(voice - 1, 1);
}

void Speech::setUp(const Stores& stores) {
  AmThanhBat = stores.readSetting(setting::SoundOn);
  // A broken record must not overflow the arithmetic on levels.
  TocDoDoc = std::clamp(stores.readSetting(setting::SpeedLevel), -LevelLimit, LevelLimit);
  GiongDoc = SoGiong;
  applySettings();
}

int Speech::wordsPerMinute() const noexcept {
  return TocDoDoc * 20 + 30;
}

void Speech::applySettings() {
  engine_.Select(GiongDoc);
  engine_.Speed(wordsPerMinute());
}

// -- A word or sentence.

Utterance utteranceAtHand(const SharedState& state) {
  return {state.word.TuHienTai, state.word.ThongBaoHD.empty() ? 0 : state.text.CauChon};
}

void Speech::DungDoc() {
  engine_.StopSpeaking();
  if (voice_.DangPhat() && voice_.AmThanhThuc) voice_.DungAm();
}

void Speech::DocTu(const Utterance& utterance) {
  DungDoc();
  if (AmThanhBat < 1 || !Speakable.hasAll(utterance.text)) return;
  if (voice_.AmThanhThuc && utterance.sentence > 1) {
    // The title counts as sentence 1 and is not in the recording.
    voice_.PhatCau(utterance.sentence - 1);
    return;
  }
  const std::string text = lower(utterance.text);
  if (text.empty()) return;
  engine_.Speak(text);
  if (text.size() < SentenceLength) engine_.Speak(text);
}

// -- Waiting for a sentence while a text is read aloud.

void Speech::ChoDoc(const std::string& text, int& position, int& quit) {
  DungDoc();
  startSentence(text, position);
  Wait wait = Wait::GoOn;
  while (wait == Wait::GoOn)
    wait = waitARound(position, quit);
  if (wait == Wait::Up) repeat(position);
  endSentence();
}

void Speech::startSentence(const std::string& text, int position) {
  if (voice_.AmThanhThuc) {
    if (position > 1) voice_.PhatCau(position - 2);
    return;
  }
  if (engine_.IsSpeaking()) engine_.StopSpeaking();
  engine_.Speak(lower(text));
}

bool Speech::sentenceIsOver() const {
  return voice_.AmThanhThuc ? voice_.DaDung() : !engine_.IsSpeaking();
}

Speech::Wait Speech::waitARound(int& position, int& quit) {
  if (clock_.Sleep(PollMs) == Flow::Interrupt) return giveUp(quit);
  if (isDown(key::Left)) stepBack(position);
  if (isDown(key::Up)) return Wait::Up;
  if (isDown(key::Right) || isDown(key::Down)) {
    static_cast<void>(clock_.Sleep(PauseMs));
    LuiCau = false;
    return Wait::Over;
  }
  if (clock_.Sleep(PollMs) == Flow::Interrupt) return giveUp(quit);
  if (isDown(key::Esc)) quit = 1;
  return quit == 1 || sentenceIsOver() ? Wait::Over : Wait::GoOn;
}

Speech::Wait Speech::giveUp(int& quit) {
  quit = 1;
  return Wait::Over;
}

void Speech::stepBack(int& position) {
  static_cast<void>(clock_.Sleep(PauseMs));
  if (position > 0) position = std::max(position - 1, 1);
  LuiCau = true;
}

void Speech::repeat(int& position) {
  static_cast<void>(clock_.Sleep(PauseMs));
  if (position > 0) position -= 2;
  if (LuiCau) position = savedSentence - 1;
  position = std::max(position, 1);
  LuiCau = false;
}

void Speech::endSentence() {
  DungDoc();
  steering_.XaPhim();
}

void Speech::declare(Variables& variables) const {
  variables.add("AmThanhBat", &AmThanhBat);
  variables.add("TocDoDoc", &TocDoDoc);
  variables.add("GiongDoc", &GiongDoc);
  variables.add("SoGiong", &SoGiong);
  variables.add("LuiCau", &LuiCau);
}

} // namespace talvora
