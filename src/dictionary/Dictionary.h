// The English dictionary as the sections use it: word list, look-up, popup and look-up list.
#pragma once

#include "dictionary/DictionaryControls.h"
#include "dictionary/LookUp.h"
#include "dictionary/LookUpList.h"
#include "dictionary/Popup.h"
#include "dictionary/WordList.h"
#include "shell/Shell.h"
#include "sound/Speech.h"
#include "stores/Stores.h"
#include "surface/Form.h"
#include "surface/State.h"

namespace talvora {

class Dictionary {
 public:
  Dictionary(Form& form, DictionaryControls& controls, SharedState& state, Stores& stores,
             Shell& shell, Speech& speech);
  Dictionary(const Dictionary&) = delete;
  Dictionary& operator=(const Dictionary&) = delete;

  /// Loads the word list, with the menu's buttons as its progress.
  /// Throws FatalFailure when a file is missing or the list has no room.
  void NapTuDien();
  /// Looks `TuHienTai` up with all attempts and shows its entry, or shows the text that
  /// `NghiaHienTai` already holds. Without an entry nothing is shown.
  void TraTu();
  /// Shows the entry of the line picked in the look-up list.
  void TraTuGan();
  /// Opens the look-up list with a typed letter.
  void MoDanhSachTu(char character) { list_.MoDanhSachTu(character); }

  [[nodiscard]] Popup& popup() noexcept { return popup_; }
  [[nodiscard]] LookUpList& list() noexcept { return list_; }
  [[nodiscard]] const WordList& words() const noexcept { return words_; }
  [[nodiscard]] LookUp& lookUp() noexcept { return lookUp_; }

  void declare(Variables& variables) const;

 private:
  void wirePopup();
  void pressPopupCharacter(int code);
  /// The text behind the popup lets the word go that the popup showed.
  void letWordGo();
  /// Looks up the word of the popup that a click has met, at a point of the popup.
  void lookUpInPopup(SurfacePoint at);
  /// The word at hand and its entry as one text; empty without an entry.
  [[nodiscard]] std::string headed(const std::string& entry) const;
  /// Speaks the word at hand and shows what is said of it.
  void show(const std::string& text);

  DictionaryControls& controls_;
  SharedState& state_;
  const Stores& stores_;
  Shell& shell_;
  Speech& speech_;
  WordList words_;
  LookUp lookUp_;
  Popup popup_;
  LookUpList list_;
};

} // namespace talvora
