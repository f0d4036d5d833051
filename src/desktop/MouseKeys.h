// Keys that do what else only a mouse does: clicks at the caret, lines of the vocabulary that are
// marked and deleted, the lessons that an explanation names.
#pragma once

#include "desktop/EventBridge.h"
#include "surface/FormInput.h"
#include "surface/Surface.h"

#include <functional>

class QKeyEvent;

namespace talvora {

class MouseKeys {
 public:
  MouseKeys(Form& form, FormInput& input, EventBridge& bridge)
      : form_(form), input_(input), bridge_(bridge) {}

  /// Called with a pixel of the virtual screen to which a click by key takes the pointer.
  std::function<void(PixelPoint at)> movePointer = [](PixelPoint) {};

  /// True when the key did a mouse's work, or would have and found nothing to do it on; the program
  /// then does not hear of the key.
  bool press(const QKeyEvent& event);
  /// True when the program must not hear that a key was let go: a page takes that as the end of
  /// what is shown and of what is marked.
  bool release(const QKeyEvent& event);
  /// Shift is down as part of a click by key: what the program clicks in answer is without it.
  [[nodiscard]] bool shiftClicks() const noexcept { return shiftClicks_; }

 private:
  bool click(const QKeyEvent& event);
  void clickAtCaret(const Surface& surface, MouseButton button);
  /// Offers to delete the lines that the selection touches; false where there are none.
  bool deleteLines();
  /// Drags with the left button from one caret to another.
  void drag(Surface& surface, int from, int to);
  /// Goes into an explanation and from one lesson that it names to the next; false where there is
  /// none.
  bool goToLessonLink();
  /// The pixel of the virtual screen at which a click goes to a caret.
  [[nodiscard]] PixelPoint pixelOf(const Surface& surface, int caret) const;
  /// The vocabulary, when it has the keyboard; else null.
  [[nodiscard]] Surface* vocabulary() const;

  Form& form_;
  FormInput& input_;
  EventBridge& bridge_;
  bool shiftClicks_ = false;
};

} // namespace talvora
