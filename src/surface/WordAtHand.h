// The word or sentence at hand, and who may change it.
#pragma once

#include "surface/SurfacePoint.h"
#include "surface/Variables.h"

#include <string>
#include <string_view>
#include <utility>

namespace talvora {

/// The word or sentence at hand, and the pointer's part in it.
struct CurrentWord {
  std::string TuHienTai;     ///< the word or sentence that speech says
  std::string NghiaHienTai;  ///< its entry
  std::string ThongBaoHD;    ///< translation or message that the popup shows instead of an entry
  std::string TuDaBam;       ///< the word as it was clicked, before any reduction
  std::string NghiaD;        ///< Vietnamese-side entry on show; "?" means that nothing was found
  int ViTriCaret = 0;        ///< saved caret of the surface in use
  int ViTriCaretR1 = 0;      ///< saved caret of the list behind it
  SurfacePoint ViTriChuot;   ///< stored pointer, twips on its surface
  bool ChoGiai = false;      ///< a right click is pending
  bool CoDupChuot = false;   ///< a double click or Space asks for the sentence, not the word
  bool GiuSpace = false;     ///< Space is held: the sentence stays however the pointer moves
  bool XoaTuKhiDong = false; ///< the word is cleared when the popup closes
  bool DaChonRTD = false;    ///< a pick from the look-up list is under way; the focus stays put

  void declare(Variables& variables) const;
};

/// Keeps that record for all who read it. Only what is said here changes it.
class WordAtHand {
 public:
  [[nodiscard]] const CurrentWord& record() const noexcept { return record_; }

  // -- The word or sentence.

  void take(std::string_view word) { record_.TuHienTai = word; }
  void drop() { record_.TuHienTai.clear(); }
  /// The word was found in another of its forms, which is at hand from now on; nothing is shown in
  /// the place of its entry.
  void takeForm(std::string_view form) {
    record_.TuDaBam = std::exchange(record_.TuHienTai, std::string(form));
    record_.NghiaHienTai.clear();
    record_.ThongBaoHD.clear();
  }
  /// The word is again as it was clicked.
  void takeClickedForm() { record_.TuHienTai = record_.TuDaBam; }
  /// The popup has been taken down.
  void popupClosed() {
    if (std::exchange(record_.XoaTuKhiDong, false)) record_.TuHienTai.clear();
  }
  /// The word goes with the next popup.
  void dropWithPopup() noexcept { record_.XoaTuKhiDong = true; }

  // -- What is said of it.

  void takeEntry(std::string_view entry) { record_.NghiaHienTai = entry; }
  void dropEntry() { record_.NghiaHienTai.clear(); }
  /// A translation or message stands in the place of the entry.
  void showInstead(std::string_view message) { record_.ThongBaoHD = message; }
  void dropMessage() { record_.ThongBaoHD.clear(); }
  /// The message is what is looked up, too.
  void takeMessageAsEntry() { record_.NghiaHienTai = record_.ThongBaoHD; }
  void takeSideEntry(std::string_view entry) { record_.NghiaD = entry; }
  void dropSideEntry() { record_.NghiaD.clear(); }

  // -- Where the learner was.

  void keepCaret(int caret) noexcept { record_.ViTriCaret = caret; }
  void keepListCaret(int caret) noexcept { record_.ViTriCaretR1 = caret; }
  /// The list is in use again.
  void backToList() noexcept { record_.ViTriCaret = record_.ViTriCaretR1; }
  void pointAt(SurfacePoint at) noexcept { record_.ViTriChuot = at; }
  /// A click with its place and caret.
  void clickedAt(SurfacePoint at, int caret) noexcept {
    pointAt(at);
    keepCaret(caret);
  }
  /// A page is opened: no entry, no caret and no double click of another one is left.
  void enterPage() {
    dropEntry();
    keepCaret(0);
    askForWord();
  }

  // -- What the next click or key is for.

  /// The next left click is the one that the program has sent for a right click.
  void arm() noexcept { record_.ChoGiai = true; }
  void disarm() noexcept { record_.ChoGiai = false; }
  /// True once for a click that was armed.
  [[nodiscard]] bool takeArmed() noexcept { return std::exchange(record_.ChoGiai, false); }
  void askForSentence() noexcept { record_.CoDupChuot = true; }
  void askForWord() noexcept { record_.CoDupChuot = false; }
  /// True once for what was asked by a double click.
  [[nodiscard]] bool takeDoubleClick() noexcept { return std::exchange(record_.CoDupChuot, false); }
  /// Space is held, and asks for the sentence.
  void holdSpace() noexcept {
    record_.GiuSpace = true;
    askForSentence();
  }
  void releaseSpace() noexcept {
    record_.GiuSpace = false;
    askForWord();
  }
  /// A pick from the look-up list is under way.
  void beginPick() noexcept { record_.DaChonRTD = true; }
  void endPick() noexcept { record_.DaChonRTD = false; }

 private:
  CurrentWord record_;
};

} // namespace talvora
