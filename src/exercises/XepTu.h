// The word ordering drill: the words of an English sentence stand in a shuffled line under its
// translation, and a right click brings a word to the end of the right beginning. Without the
// shuffle the same pages are a reader, sentence by sentence.
#pragma once

#include "exercises/BackNextLinks.h"
#include "exercises/ExerciseControls.h"
#include "lessons/WordHelp.h"
#include "platform/Random.h"
#include "reading/ReadingPage.h"
#include "reading/ReadingText.h"
#include "shell/Shell.h"
#include "stores/Stores.h"
#include "surface/State.h"

#include <functional>
#include <string>
#include <string_view>

namespace talvora {

/// What the drill asks of the run of items in which it serves; set by the program.
struct OrderingRunCalls {
  /// Whether the run comes from marked lessons.
  std::function<bool()> BaiTuChon = [] { return false; };
  std::function<int()> SoCauChay = [] { return 0; };
  std::function<void()> CauKeTiep = [] {};
  /// Leaves the item of a bank that stands on a surface.
  std::function<void(Surface&)> ThoatBT = [](Surface&) {};
  /// Forgets the text under a shown answer.
  std::function<void()> clearChuCu = [] {};
  /// Goes back to the list of lessons and takes their marks off.
  std::function<void()> BoChonBai = [] {};
};

class XepTu {
 public:
  XepTu(ExerciseControls& controls, SharedState& state, const Stores& stores, Shell& shell,
        PageServices services, Random& random, BackNextLinks& sharedLinks);

  // -- Opening.

  /// Opens an item: `CauHoi` holds its body, `LoiGiai` its translations. The caller slides `Rxep`
  /// in. Throws FatalFailure when the item has more sentences than the table holds.
  void VaoXepTu(std::string_view LoiGiai);
  /// Opens the drill on the text that stands on `R2`, with its hint.
  void openFromText();
  /// Opens the drill on the sentence table as it stands, and slides `Rxep` in.
  void GoiRxep();
  /// A new run begins: no sentence of it was opened yet.
  void startRun() noexcept { sentencesOpened_ = 0; }
  void ThoatXep();

  // -- The drill, on `Rxep` or on the page of the writing section.

  /// Which foot a page gets: this drill's own, or the one of the sections that count their items.
  enum class Foot { Plain, Links };
  /// Draws the next sentence of at least four words; after 20 short ones the last stands.
  void VeXepTu(Surface& surface) { draw(surface, Foot::Plain); }
  void draw(Surface& surface, Foot foot);
  /// Shows the English sentence.
  void DapAnXep(Surface& surface);
  /// What Enter does: shows the sentence, or goes on from it.
  void pressEnter(Surface& surface);
  /// Goes on to another sentence.
  void CauXepMoi(Surface& surface);
  /// What every release begins with: the click is stored and the popup goes.
  void takeClick(const Surface& surface, SurfacePoint at);
  /// What a right click does: the left click that it sends moves a word.
  void arm();
  /// What the left click does that follows a right click.
  void releaseArmed(Surface& surface);
  /// Colours the right beginning of the line.
  void ToXep(Surface& surface);
  /// Moves the word that is selected behind the right beginning; it springs back when that does not
  /// grow.
  void DatTu(Surface& surface);
  void BoDat(Surface& surface);

  void declare(Variables& variables) const;

  OrderingRunCalls run;

  bool XepChay = false; ///< the words are shuffled; otherwise the sentences are only shown
  int ChiSoCau = 0;     ///< number of the current sentence, from 1
  int BuocXep = 0;      ///< how often Back was pressed; 0 after Next and at opening
  int DauDong = 0;      ///< caret where the line begins
  BackNextLinks& links; ///< the links at the page's foot, as all drills share them

 private:
  /// What the drill was opened from.
  enum class Origin { Item, Text, Lesson };

  void wireEvents();
  void releaseMouse(MouseButton button, SurfacePoint at);
  void releaseLeft();
  void pressCharacter(int& keyAscii);
  void releaseKey(int keyCode, int shift);

  /// Takes the next sentence that is long enough into `CauTiengAnh`.
  void findSentence();
  void advance();
  /// The characters of sentence k without its marks and line ends, trimmed.
  [[nodiscard]] std::string sentenceText(int k) const;
  void writeTask(Surface& surface);
  void writeLine(Surface& surface);
  void writeFoot(Surface& surface, Foot foot);
  /// Whether the selection lies inside the line.
  [[nodiscard]] bool selectsInLine(const Surface& surface) const;
  [[nodiscard]] int lineLength() const noexcept { return CuoiDong_ - 1 - DauDong; }
  void leaveSelfMadeTest();

  ExerciseControls& controls_;
  SharedState& state_;
  Shell& shell_;
  PageServices services_;
  WordHelp words_;
  Random& random_;
  const Stores& stores_;
  ReadingText text_;

  Origin origin_ = Origin::Text;
  int sentencesOpened_ = 0;  ///< items opened in the run since an answer was shown
  std::string CauTiengAnh_;  ///< the English sentence
  std::string CauTiengViet_; ///< its translation
  int SoTu_ = 0;             ///< its number of words
  std::string DongXep_;      ///< the line as it stands, with one ending blank
  std::string DongCu_;       ///< the last line that was accepted
  std::string DongMau_;      ///< the English sentence as a line
  int CuoiDong_ = 0;         ///< caret behind the line and its line end
  int BienDung_ = 0;         ///< length of the right beginning of the line
  bool DaXong_ = false;      ///< the answer has been shown
  bool ChoCau_ = false;      ///< the next Enter moves on
};

} // namespace talvora
