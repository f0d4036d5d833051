// Your vocabulary: the words that the learner took from texts, with the sentences they came from,
// listed on `Rchon`.
#pragma once

#include "learner/LearnerWords.h"
#include "reading/ReadingControls.h"
#include "reading/ReadingPage.h"
#include "reading/SentencePick.h"
#include "shell/Shell.h"
#include "stores/Stores.h"
#include "surface/State.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora {

/// True when a text holds at least one digit and one small letter: a selection that covers a row
/// number and a word, which only a drag across rows yields.
[[nodiscard]] bool CoSoVaChu(std::string_view text);

class TuVungChon {
 public:
  TuVungChon(ReadingControls& controls, SharedState& state, Stores& stores, Shell& shell,
             PageServices services, ReadingText& text, LearnerWords& words);

  /// Reads the list from disk. What is not there to be read is made again from memory.
  void NapTuVung();
  /// Writes the list when words were added. What goes wrong is told; the list stays in memory and
  /// is written later.
  void LuuTuVung();
  /// The same without a word about it, for the end of the program.
  void keep();
  /// Adds `TuHienTai` with its sentence; a word that is there already or too long is refused. Its
  /// place in the journal makes it outlive whatever ends the program.
  void ThemTuVung();
  /// Whether the list holds `TuHienTai`; then `TuVungDangXem` takes it.
  bool CoTuVung();
  [[nodiscard]] int SoTuVung() const noexcept { return static_cast<int>(TuVung_.size()); }

  /// The section: shows the list, or says that there is none yet.
  void open();
  void ExitRChon();

  void declare(Variables& variables) const;

  /// Builds the list of texts if that was not done, which loads the vocabulary; set by the program.
  std::function<void()> ensureListBuilt = [] {};
  /// Forgets that the list of texts was built; set by the program.
  std::function<void()> forgetList = [] {};

 private:
  void wireEvents();
  void addToShell();
  /// Puts the list of texts away, which the section builds to have the vocabulary loaded.
  void leaveList();
  void releaseMouse(MouseButton button, SurfacePoint at);
  void HienTuVung();
  /// Takes the word of the row at the caret and marks it.
  void ChonDongChon();
  void TraTuVung();
  void XemCau();
  void DocCauTuVung();
  /// Lays the sentence out in the popup, with the word in red.
  void VeCauTuVung(const std::string& text);
  void XoaTuVung();
  void removeRows(int first, int last);
  [[nodiscard]] int rowOf(int caret) const;
  void store();
  void tellOfProblem();

  ReadingControls& controls_;
  SharedState& state_;
  Stores& stores_;
  Shell& shell_;
  PageServices services_;
  ReadingText& text_;
  LearnerWords& words_;
  std::vector<VocabularyWord> TuVung_; ///< element i is word i + 1
  VocabularyWord TuVungDangXem_;       ///< the word that is being looked at
  std::string ChuoiCau_;               ///< its sentence
  bool DaDoiTuVung_ = false;           ///< words were added and are not stored yet
};

} // namespace talvora
