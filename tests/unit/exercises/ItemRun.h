// Lessons and exercises on a scripted machine, with small stores that the test writes.
#pragma once

#include "dictionary/DictionaryRun.h"
#include "driver/Hand.h"
#include "exercises/Exercises.h"
#include "lessons/VanPham.h"
#include "platform/scripted/ScriptedMachine.h"
#include "program/ProgramControls.h"
#include "sound/AmthanhThuc.h"
#include "support/TestFolder.h"

#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace talvora::test {

/// The two records of an item, without their end marks.
struct StoredItem {
  std::string question;
  std::string answer;
};

/// What the stores hold.
struct ItemStores {
  std::map<int, std::string> lessons; ///< by slot, without the end mark; others are "slot N"
  std::map<int, int> counts;          ///< of data.Muc by section; others are 0
  std::vector<StoredItem> items;      ///< from item 1 on; others are empty
};

/// A screen that tells when the program has itself painted.
class WatchedScreen final : public Screen {
 public:
  explicit WatchedScreen(Screen& screen) : screen_(screen) {}

  [[nodiscard]] int pixelWidth() const override { return screen_.pixelWidth(); }
  [[nodiscard]] int pixelHeight() const override { return screen_.pixelHeight(); }
  void Refresh() override { painted(); }

  std::function<void()> painted = [] {};

 private:
  Screen& screen_;
};

class ItemRun {
 public:
  explicit ItemRun(const ItemStores& contents, const ScriptedOptions& options = {});
  /// Breaks lines as another layout says.
  ItemRun(const ItemStores& contents, const ScriptedOptions& options, const LineLayout& layout);

  /// Opens a bank by its number, 1 to 9, as its button does.
  void openBank(int bank);
  /// Opens a bank and starts its first unit.
  void startUnit(int bank = 1);
  /// A whole key stroke to whatever has the focus.
  void key(int keyCode, int shift = 0);
  void type(std::string_view text);
  /// A whole click at a caret of a surface, and the click that the program then sends itself.
  void click(Surface& surface, int caret, MouseButton button = MouseButton::Left);
  void rightClick(Surface& surface, int caret) { click(surface, caret, MouseButton::Right); }
  /// Both buttons at every caret of an item ahead of its foot.
  void clickEverywhere(Surface& surface);
  /// The caret at the start of a text on a surface; the test fails when it is not there.
  [[nodiscard]] static int caretOf(const Surface& surface, std::string_view text);
  [[nodiscard]] std::string focus() const;
  [[nodiscard]] double number(const std::string& name) const;

  TestFolder folder;
  ScriptedMachine machine;
  WatchedScreen screen;
  Form form;
  FormInput input{form};
  Hand hand{machine, form, input};
  ProgramControls controls;
  SharedState state;
  Stores stores;
  Shell shell;
  RecordedVoice voice;
  Speech speech;
  Dictionary dictionary;
  VietnameseSide vietnameseSide;
  VanPham lessons;
  Exercises exercises;
  Variables variables;
  ItemState& item = exercises.item;

 private:
  void writeStores(const ItemStores& contents) const;
};

/// Colour and boldness of the character behind a caret.
struct Look {
  Colour color = 0;
  bool bold = false;
  bool underline = false;
};
[[nodiscard]] Look lookAt(const Surface& surface, int caret);

/// A first bank of one unit, which is full of copies of an item.
[[nodiscard]] ItemStores bankOf(const StoredItem& item);
/// So many copies of an item.
[[nodiscard]] std::vector<StoredItem> copies(int count, const StoredItem& item);

} // namespace talvora::test
