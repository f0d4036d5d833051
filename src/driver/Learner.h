// What a learner does at a scripted machine: clicks, strokes and moves as a desktop would deliver
// them, together with what the program sends itself in answer.
#pragma once

#include "driver/Hand.h"
#include "platform/scripted/ScriptedMachine.h"
#include "program/Program.h"

#include <functional>
#include <string>
#include <vector>

namespace talvora {

/// Every deed ends with the delivery of what the program sent itself. A failure that is thrown in
/// it ends the program and is kept as a text.
class Learner {
 public:
  Learner(ScriptedMachine& machine, Program& program)
      : machine_(machine), program_(program),
        hand_(machine, program.form(), program.input(), [&program] { return program.running(); }) {}
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
  [[nodiscard]] const Control* coverAt(const Control& control, SurfacePoint formPoint) const;

  ScriptedMachine& machine_;
  Program& program_;
  Hand hand_;
  std::string failure_;
};

} // namespace talvora
