// What the learner's pointer and keys do to the form, and what the clicks and strokes do that the
// program sends itself. Every front delivers through it, so that all of them do the same.
#pragma once

#include "platform/Input.h"
#include "surface/Form.h"
#include "surface/VirtualScreen.h"

namespace talvora {

/// Which button of the mouse is down while the pointer moves.
enum class MouseHeld { None, Left, Other };

/// Points are twips of the form; `shift` holds the modifiers that are down.
class FormInput {
 public:
  explicit FormInput(Form& form) : form_(form) {}
  FormInput(const FormInput&) = delete;
  FormInput& operator=(const FormInput&) = delete;

  // -- The pointer.

  /// While a control is pressed its moves are drags, of the left button, and reach no other one.
  void move(SurfacePoint at, int shift, MouseHeld held);
  /// What lies under the pointer gets the keyboard and the press.
  void press(MouseButton button, int shift, SurfacePoint at);
  /// The control that took the press gets the release; it is clicked when the pointer is still over
  /// it.
  void release(MouseButton button, int shift, SurfacePoint at);
  /// The second press of the left button's double click.
  void doubleClick(int shift, SurfacePoint at);
  /// The wheel turns so far over whatever lies there, in twips, down when positive.
  void turnWheel(int twips, SurfacePoint at);
  /// The pointer has come to a point, of which nobody is told.
  void pointerCame(SurfacePoint at) noexcept { pointer_ = at; }

  /// A press whose release goes elsewhere is over: a box has opened, or another window is in front.
  void endPress() noexcept { pressed_ = nullptr; }
  /// A control was pressed and has not got its release yet, nor has the keyboard passed on since.
  [[nodiscard]] bool holdsPress() const noexcept { return pressedControl() != nullptr; }
  [[nodiscard]] SurfacePoint pointer() const noexcept { return pointer_; }
  /// The control under the pointer, or null.
  [[nodiscard]] Control* hovered() const { return form_.controlAt(pointer_); }
  /// The control that a pointer moved to a point means, or null.
  [[nodiscard]] Control* meantAt(SurfacePoint at) const;

  // -- Keys go to whatever has the keyboard. A modifier's own stroke carries its bit while it goes
  //    down and not while it comes up.

  /// `character` is 0 for a key without.
  void pressKey(int keyCode, int shift, char character);
  void releaseKey(int keyCode, int shift);

  // -- What the program sends itself.

  /// A whole click, or half a stroke. A press that the learner holds goes on.
  void deliver(const SyntheticEvent& event, int shift);
  /// The program has moved the pointer, and tells what it means there. A press goes on.
  void deliverMove(SurfacePoint at, int shift);

 private:
  void click(const SyntheticClick& click, int shift);
  /// What a press does to the control that holds it.
  template <class Deed>
  void deliverPress(Control& control, Deed deed);
  [[nodiscard]] Control* pressedControl() const noexcept;

  Form& form_;
  SurfacePoint pointer_;
  Control* pressed_ = nullptr;
  bool pressing_ = false;         ///< the program answers the press
  unsigned movesWhenPressed_ = 0; ///< of the keyboard, when the press was answered
};

} // namespace talvora
