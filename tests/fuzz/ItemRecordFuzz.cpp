// Any bytes as the records of an item, up to the first line feed the question and behind it the
// answer: every kind of page draws it, answers clicks and keys, and explains itself.
#include "exercises/Exercises.h"
#include "exercises/ItemMask.h"
#include "exercises/ItemRecord.h"
#include "platform/scripted/ScriptedMachine.h"
#include "program/ProgramControls.h"
#include "sound/AmthanhThuc.h"
#include "text/Bytes.h"

#include <array>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using namespace talvora;

// Longer records only take longer.
constexpr std::size_t LongestRecord = 1500;

/// A program's exercises without any stores.
struct Desk {
  Desk()
      : form(machine.screen, machine.metrics), controls(form, machine.layout), stores(state.places),
        shell(machine.platform, form, controls, state),
        voice(state.places, machine.wave, shell.messages),
        speech(machine.platform, shell.steering, voice),
        dictionary(form, controls, state, stores, shell, speech),
        vietnameseSide(controls, state, stores, shell, speech, dictionary.lookUp()),
        lessons(controls, state, stores, shell, {dictionary, vietnameseSide, speech, voice}),
        exercises(form, controls, state, stores, shell, {dictionary, vietnameseSide, speech, voice},
                  lessons, machine.random) {
    shell.setup.measureScreen(1024, 768);
    shell.setup.placeForm();
    shell.setup.LapCoChu();
    shell.setup.parkSurfaces();
    state.measures.KieuTruot = 5;
    state.list.TenBaiHoc.fill("A title");
    exercises.services.run = RunCalls();
    exercises.services.run.bankListsLessons = [this] { return listsLessons; };
  }

  ScriptedMachine machine;
  Form form;
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
  bool listsLessons = false;
};

void click(Desk& desk, Surface& surface, int caret, MouseButton button) {
  if (button == MouseButton::Right) {
    desk.state.atHand.arm();
  } else {
    desk.state.atHand.disarm();
  }
  if (surface.MouseDown) surface.MouseDown(MouseButton::Left, shift::None, {});
  surface.SelStart(caret);
  surface.MouseUp(MouseButton::Left, shift::None, {});
}

void use(Desk& desk, Surface& surface) {
  surface.Visible(true);
  const int length = surface.TextLength();
  // Some places of the page, spread over it.
  const int stride = length / 12 + 1;
  for (const MouseButton button : {MouseButton::Left, MouseButton::Right}) {
    for (int caret = 0; caret < length; caret += stride)
      click(desk, surface, caret, button);
  }
  for (const int keyCode : {key::Left, key::Right, key::Backspace, key::Delete}) {
    surface.pressKey(keyCode, shift::None, '\0');
    surface.releaseKey(keyCode, shift::None);
  }
  for (const char character : {'7', ' ', '\r'}) {
    int keyAscii = asc(character);
    surface.KeyPress(keyAscii);
  }
  click(desk, surface, length / 2, MouseButton::Left);
  surface.moveMouse(shift::None, {0, 0});
  surface.moveMouse(shift::None, {9000, 9000});
  surface.Check();
  surface.Visible(false);
}

void draw(Desk& desk, std::string question, std::string_view answer) {
  ItemState& item = desk.exercises.item;
  item.XoaTrangThai();
  const ItemHeader header = readHeader(question);
  question.erase(0, header.length);
  if (question.starts_with('|')) {
    item.GoiY = TachGoiY(question);
    item.SoGoiY = static_cast<int>(item.GoiY.size());
  }
  desk.listsLessons = header.code == 6;
  item.LoiGiai = ThayTenBai(markReferences(answer, header.kind), desk.state.list.TenBaiHoc);
  desk.state.text.CauHoi = question;
  constexpr std::array kinds = {ItemKind::FillIn, ItemKind::Choice, ItemKind::Mistake};
  item.LoaiBT = kinds[static_cast<std::size_t>(header.code) % kinds.size()];
  ItemKindPage& page = desk.exercises.kinds.of(item.LoaiBT);
  page.show();
  use(desk, page.surface());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  static Desk desk;
  const std::string_view records = text.substr(0, LongestRecord);
  const std::size_t cut = std::min(records.find('\n'), records.size());
  draw(desk, std::string(records.substr(0, cut)),
       records.substr(std::min(cut + 1, records.size())));
  return 0;
}
