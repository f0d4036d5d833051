// The program as the fronts have it: `E` with everything behind it hidden.
#pragma once

#include "learner/FindFolders.h"
#include "platform/Platform.h"
#include "program/Ending.h"
#include "program/Procedures.h"
#include "program/ProgramControls.h"
#include "surface/Form.h"
#include "surface/FormInput.h"
#include "surface/Variables.h"

#include <memory>

namespace talvora {

class E;

class Program {
 public:
  Program(Platform& platform, Folders folders);
  Program(const Program&) = delete;
  Program& operator=(const Program&) = delete;
  ~Program();

  /// The start-up, in its order; returns when the menu stands, or when the program has ended.
  /// Throws FatalFailure when a file is missing.
  void Main();
  /// The close box of the window: asks, and ends the program unless the answer is No.
  void closeWindow();
  /// Stores what the learner has done so far; the program goes on.
  void keep();
  /// Ends the program without a question, as the system wants it.
  void closeAtOnce();
  /// Ends the program after a fatal failure; what the learner has taken is kept.
  void fail();

  [[nodiscard]] Ending ending() const noexcept;
  [[nodiscard]] bool running() const noexcept { return ending() == Ending::None; }

  [[nodiscard]] Form& form() noexcept;
  /// Where every front delivers what the learner does with pointer and keys.
  [[nodiscard]] FormInput& input() noexcept;
  [[nodiscard]] ProgramControls& controls() noexcept;
  [[nodiscard]] const Variables& variables() const noexcept;
  [[nodiscard]] const Procedures& procedures() const noexcept;
  /// The section last entered.
  [[nodiscard]] int section() const noexcept;
  /// Number of the menu button that was animated last.
  [[nodiscard]] int hoveredButton() const noexcept;
  /// The program is busy: start-up or dictation runs.
  [[nodiscard]] bool busy() const noexcept;

 private:
  std::unique_ptr<E> e_;
};

} // namespace talvora
