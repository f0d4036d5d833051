// The reading text on `R2`: a click takes a word, a double click or Space a sentence.
#pragma once

#include "dictionary/Dictionary.h"
#include "dictionary/VietnameseSide.h"
#include "reading/ReadAloud.h"
#include "reading/ReadingText.h"
#include "reading/SentencePick.h"
#include "shell/Shell.h"
#include "sound/AmthanhThuc.h"
#include "sound/Speech.h"
#include "surface/Controls.h"
#include "surface/State.h"

#include <functional>

namespace talvora {

/// What a page of text looks words up with and speaks with.
struct PageServices {
  Dictionary& dictionary;
  VietnameseSide& vietnameseSide;
  Speech& speech;
  RecordedVoice& voice;
};

class ReadingPage {
 public:
  ReadingPage(Controls& controls, SharedState& state, Shell& shell, PageServices services,
              ReadingText& text, Clock& clock);

  /// Clears what a former text has left of double clicks and held keys.
  void clearStepFlags();
  /// Shows `CauHoi` with its title line set off.
  void showText();

  void declare(Variables& variables) const;

  /// Takes the page off; set by its owner.
  std::function<void()> leave;
  /// Adds the word at hand to the vocabulary; set by its owner.
  std::function<void()> ThemTuVung;
  /// Starts the word ordering drill on this text; set by the program.
  std::function<void()> GoiRxep;
  /// Explains the word under a right click in an analysed text; set by the program.
  std::function<void()> GiaiPhanTich;
  /// Ends the explanation of a word when the text is clicked again; set by the program.
  std::function<void()> leaveExplanation = [] {};
  /// Ends the explanation of a word when a key is pressed; set by the program.
  std::function<void(int keyCode)> endExplanation = [](int) {};
  /// Tells the explanation of a word where the pointer is; set by the program.
  std::function<void(SurfacePoint at)> RoiChuotBT = [](SurfacePoint) {};

  bool LaBaiHuongDan = false; ///< the text is the program's guide, with its special clicks
  int ViTriTieuDe = 0;        ///< length of the title line plus 2, where the body starts

 private:
  void wireEvents();
  void addToShell();
  void moveMouse(SurfacePoint at);
  void pressKey(int& keyCode, int shift);
  void pressEsc();
  void releaseKey(int keyCode, int shift);
  void pressCharacter(int& keyAscii);
  void releaseMouse(MouseButton button, SurfacePoint at);
  void takeWordOrSentence();
  void ChonCauSpace();
  void releaseSpace();
  void lookUp();
  /// What a click or Space does in the guide text, by places of that one text.
  void lookUpInGuide();
  void speakAgain();
  void readAloud();

  Controls& controls_;
  SharedState& state_;
  Shell& shell_;
  PageServices services_;
  SentencePick sentences_;
  ReadAloud aloud_;
  int ViTriGiuSpace_ = 0; ///< caret to go back to when Space is let go
};

} // namespace talvora
