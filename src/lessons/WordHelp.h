// Help with words on lesson pages and exercise items: a click looks a word up, Ctrl shows its
// Vietnamese side, a letter opens the look-up list.
#pragma once

#include "lessons/LessonControls.h"
#include "reading/ReadingPage.h"
#include "shell/Shell.h"
#include "surface/State.h"

namespace talvora {

class WordHelp {
 public:
  WordHelp(LessonControls& controls, SharedState& state, Shell& shell, PageServices services)
      : controls_(controls), state_(state), shell_(shell), services_(services) {}

  /// Selects the word at the caret of a surface, speaks it and shows its entry.
  void lookUpAtCaret(Surface& surface);
  /// The same on a drill's line, on which every caret is one in a word.
  void lookUpShownWord(Surface& surface);
  /// What Ctrl alone does: shows the Vietnamese side of the word at the caret.
  void showOnCtrl(int keyCode, int shift, Surface& surface);
  /// What a key release does: without Ctrl the Vietnamese side goes.
  void closeWithoutCtrl(int shift, Surface& surface);
  /// All that a key release does on a page: the clipboard is cleared, the popup goes unless a pick
  /// from the look-up list has put it up, and without Ctrl the Vietnamese side goes.
  void releaseKey(int shift, Surface& surface);
  /// Opens the look-up list for a typed letter; false for any other character.
  bool openListOn(int keyAscii);
  /// Takes the popup off and leaves focus and caret as they are.
  void hidePopup();
  /// Says `TuHienTai`.
  void speak() { services_.speech.DocTu(utteranceAtHand(state_)); }
  void stopSpeech() { services_.speech.DungDoc(); }

 private:
  void lookUp();

  LessonControls& controls_;
  SharedState& state_;
  Shell& shell_;
  PageServices services_;
};

} // namespace talvora
