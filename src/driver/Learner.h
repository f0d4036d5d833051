// What a learner does at a scripted machine: clicks, strokes and moves as a desktop would deliver
// them, together with what the program sends itself in answer.
#pragma once

#include "platform/scripted/KeyNames.h"
#include "platform/scripted/ScriptedMachine.h"
#include "program/Program.h"

#include <functional>
#include <optional>
#include <string>
#include <vector>

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

/// Every deed ends with the delivery of what the program sent itself. A failure that is thrown in
/// it ends the program and is kept as a text.
class Learner {
 public:
  Learner(ScriptedMachine& machine, Program& program) : machine_(machine), program_(program) {}
  Learner(const Learner&) = delete;
  Learner& operator=(const Learner&) = delete;

  void start();
  void close();
  void wait(int ms);

  /// What a click on a control would meet instead of it, at the character `caret` of a surface or
  /// in the middle of a button: the control that covers it there; null when nothing does.
  [[nodiscard]] const Control* coverOf(const Button& button) const;
  [[nodiscard]] const Control* coverOf(const Surface& surface, int caret) const;

  /// The pointer goes to the middle of a menu button, which then is clicked.
  void click(Button& button);
  /// The pointer goes there, and the animation may show so many pictures.
  void hover(Button& button, int frames);
  /// The pointer goes to a character, which is scrolled into view first. Gives the point where the
  /// pointer is in the end, in twips relative to the surface.
  SurfacePoint mouse(Surface& surface, const MouseGesture& gesture);
  void move(Surface& surface, SurfacePoint at);

  /// A key goes to the control `on`, which is given the keyboard first, or to whatever has it.
  void strike(const ScriptedKey& key, int shift, Stroke stroke, Control* on);
  /// Whole strokes, one after the other; only the first gives `on` the keyboard.
  void type(const std::vector<ScriptedKey>& keys, Control* on);

  /// Ends the program for a reason of the machine's own.
  void fail(const std::string& reason);
  /// What ended the program, or an empty text.
  [[nodiscard]] const std::string& failure() const noexcept { return failure_; }

 private:
  void perform(const std::function<void()>& deed);
  /// Throws FatalFailure when a file of the pack became shorter while it was read.
  static void tellOfShrunkFile();
  /// Delivers one input event, unless the program has ended, and what the program sends in answer.
  void deliver(const std::function<void()>& event);
  void deliverSynthetic();
  void deliverSynthetic(const SyntheticClick& click);
  void deliverSynthetic(const SyntheticKey& stroke);
  void deliverPointerMove();
  void moveOver(Control* control, SurfacePoint formPoint);
  void press(Surface& surface, const MouseGesture& gesture, SurfacePoint point);
  [[nodiscard]] const Control* coverAt(const Control& control, SurfacePoint formPoint) const;
  void pointAtMiddle(const Button& button);
  SurfacePoint pointAtCharacter(Surface& surface, int caret);
  void pressKey(const ScriptedKey& key, int shift);
  void releaseKey(const ScriptedKey& key, int shift);

  void placePointer(SurfacePoint formPoint);
  [[nodiscard]] SurfacePoint formPointOf(PixelPoint pixel) const;
  /// Height of the caption strip above the form, in twips.
  [[nodiscard]] int captionHeight() const;

  ScriptedMachine& machine_;
  Program& program_;
  std::string failure_;
  // The pointer as it was placed last: pixels are coarser than the twips of events.
  PixelPoint placedPixel_;
  SurfacePoint placedPoint_;
};

} // namespace talvora
