// What the pages of all items share: the look of a fresh page, its foot, Esc and Ctrl, the pointer
// rule, and the first questions that a click is asked.
#pragma once

#include "exercises/ExerciseControls.h"
#include "exercises/ExplanationBox.h"
#include "exercises/ItemState.h"
#include "exercises/ModelAnswer.h"
#include "lessons/WordHelp.h"
#include "shell/Shell.h"
#include "surface/State.h"

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora {

class XepTu;

/// What an item asks of the run that it belongs to.
struct RunCalls {
  /// What the links at the foot do.
  std::function<void()> next = [] {};
  std::function<void()> back = [] {};
  /// Leaves the item on a surface.
  std::function<void(Surface&)> ThoatBT = [](Surface&) {};
  /// Counts the item if it was answered right.
  std::function<void()> CongDung = [] {};
  /// Whether the open bank's blanks are explained by the list of the verb lessons.
  std::function<bool()> bankListsLessons = [] { return false; };
};

/// What the pages of items work with.
struct ItemServices {
  ExerciseControls& controls;
  SharedState& state;
  Shell& shell;
  WordHelp& words;
  ItemState& item;
  ModelAnswer& answer;
  ExplanationBox& box;
  XepTu& ordering;
  RunCalls& run;
};

/// What the shell must know of the page of a kind.
struct KindInShell {
  std::string_view pointerName; ///< as `Page` has it
  CloseRank closing;
  FocusRank focus;
  std::vector<Hint> hints;
};

/// Whether Ctrl shows the meaning of a word in an item's heading, too.
enum class HeadingAnswers { No, Yes };

class ItemPage {
 public:
  ItemPage(Surface& surface, ItemServices& services,
           HeadingAnswers headingAnswers = HeadingAnswers::Yes);

  /// Tells the shell of the page. Esc leaves the item.
  void addToShell(KindInShell page);

  /// Empties the surface and sets the look of an item's text.
  void begin();
  /// Writes the foot at the caret and remembers where its links are.
  void writeFoot();
  /// Writes a whole page: the heading, a text whose answers are hidden, and the foot. The item gets
  /// its mask and what is shown.
  void writeHidden(const std::string& text);
  /// Goes to a caret when the page is written; as much of the page's top as goes with it is seen.
  void goTo(int caret);
  /// The same to the first place that the text marks with "_", to the top without one.
  void goToFirstMark();
  /// Position, from 1, of the character behind the caret.
  [[nodiscard]] int position() const { return surface_.SelStart() + 1; }

  /// What every item does with a key: but for Esc and Ctrl alone it closes what stands over the
  /// item; F2, Ctrl and Esc act. Esc is swallowed.
  void pressKey(int& keyCode, int shift);
  /// Closes what stands over the item; with nothing there the item is left.
  void pressEsc();
  /// A letter opens the look-up list, to come back to a caret.
  void pressLetter(int keyAscii, int caretToComeBackTo);
  void releaseKey(int shift);

  /// What is left to do for a click once the shared questions are asked.
  enum class Click { Done, Explain, Pick };
  Click releaseMouse(MouseButton button, SurfacePoint at);
  /// The word under the pointer is looked up and spoken.
  void lookUp() { services_.words.lookUpAtCaret(surface_); }

 private:
  /// Hides the popup and the explanation and stops speech.
  void closeExtras();
  void pressCtrl(int keyCode, int shift);
  void moveMouse(SurfacePoint at);

  Surface& surface_;
  ItemServices& services_;
  HeadingAnswers headingAnswers_;
};

} // namespace talvora
