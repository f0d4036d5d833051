// The look-up list: the whole word list on `RTD`, in which the learner types to jump to a word.
#pragma once

#include "dictionary/DictionaryControls.h"
#include "dictionary/LookUp.h"
#include "dictionary/WordList.h"
#include "shell/Shell.h"
#include "surface/Form.h"
#include "surface/State.h"

#include <functional>
#include <string>

namespace talvora {

class LookUpList {
 public:
  /// The most characters of a typed word.
  static constexpr std::size_t LongestWord = 50;

  LookUpList(Form& form, DictionaryControls& controls, SharedState& state, Shell& shell,
             WordList& words, LookUp& lookUp);

  /// Opens the list with a typed letter; its first opening loads the text.
  void MoDanhSachTu(char character);
  /// One keystroke in the list, by its character code; 8 takes the last character back.
  void GoTu(int code);
  /// Selects the line at the caret and sets `TuChon` and `ChuChon`.
  void ChonDongRTD();
  /// Picks the line at the caret: the list closes and the word's entry is shown.
  void ChonTuRTD();
  /// Closes the list, and the caption that stood before comes back; unless a pick is under way the
  /// focus goes back too.
  void DongDanhSachTu();

  void declare(Variables& variables) const;

  /// Shows the entry of `TuChon`; set by the dictionary.
  std::function<void()> TraTuGan = [] {};

  int TuChon = 0;        ///< line of the word list that is selected, from 1
  std::string ChuChon;   ///< its text
  bool DaNapRTD = false; ///< the list holds its text

 private:
  void wireEvents();
  void pressCharacter(int code);
  void releaseKey(int keyCode);
  void pressMouse(MouseButton button);
  void load();
  void saveCarets();
  /// Closes the list without a pick.
  void giveUp();
  /// Empties the typed word, if there is one; false when there is none.
  bool clearTypedWord();
  /// The typed word after a keystroke.
  [[nodiscard]] std::string typedWordWith(char character) const;
  void showTypedWord();
  /// Brings the line nearest to the typed word near the top of the view.
  void jumpToTypedWord();
  void pointAtPopup();

  Form& form_;
  DictionaryControls& controls_;
  SharedState& state_;
  Shell& shell_;
  WordList& words_;
  LookUp& lookUp_;
  std::string captionBehind_; ///< the caption to come back to
};

} // namespace talvora
