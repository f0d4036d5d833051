// Keys that do what else only a mouse does: clicks at the caret, lines of the vocabulary that are
// marked and deleted, the lessons that an explanation names.
#pragma once

#include "fronts/KeyTable.h"
#include "surface/FormInput.h"
#include "surface/Surface.h"

#include <functional>
#include <utility>

namespace talvora {

/// Keys that do a click's work and that the program itself does not know.
namespace key {
inline constexpr int Menu = 93;
inline constexpr int F10 = 121;
} // namespace key

class MouseKeys {
 public:
  /// Runs what an event does to the program, and catches what must not leave it.
  using Deliver = std::function<void(const std::function<void()>& deed)>;

  MouseKeys(Form& form, FormInput& input, Deliver deliver)
      : form_(form), input_(input), deliver_(std::move(deliver)) {}

  /// Called with a pixel of the virtual screen to which a click by key takes the pointer.
  std::function<void(PixelPoint at)> movePointer = [](PixelPoint) {};

  /// True when the key did a mouse's work, or would have and found nothing to do it on; the program
  /// then does not hear of the key.
  bool press(int keyCode, int shift, bool repeats);
  /// True when the program must not hear that a key was let go: a page takes that as the end of
  /// what is shown and of what is marked.
  bool release(int keyCode);
  /// The modifiers that are down. Shift as part of a click by key does not count: what the program
  /// clicks in answer is without it.
  [[nodiscard]] int shiftDown(const KeyTable& keys) const;

 private:
  bool click(int keyCode, int shift, bool repeats);
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
  Deliver deliver_;
  bool shiftClicks_ = false;
};

} // namespace talvora
