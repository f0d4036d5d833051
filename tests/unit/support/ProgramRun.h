// A whole program on a scripted machine, with stores of its own.
#pragma once

#include "driver/Hand.h"
#include "platform/scripted/ScriptedMachine.h"
#include "program/Program.h"
#include "support/TestFolder.h"
#include "tests/support/FaultyFiles.h"

#include <optional>
#include <string>
#include <vector>

namespace talvora::test {

/// A reading text of a test pack: a title line and a body in stored form, and its translation.
struct StoredText {
  int slot = 0;
  std::string text;        ///< up to, but without, its end mark
  std::string translation; ///< the same
};

class ProgramRun {
 public:
  explicit ProgramRun(const ScriptedOptions& options = {});
  /// On folders that are there already; nothing is written to them.
  explicit ProgramRun(const Folders& folders, const ScriptedOptions& options = {});

  /// Writes the stores data.vt and data.av, or the speaking ones, with these texts; other slots
  /// have the title "slot N".
  void writeTexts(const std::vector<StoredText>& texts, bool speaking = false) const;

  /// Runs the start-up.
  void start() { program.Main(); }
  void clickButton(int number);
  /// A whole key stroke to whatever has the focus.
  void key(int keyCode, int shift = 0);
  void type(char character);
  /// A whole click at a caret of a surface, and what the program then sends itself.
  void click(Surface& surface, int caret, MouseButton button = MouseButton::Left);
  void doubleClick(Surface& surface, int caret);
  [[nodiscard]] ProgramControls& controls() { return program.controls(); }
  [[nodiscard]] Form& form() { return program.form(); }
  /// A variable of the program as a number, a text or a flag.
  [[nodiscard]] double number(const std::string& name) const;
  [[nodiscard]] std::string text(const std::string& name) const;
  [[nodiscard]] bool flag(const std::string& name) const;
  [[nodiscard]] std::string focus();

  TestFolder folder;
  FaultyFiles files;
  ScriptedMachine machine;

 private:
  [[nodiscard]] Platform platform();

  Platform platform_; ///< the machine's, with the files of this run

 public:
  Program program;
  Hand hand{machine, program.form(), program.input(), [this] { return program.running(); }};

 private:
  [[nodiscard]] const VariableValue value(const std::string& name) const;
};

} // namespace talvora::test
