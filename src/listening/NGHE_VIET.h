// Dictation: a sentence of a text is spoken, its translation stands above, and the learner types it
// letter by letter. Only what is right is taken, so that what is typed always begins the sentence.
#pragma once

#include "lessons/WordHelp.h"
#include "listening/ListeningControls.h"
#include "platform/Clock.h"
#include "reading/ReadingPage.h"
#include "reading/ReadingText.h"
#include "shell/Shell.h"
#include "stores/Stores.h"
#include "surface/Form.h"
#include "surface/State.h"

#include <functional>
#include <string>

namespace talvora {

class NGHE_VIET {
 public:
  NGHE_VIET(Form& form, ListeningControls& controls, SharedState& state, Stores& stores,
            Shell& shell, PageServices services, Clock& clock);

  /// Opens dictation on the line `SoBaiChon` of the title list; the guide text has none.
  void MoNgheViet();
  /// Steps by 1 or -1 sentence and shows it. Behind the last but one of the table dictation ends.
  void QuaCauViet(int d);
  /// Takes a typed character; "^" gives a letter away.
  void GoKyTu(char c);
  /// Ends dictation and goes back to the list.
  void ThoatViet();

  void declare(Variables& variables) const;

  /// Fits the red plate behind `RHDBT`; set by the program.
  std::function<void()> BongLoiGiai = [] {};
  /// Selects the current line of the title list; set by the program.
  std::function<void()> ChonDongR1 = [] {};

 private:
  void wireEvents();
  void openVoice();
  void BoCucViet();
  void KhungDo();
  void XoaViet();
  void takeSentence();
  void LocCau();
  void NhayDo(Surface& surface);
  void HienDich();
  /// Says the sentence, whatever word was looked up meanwhile.
  void speakAgain();
  void pressKey(int& keyCode);
  void pressEsc();
  void pressCharacter(int& keyAscii);
  void releaseKey(int keyCode);
  void moveMouse(SurfacePoint at);
  void releaseMouse(MouseButton button, SurfacePoint at);

  Form& form_;
  ListeningControls& controls_;
  SharedState& state_;
  Stores& stores_;
  Shell& shell_;
  PageServices services_;
  WordHelp words_;
  Clock& clock_;
  ReadingText text_;
  int CauViet_ = 0;    ///< current sentence, from 2; the title is sentence 1
  std::string CauMau_; ///< the sentence to type
  int ViTriGo_ = 0;    ///< how many of its characters are done
  int CaretViet_ = 0;  ///< where the caret of `Rviet` must stay
  int listCaret_ = 0;  ///< caret of the list, to go back to
};

} // namespace talvora
