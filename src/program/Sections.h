// The sections behind the menu: owns their modules, wires what they ask of each other, and opens
// the one whose button was clicked.
#pragma once

#include "dictionary/Dictionary.h"
#include "dictionary/VietnameseSide.h"
#include "exercises/Exercises.h"
#include "lessons/VanPham.h"
#include "listening/Listening.h"
#include "listening/NGHE_VIET.h"
#include "platform/Platform.h"
#include "program/Guide.h"
#include "program/ProgramControls.h"
#include "reading/Reading.h"
#include "shell/Shell.h"
#include "sound/Amthanhcaidat.h"
#include "stores/Stores.h"
#include "surface/State.h"
#include "surface/Variables.h"
#include "writing/PTCau.h"
#include "writing/Writing.h"

namespace talvora {

class Sections final : private TextExplanations {
 public:
  Sections(Platform& platform, Form& form, ProgramControls& controls, SharedState& state,
           Stores& stores, Shell& shell, PageServices services, LearnerData& own);

  /// Opens the section of a menu button, 1 to 18. While the program is busy only the closed section
  /// answers.
  void open(int button);
  /// Reads the counts of the exercises, once.
  void loadExerciseCounts() { exercises_.store.DocSoCau(platform_.events); }

  /// Stores what leaving the open section would store.
  void keep() {
    reading_.keep();
    soundSettings_.keep();
  }

  void declare(Variables& variables) const;

  [[nodiscard]] const ReadingText& text() noexcept { return reading_.text(); }
  [[nodiscard]] int TimBaiHoc(const std::string& title) const {
    return exercises_.box.TimBaiHoc(title);
  }

 private:
  void wireDrills();
  void wireAnalysis();

  void load(int n) override;
  void explain() override;
  void leave() override;
  void leaveOnKey(int keyCode) override;
  void followPointer(SurfacePoint at) override;
  /// The word that an explanation has marked looks as before.
  void takeMarkBack();

  /// Opens a section that begins with a list of texts.
  void openTexts(int section, int store);
  void openAnalysis();
  void openBank(int section);

  Platform& platform_;
  ProgramControls& controls_;
  SharedState& state_;
  Stores& stores_;
  Shell& shell_;
  Amthanhcaidat soundSettings_;
  Reading reading_;
  VanPham lessons_;
  Exercises exercises_;
  Listening listening_;
  NGHE_VIET dictation_;
  Writing writing_;
  PTCau analysis_;
  Guide guide_;
};

} // namespace talvora
