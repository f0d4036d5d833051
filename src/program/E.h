// The form and its handlers: owns the shell, the dictionary and the sections, starts the program
// up, sends the menu's clicks to the sections, and ends it.
#pragma once

#include "dictionary/Dictionary.h"
#include "dictionary/VietnameseSide.h"
#include "learner/FindFolders.h"
#include "learner/LearnerData.h"
#include "platform/Platform.h"
#include "program/Ending.h"
#include "program/Procedures.h"
#include "program/ProgramControls.h"
#include "program/Sections.h"
#include "shell/Shell.h"
#include "sound/AmthanhThuc.h"
#include "sound/Speech.h"
#include "stores/Stores.h"
#include "surface/FormInput.h"
#include "surface/State.h"
#include "surface/Variables.h"

namespace talvora {

/// The run counter after one more run: it goes on from 2 to 20, and anything else becomes 1.
[[nodiscard]] constexpr int nextRunCount(int count) {
  return count >= 2 && count <= 19 ? count + 1 : 1;
}

class E {
 public:
  E(Platform& platform, Folders folders);

  /// The start-up, every step in its order.
  void Main();
  /// The quit question; while a section is open nothing is asked.
  void HoiThoat();
  /// The close box: the quit question, or with a section open the end without a question and
  /// without the run counter.
  void closeWindow();
  /// Stores what the learner has done so far, as leaving the section would.
  void keep();
  /// Ends the program, whatever is open; what is in memory is kept.
  void end(Ending ending);

  [[nodiscard]] Ending ending() const noexcept { return ending_; }
  [[nodiscard]] Form& form() noexcept { return form_; }
  [[nodiscard]] FormInput& input() noexcept { return input_; }
  [[nodiscard]] ProgramControls& controls() noexcept { return controls_; }
  [[nodiscard]] const Variables& variables() const noexcept { return variables_; }
  [[nodiscard]] const Procedures& procedures() const noexcept { return procedures_; }
  [[nodiscard]] const Places& places() const noexcept { return state_.places; }
  [[nodiscard]] int hoveredButton() const noexcept { return shell_.hover.HoverSo; }

 private:
  void declareAll();
  void registerProcedures();
  void registerSearches();
  VariableValue search(const std::string& key, LayNghia layNghia);
  void wireMenu();
  void loadEnglishSide();
  /// Whether a section is open.
  [[nodiscard]] bool frameVisible() const;
  /// The end that the learner asked for: the run counter goes on, all files are closed.
  void quit();
  /// Whether the program may end: words that are on no disk stand in the way with a question.
  [[nodiscard]] bool mayLeave();

  Platform& platform_;
  Form form_;
  ProgramControls controls_;
  SharedState state_;
  Stores stores_;
  LearnerData own_;
  Shell shell_;
  FormInput input_;
  RecordedVoice voice_;
  Speech speech_;
  Dictionary dictionary_;
  VietnameseSide vietnameseSide_;
  Sections sections_;
  Variables variables_;
  Procedures procedures_;
  Ending ending_ = Ending::None;
};

} // namespace talvora
