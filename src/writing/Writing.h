// Writing practice: the sentences of a reading text are rebuilt from their translations with the
// word ordering drill. The menu does not lead here yet; its button says so.
#pragma once

#include "exercises/XepTu.h"
#include "lessons/WordHelp.h"
#include "reading/ReadingPage.h"
#include "reading/ReadingText.h"
#include "shell/Shell.h"
#include "stores/Stores.h"
#include "surface/Form.h"
#include "surface/State.h"
#include "writing/WritingControls.h"

namespace talvora {

class Writing {
 public:
  Writing(Form& form, WritingControls& controls, SharedState& state, const Stores& stores,
          Shell& shell, PageServices services, XepTu& ordering);

  /// Opens the task of the current line, with its words shuffled.
  void MoViet();
  /// Paints the next task.
  void VeViet(Surface& surface) { ordering_.draw(surface, XepTu::Foot::Links); }
  /// Turns the caret in the list into a selected line and `SoBaiChon`.
  void ChonDongViet();
  /// Goes back from a task to the list.
  void ThoatViet2();
  /// Leaves the list, or first the task that was opened from it.
  void ExitRW1();

 private:
  void wireList();
  void wireTask();
  void openTask();
  void openLine();
  void pressOnList(int& keyAscii);
  void pressOnTask(int& keyAscii);
  void releaseMouse(MouseButton button, SurfacePoint at);
  void releaseLeft();
  void stepBack();

  Form& form_;
  WritingControls& controls_;
  SharedState& state_;
  const Stores& stores_;
  Shell& shell_;
  PageServices services_;
  WordHelp words_;
  XepTu& ordering_;
  ReadingText text_;
};

} // namespace talvora
