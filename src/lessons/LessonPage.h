// One rule lesson as a page on `RVP2`: its markup turned into colours, and the reader's keys and
// mouse on it.
#pragma once

#include "lessons/LessonControls.h"
#include "lessons/WordHelp.h"
#include "shell/Shell.h"
#include "stores/Stores.h"
#include "surface/State.h"

#include <array>
#include <cstdint>
#include <functional>
#include <string_view>

namespace talvora {

class LessonPage {
 public:
  LessonPage(LessonControls& controls, SharedState& state, const Stores& stores, Shell& shell,
             PageServices services);

  /// Reads where every lesson begins.
  void DocViTriVP();
  /// Opens the look-up list for a typed letter.
  void openListOn(int keyAscii) { words_.openListOn(keyAscii); }
  /// Reads lesson n, from 1 to 357, and shows it; outside there is none. Before any line of the
  /// list was chosen n is 0, which stands for the first.
  void MoBaiVP(int n);

  void declare(Variables& variables) const;

  /// Takes the page off and goes back to the list; set by its owner.
  std::function<void()> leave = [] {};

  /// Element n: the record just ahead of lesson n's first byte.
  std::array<std::int32_t, 361> ViTriVP{};
  int ViTriVan = 0; ///< where the current text began in its stream

 private:
  void wireEvents();
  void addToShell();
  void pressKey(int keyCode, int shift);
  void pressCharacter(int& keyAscii);
  void releaseMouse(MouseButton button, SurfacePoint at);
  void HienBaiVP(std::string_view text);
  void deleteFirst();
  void styleTitle();

  LessonControls& controls_;
  SharedState& state_;
  const Stores& stores_;
  Shell& shell_;
  WordHelp words_;
};

} // namespace talvora
