// The reading text on `R2`: a click takes a word, a double click or Space a sentence.
#pragma once

#include "dictionary/Dictionary.h"
#include "dictionary/VietnameseSide.h"
#include "reading/ReadAloud.h"
#include "reading/ReadingControls.h"
#include "reading/ReadingText.h"
#include "reading/SentencePick.h"
#include "shell/Shell.h"
#include "sound/AmthanhThuc.h"
#include "sound/Speech.h"
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

/// Explains the words of an analysed text.
class TextExplanations {
 public:
  virtual ~TextExplanations() = default;

  /// Reads the explanations of text n, from 1.
  virtual void load(int n) = 0;
  /// Explains the word at the caret.
  virtual void explain() = 0;
  /// Ends the explanation on show: the text was clicked, or a key was pressed in it.
  virtual void leave() = 0;
  virtual void leaveOnKey(int keyCode) = 0;
  virtual void followPointer(SurfacePoint at) = 0;
};

class ReadingPage {
 public:
  ReadingPage(ReadingControls& controls, SharedState& state, Shell& shell, PageServices services,
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
  /// Who explains analysed texts from now on.
  void explainBy(TextExplanations& explanations) { explanations_ = &explanations; }
  /// Reads the explanations of analysed text n, from 1, that is shown.
  void loadExplanations(int n);

  bool LaBaiHuongDan = false; ///< the text is the program's guide, with its special clicks
  int ViTriTieuDe = 0;        ///< length of the title line plus 2, where the body starts

 private:
  void wireEvents();
  void addToShell();
  /// The explanations of the text on show; null when it is none that is analysed.
  [[nodiscard]] TextExplanations* explanations() const noexcept;
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

  ReadingControls& controls_;
  SharedState& state_;
  Shell& shell_;
  PageServices services_;
  SentencePick sentences_;
  ReadAloud aloud_;
  TextExplanations* explanations_ = nullptr;
  int ViTriGiuSpace_ = 0; ///< caret to go back to when Space is let go
};

} // namespace talvora
