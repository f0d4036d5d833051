#include "reading/ReadAloud.h"

#include <algorithm>

namespace talvora {

int ReadAloud::pageEndFrom(int sentence) const {
  return std::min(sentence + trang, lastSentence());
}

bool ReadAloud::silent() const {
  return voice_.AmThanhThuc ? voice_.DaDung() : !speech_.isSpeaking();
}

void ReadAloud::DocCa() {
  speech_.stopEngine();
  steering_.XaPhim();
  DangDocCa = true;
  speech_.LuiCau = false;
  Progress progress;
  progress.caret = R2_.SelStart();
  progress.sentence = sentences_.takeTranslationAt(SentencePick::askedCaret(R2_));
  progress.pageEnd = pageEndFrom(progress.sentence);
  while (progress.quit == 0) {
    if (silent()) {
      readOne(progress);
    } else {
      rest(10, progress);
    }
    if (progress.quit > 0) break;
    if (progress.sentence >= lastSentence()) {
      // The text begins anew, until the learner has had enough.
      R2_.SelStart(0);
      progress.sentence = 1;
      progress.pageEnd = 1;
    }
  }
  R2_.SelLength(0);
  state_.atHand.keepCaret(R2_.SelStart());
  if (progress.sentence >= lastSentence()) DangDocCa = false;
}

void ReadAloud::readOne(Progress& progress) {
  int& s = progress.sentence;
  if (voice_.AmThanhThuc && s == 1) s = 2;
  int target = sentences_.markOf(s) + 2;
  const bool again = speech_.LuiCau;
  if (again) {
    target = progress.savedCaret;
    s = progress.savedSentence;
  } else {
    R2_.SelLength(0);
    R2_.SelStart(target);
    progress.savedCaret = target;
    progress.savedSentence = s;
    speech_.savedSentence = s;
  }
  ++s;
  if (s >= progress.pageEnd) scrollOn(progress);
  progress.caret = target;
  if (!again) {
    state_.atHand.keepCaret(target);
    sentences_.ChonCau(R2_, target);
  }
  rest(20, progress);
  if (progress.quit == 0) speech_.ChoDoc(state_.word.TuHienTai, s, progress.quit);
}

void ReadAloud::rest(int ms, Progress& progress) {
  if (clock_.Sleep(ms) == Flow::Interrupt) progress.quit = 1;
}

void ReadAloud::scrollOn(Progress& progress) {
  // The jumps take the sentence out of the selection; a sentence that is repeated is not marked
  // again and must still be there to be spoken.
  const std::string sentence = state_.word.TuHienTai;
  R2_.SelStart(0);
  R2_.SelStart(R2_.TextLength() - 3);
  R2_.SelStart(progress.caret);
  state_.atHand.take(sentence);
  progress.pageEnd = pageEndFrom(progress.sentence);
}

} // namespace talvora
