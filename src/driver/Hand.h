// The learner's hand at a scripted machine: moves, clicks and strokes as a desktop would deliver
// them, each followed by what the program sends itself in answer.
#pragma once

#include "platform/scripted/KeyNames.h"
#include "platform/scripted/ScriptedMachine.h"
#include "surface/Button.h"
#include "surface/Form.h"
#include "surface/FormInput.h"

#include <functional>
#include <optional>
#include <utility>

namespace talvora {

/// Which halves of a key stroke are delivered.
enum class Stroke { Down, Up, Whole };
enum class Clicks { Once, Twice };

/// A click on a surface, or a drag.
struct MouseGesture {
  int at = 0;            ///< caret of the character under the pointer
  std::optional<int> to; ///< caret where a drag ends
  MouseButton button = MouseButton::Left;
  Clicks clicks = Clicks::Once;
  int shift = shift::None;
};

class Hand {
 public:
  /// Nothing is delivered any more when `goesOn` says no.
  Hand(
      ScriptedMachine& machine, Form& form, FormInput& input,
      std::function<bool()> goesOn = [] { return true; })
      : machine_(machine), form_(form), input_(input), goesOn_(std::move(goesOn)) {}

  /// Delivers one event, and what the program sends in answer.
  /// Throws std::runtime_error when that has no end.
  void deliver(const std::function<void()>& event);
  /// What the program has sent itself.
  void deliverSent();

  /// The pointer goes to the middle of a menu button.
  void pointAt(Button& button);
  /// The pointer goes there, and the left button goes down and comes up.
  void click(Button& button);
  /// The pointer goes to a character, which is scrolled into view first. Gives the point where the
  /// pointer is in the end, in twips relative to the surface.
  SurfacePoint mouse(Surface& surface, const MouseGesture& gesture);
  /// The pointer comes to a point of that surface, whatever lies over it.
  void move(Surface& surface, SurfacePoint at);
  /// What the pointer means is told of the place to which the program has moved it, if it has.
  void followPointer();

  /// A key goes to whatever has the keyboard.
  void strike(const ScriptedKey& key, int shift, Stroke stroke);

 private:
  void press(Surface& surface, const MouseGesture& gesture, SurfacePoint at);
  SurfacePoint pointAtCharacter(Surface& surface, int caret);
  void placePointer(SurfacePoint formPoint);
  void pressKey(const ScriptedKey& key, int shift);
  void releaseKey(const ScriptedKey& key, int shift);
  void send(const SyntheticEvent& event);

  ScriptedMachine& machine_;
  Form& form_;
  FormInput& input_;
  std::function<bool()> goesOn_;
};

} // namespace talvora
