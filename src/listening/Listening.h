// The listening quiz: nine units on `RN1`, and a unit's items one after the other in random order.
#pragma once

#include "exercises/ItemState.h"
#include "exercises/Scoring.h"
#include "exercises/UnitList.h"
#include "lessons/WordHelp.h"
#include "listening/DrawOrder.h"
#include "listening/ListeningControls.h"
#include "listening/ListeningItems.h"
#include "listening/ListeningPage.h"
#include "platform/Random.h"
#include "reading/ReadingPage.h"
#include "shell/Shell.h"
#include "stores/Stores.h"
#include "surface/Form.h"
#include "surface/State.h"

#include <cstdint>
#include <string>

namespace talvora {

class Listening final : private ListeningSection {
 public:
  /// Answers for the listening units of `units` from then on.
  Listening(Form& form, ListeningControls& controls, SharedState& state, Stores& stores,
            Shell& shell, PageServices services, Random& random, UnitList& units, Scoring& scoring,
            ItemState& item);

  /// Opens the section: the list of units with its stored caret.
  /// Throws FatalFailure when a file of the section is missing.
  void openSection();
  /// Opens the unit `SoBaiChon`; one without items says so and the list stays.
  void MoBaiNghe();
  /// Goes back from an item to the list.
  void ThoatRN2();

  void declare(Variables& variables) const;

 private:
  void setUp() override { LapBangNghe(); }
  void openUnit() override { MoBaiNghe(); }
  bool leaveText() override;
  void close() override { items_.close(); }
  [[nodiscard]] const Surface& page() const override { return controls_.RN2; }

  void wireEvents();
  void addToShell();
  void LapBangNghe();
  void countItems();
  void CauNgheTiep();
  void DocCauNghe();
  void NgheLai();
  void QuaCau();
  void closePage();
  void stopSound();
  void pressCharacter(int& keyAscii);
  void releaseLeft(SurfacePoint at);
  void judge(int caret);
  /// Follows a link at a position, from 1; true when the page was left by going back.
  bool followLink(int p);

  Form& form_;
  ListeningControls& controls_;
  SharedState& state_;
  Stores& stores_;
  Shell& shell_;
  PageServices services_;
  WordHelp words_;
  UnitList& units_;
  Scoring& scoring_;
  ItemState& item_;
  ListeningItems items_;
  ListeningPage page_;
  DrawOrder order_;
  int UnitNghe_ = 0;          ///< the open unit
  int GocUnit_ = 0;           ///< base of the unit in the items
  std::int32_t ViTriDoc_ = 0; ///< record where the current item's texts begin
  std::int16_t DoanHien_ = 0; ///< segment of the current item
  std::string heard_;         ///< sentence of the current item, also once it is shown
  int listCaret_ = 0;         ///< caret of the list, to go back to
};

} // namespace talvora
