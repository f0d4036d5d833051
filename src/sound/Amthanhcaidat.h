// The sound settings on `RAmthanh`: sound on or off and ten speed levels, as cells of a text that
// are found again by the tabs around the caret.
#pragma once

#include "platform/Platform.h"
#include "shell/Shell.h"
#include "sound/SoundControls.h"
#include "sound/Speech.h"
#include "stores/Stores.h"
#include "surface/State.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace talvora {

class Amthanhcaidat {
 public:
  Amthanhcaidat(SoundControls& controls, SharedState& state, Platform& platform, Stores& stores,
                Shell& shell, Speech& speech);

  /// Brings the panel in and fills it: what the menu button does.
  void open();
  /// Writes the cells and paints the present settings red.
  void GoiCaiDat();
  /// Finds and selects the cell at the caret; `CellChon` becomes 1 where there is none to choose.
  void ChonMuc();
  /// Applies the cell `CellChon` and speaks the test sentence if the sound is on.
  void DatMuc();
  /// Stores the settings and takes the panel off.
  void ExitRAmThanh();
  /// Stores the settings of a panel that is open: the program ends.
  void keep();

  void declare(Variables& variables) const;

  std::int16_t SoCell = 0;   ///< number of the last cell
  std::int32_t CellChon = 1; ///< the cell that the last click chose
  std::string TextPanel;     ///< the panel's text, to look for tabs in

 private:
  enum class Weight { Normal, Bold };

  void store();
  void wireEvents();
  void writePanel();
  void writeCell(std::string_view text, Weight weight);
  [[nodiscard]] bool isApplied(int cell) const;
  /// Length of the list behind cell k: the caret at which the cell behind it begins.
  [[nodiscard]] int entry(int k) const;
  [[nodiscard]] bool isTab(int position) const;
  void switchSoundOn();
  void switchSoundOff();
  void chooseLevel(int cell);
  /// Paints the sound choice black whose cell holds the caret.
  void blackenChoiceAt(int caret);
  void stopIfSpeaking();
  void speakTest();

  SoundControls& controls_;
  SharedState& state_;
  SpeechEngine& engine_;
  Stores& stores_;
  Shell& shell_;
  Speech& speech_;
  Surface& panel_;
};

} // namespace talvora
