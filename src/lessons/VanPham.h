// The list of rule lessons on `RVP1`: lessons, group headings, and the lessons that the learner
// marks for a test of their own.
#pragma once

#include "lessons/LessonControls.h"
#include "lessons/LessonPage.h"
#include "shell/Shell.h"
#include "stores/Stores.h"
#include "surface/State.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string>

namespace talvora {

/// Whether a lesson can be marked, and whether it is.
enum class LessonMark : std::uint8_t { NotMarkable = 0, Unmarked = 1, Marked = 2 };

class VanPham {
 public:
  VanPham(LessonControls& controls, SharedState& state, const Stores& stores, Shell& shell,
          PageServices services);

  /// Enters the section.
  void open();
  /// Builds the list and the table of titles; every lesson is unmarked then. In section 5 nothing
  /// is shown. Throws FatalFailure when there are more headings than the table holds.
  void MoVanPham();
  /// Selects the line at the caret and sets `SoBaiChon`.
  void ChonDongVP();
  /// Whether any lesson is marked.
  [[nodiscard]] bool ConBaiChon() const;
  [[nodiscard]] bool isMarked(int lesson) const;
  /// Takes all marks off and draws the list anew; does nothing when there is none.
  void BoChonBai();
  /// Opens the lesson of the current line.
  void GoiRVP2();
  /// Leaves the lesson for the list.
  void ExitRVP2();
  /// Leaves the list.
  void ExitRVP1();
  /// The lesson page, which exercises open too.
  [[nodiscard]] LessonPage& page() noexcept { return page_; }

  void declare(Variables& variables) const;

  /// Starts a run of the items of the marked lessons; set by the program.
  std::function<void()> BatDauChon = [] {};

  bool BaiTuChon = false; ///< a run of items has its origin in this list and returns to it

 private:
  void wireEvents();
  void LapDanhSachVP();
  /// Appends lesson n's line to the list.
  void appendLine(int n);
  void addHeading(int n);
  void showList(const std::string& list);
  void ToMauNhom();
  void pressKey(int keyCode);
  void jumpToNextHeading();
  void jumpToPreviousHeading();
  /// The way over the list's end brings the line to the top of the view.
  void jumpTo(int caret);
  void pressCharacter(int& keyAscii);
  void pressEnter();
  void pressEsc();
  void releaseMouse(MouseButton button);
  void openClickedLine();
  void toggleMark();
  /// The next click marks, too, as long as a lesson is marked.
  void armWhileMarked();
  void returnFocus();
  [[nodiscard]] LessonMark& markOf(int lesson);

  LessonControls& controls_;
  SharedState& state_;
  const Stores& stores_;
  Shell& shell_;
  LessonPage page_;
  std::array<LessonMark, CurrentList::LessonCount + 1> TrangThaiVP_{};
  std::string DanhSachGoc_; ///< the list as first shown
};

} // namespace talvora
