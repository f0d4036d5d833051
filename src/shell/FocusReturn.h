// Gives the focus and the caret back to the surface that the learner was working on when a popup
// closes. The sections register what that means for their surfaces.
#pragma once

#include "surface/Rows.h"
#include "surface/State.h"
#include "surface/Surface.h"

#include <functional>

namespace talvora {

/// Who gets the focus back: the first of these that is visible and whose condition holds.
enum class FocusRank {
  LinkedLesson,
  Dictation,
  Ordering,
  Explanation,
  FillIn,
  Choice,
  Mistake,
  Vocabulary,
  LessonList,
  Lesson,
  Listening,
  WritingList,
  TextList,
  Text,
  Count
};

class FocusReturn {
 public:
  explicit FocusReturn(const CurrentWord& word) : word_(word) {}

  /// The first visible surface of the chain whose condition holds gets its caret and the focus. A
  /// page whose selection stands gets neither; it inherits the focus from what is hidden over it.
  void TraLaiBeMat();

  using Condition = std::function<bool()>;

  /// A surface takes its place in the chain, on a condition, and takes the shared caret.
  /// Throws std::logic_error when the place is taken.
  void onReturnTo(
      FocusRank rank, Surface& surface, Condition holds = [] { return true; });
  /// The same, and it does something else than taking the shared caret.
  void onReturnTo(FocusRank rank, Surface& surface, Condition holds, std::function<void()> action);
  /// The condition that nothing is selected on a surface.
  [[nodiscard]] static Condition withoutSelection(const Surface& surface) {
    return [&surface] { return surface.SelLength() == 0; };
  }
  /// The condition that a page does not cover its list.
  [[nodiscard]] static Condition unlessVisible(const Surface& page) {
    return [&page] { return !page.Visible(); };
  }

  /// Throws std::logic_error when a place is nobody's. For the start.
  void check() const { rows_.check("focus"); }

 private:
  struct Row {
    Surface* surface;
    Condition holds;
    std::function<void()> action;
  };

  const CurrentWord& word_;
  Rows<FocusRank, Row> rows_;
};

} // namespace talvora
