// The title list of reading texts, speaking texts and analysed texts, on `R1`, and the way from a
// line of it to the text on `R2`.
#pragma once

#include "learner/LearnerData.h"
#include "reading/ReadingControls.h"
#include "reading/ReadingPage.h"
#include "reading/ReadingText.h"
#include "reading/TuVungChon.h"
#include "shell/Shell.h"
#include "stores/Stores.h"
#include "surface/State.h"

#include <functional>
#include <string>

namespace talvora {

class Reading {
 public:
  Reading(ReadingControls& controls, SharedState& state, Stores& stores, Shell& shell,
          PageServices services, Clock& clock, LearnerData& own);

  /// Common opening of the sections that begin with a title list.
  void BatdauBut();
  /// Leaves the list, or first the text that was opened from it.
  void ExitR1();
  /// Stores what leaving the list would store, and leaves nothing: the program ends.
  void keep();
  /// Takes the text off and goes back to its line of the list.
  void ExitR2();
  /// Opens the text of the current line.
  void GoiR2();
  /// Fetches the stored caret and builds the list, once for each time the section is entered.
  void MoDanhSachBai();
  /// Selects the line at the caret and sets `SoBaiChon`.
  void ChonDongR1(Surface& surface);

  [[nodiscard]] ReadingPage& page() noexcept { return page_; }
  [[nodiscard]] ReadingText& text() noexcept { return text_; }
  [[nodiscard]] TuVungChon& vocabulary() noexcept { return vocabulary_; }

  void declare(Variables& variables) const;

  /// What a right click on a line does; set by the program.
  std::function<void()> MoNgheViet;

  bool DaNapDanhSach = false; ///< the section is entered and its list is built
  int ViTriDanhSachBai = 0;   ///< caret in the list, kept in data.Kcu

 private:
  void wireEvents();
  void addToShell();
  void XayDanhSachBai();
  /// Appends text i's title line, a heading or an indented title, to the list.
  void appendTitle(int i);
  void VeDauMuc();
  void styleHeading(int caret);
  void showList();
  [[nodiscard]] int caretRecord() const;
  void storeCaret();
  [[nodiscard]] bool lineOpens() const;
  void jumpToNextHeading();
  void jumpToPreviousHeading();
  /// The way over the list's end brings the line to the top of the view.
  void jumpTo(int caret);
  /// Opens the recording of a listening script.
  void openVoice();
  void openLine();
  void pressKey(int& keyCode);
  void releaseKey(int keyCode);
  void pressCharacter(int pressed);
  void pressEsc();
  void releaseMouse(MouseButton button);

  ReadingControls& controls_;
  SharedState& state_;
  Stores& stores_;
  Shell& shell_;
  PageServices services_;
  LearnerData& own_;
  ReadingText text_;
  ReadingPage page_;
  TuVungChon vocabulary_;
};

} // namespace talvora
