// The list of units on `RN1`, which the exercise banks and the listening section share.
#pragma once

#include "exercises/ExerciseControls.h"
#include "exercises/Scoring.h"
#include "shell/Shell.h"
#include "stores/Stores.h"
#include "surface/State.h"

#include <functional>
#include <string>

namespace talvora {

/// The listening section, as the list that it shares with the banks needs it.
class ListeningSection {
 public:
  virtual ~ListeningSection() = default;

  /// The list is filled with listening units.
  virtual void setUp() = 0;
  /// Opens the unit chosen in the list.
  virtual void openUnit() = 0;
  /// Leaves the text that is open; false when none is.
  virtual bool leaveText() = 0;
  /// Closes what the section holds open.
  virtual void close() = 0;
  /// The surface of its texts.
  [[nodiscard]] virtual const Surface& page() const = 0;
};

class UnitList {
 public:
  static constexpr int ItemsPerUnit = 25;
  static constexpr int ListeningUnits = 9;

  UnitList(ExerciseControls& controls, SharedState& state, Stores& stores, Shell& shell,
           Scoring& scoring);

  /// Loads the template of listening items and fills the list: in section 4 with the listening
  /// units, otherwise with the units of a bank of so many items.
  void HienBT(int SoCauBT);
  /// Slides the list in and goes to the line that was left last.
  void open();
  /// The caret of the list, kept in data.Kcu for each section.
  void DocViTriList();
  void GhiViTriList();
  /// Opens the unit at the caret; an empty list opens nothing.
  void GoiRN2();
  /// Leaves the list, in whichever section it was open.
  void ThoatNghe();

  /// Starts a unit of the bank that is open; set by the run.
  std::function<void()> BatDauBai = [] {};
  /// The listening section shows its units here from now on.
  void share(ListeningSection& listening) { listening_ = &listening; }

 private:
  void wireEvents();
  void LietKeBai(int units);
  void LietKeUnit();
  /// Writes lines that begin with a word and end with their number.
  void writeList(int units, std::string_view word);
  [[nodiscard]] int caretRecord() const;

  ExerciseControls& controls_;
  SharedState& state_;
  Stores& stores_;
  Shell& shell_;
  Scoring& scoring_;
  ListeningSection* listening_ = nullptr;
};

} // namespace talvora
