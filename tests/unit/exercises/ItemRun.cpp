#include "ItemRun.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace talvora::test {

namespace {

const FixedLayout FixedLines;

Places placesIn(const TestFolder& folder) {
  Places places;
  places.ThuMuc = folder.path();
  return places;
}

std::string record(int value) {
  return {static_cast<char>(value & 0xFF), static_cast<char>(value >> 8 & 0xFF)};
}

} // namespace

ItemRun::ItemRun(const ItemStores& contents, const ScriptedOptions& options)
    : ItemRun(contents, options, FixedLines) {}

ItemRun::ItemRun(const ItemStores& contents, const ScriptedOptions& options,
                 const LineLayout& layout)
    : machine(options), screen(machine.screen), form(screen, machine.metrics),
      controls(form, layout), state(placesIn(folder)), stores(state.places),
      shell(machine.platform, form, controls, state),
      voice(state.places, machine.wave, shell.messages),
      speech(machine.platform, shell.steering, voice),
      dictionary(form, controls, state, stores, shell, speech),
      vietnameseSide(controls, state, stores, shell, speech, dictionary.lookUp()),
      lessons(controls, state, stores, shell, {dictionary, vietnameseSide, speech, voice}),
      exercises(form, controls, state, stores, shell, {dictionary, vietnameseSide, speech, voice},
                lessons, machine.random) {
  folder.writeEmptyStores();
  writeStores(contents);
  writeWordFiles(folder, withLetterLines({{"went", "#v"}, {"school", "#n"}, {"home", "#n"}}));
  form.Caption("TALVORA 2.4");
  shell.setup.measureScreen(options.screenWidth, options.screenHeight);
  shell.setup.placeForm();
  shell.setup.LapCoChu();
  shell.setup.setTextFont();
  shell.setup.parkSurfaces();
  shell.setup.measureCard();
  state.measures.KieuTruot = 5;
  stores.MoDuLieu();
  dictionary.NapTuDien();
  speech.AmThanhBat = 1;
  exercises.store.DocSoCau(machine.events);
  state.declare(variables);
  lessons.declare(variables);
  exercises.declare(variables);
  for (int button = 1; button <= Controls::ButtonCount; ++button)
    controls.but(button).Visible(true);
}

void ItemRun::writeStores(const ItemStores& contents) const {
  std::vector<std::int32_t> positions;
  std::string stream;
  for (int slot = 1; slot <= 357; ++slot) {
    positions.push_back(static_cast<std::int32_t>(stream.size()));
    const auto found = contents.lessons.find(slot);
    stream +=
        found != contents.lessons.end() ? found->second : "slot " + std::to_string(slot) + "\r";
    stream += '@';
  }
  folder.writeIntegers("datavp.vt", positions);
  folder.writeStream("datavp.n", stream);

  std::string counts;
  std::size_t total = 0;
  for (int section = 1; section <= ItemStore::Sections; ++section) {
    const auto found = contents.counts.find(section);
    const int count = found != contents.counts.end() ? found->second : 0;
    counts += record(count);
    total += static_cast<std::size_t>(count > 0 ? count : 1);
  }
  folder.write("data.Muc", counts);
  std::vector<std::int32_t> places(2 * total);
  std::string items;
  for (std::size_t n = 0; n < 2 * total; ++n) {
    places[n] = static_cast<std::int32_t>(items.size());
    const std::size_t at = n % total;
    const StoredItem stored = at < contents.items.size() ? contents.items[at] : StoredItem{};
    items += (n < total ? stored.question : stored.answer) + "@";
  }
  folder.writeIntegers("data.vbt", places);
  folder.writeStream("data.bt", items);
}

void ItemRun::openBank(int bank) {
  state.places.MucMenu = 9 + bank;
  exercises.run.MoMuc(bank);
  hand.deliverSent();
}

void ItemRun::startUnit(int bank) {
  openBank(bank);
  key(key::Enter);
}

void ItemRun::clickEverywhere(Surface& surface) {
  constexpr int foot = 17; // "<Back>    <Next>" and the line end ahead of it
  for (int caret = 0; caret <= surface.TextLength() - foot; ++caret) {
    click(surface, caret);
    rightClick(surface, caret);
  }
}

void ItemRun::key(int keyCode, int shift) {
  hand.strike(keyOfCode(keyCode), shift, Stroke::Whole);
}

void ItemRun::type(std::string_view text) {
  for (const char character : text)
    hand.strike(keyNamed({&character, 1}).value(), shift::None, Stroke::Whole);
}

void ItemRun::click(Surface& surface, int caret, MouseButton button) {
  hand.mouse(surface, {caret, {}, button, Clicks::Once, shift::None});
}

int ItemRun::caretOf(const Surface& surface, std::string_view text) {
  const auto found = surface.Text().find(text);
  EXPECT_NE(found, std::string::npos) << text;
  return static_cast<int>(found);
}

std::string ItemRun::focus() const {
  const Control* control = form.ActiveControl();
  return control == nullptr ? std::string() : control->Name();
}

double ItemRun::number(const std::string& name) const {
  const Variables::Reader* reader = variables.find(name);
  if (reader == nullptr) throw std::runtime_error("no variable " + name);
  return std::get<double>((*reader)().value);
}

Look lookAt(const Surface& surface, int caret) {
  for (const StyledRun& run : surface.runs()) {
    if (run.from <= caret && caret < run.to) {
      return {run.style.color, run.style.font.bold, run.style.underline};
    }
  }
  return {};
}

ItemStores bankOf(const StoredItem& item) {
  constexpr int unit = 25;
  ItemStores stores;
  stores.counts = {{1, unit}};
  stores.items = copies(unit, item);
  return stores;
}

std::vector<StoredItem> copies(int count, const StoredItem& item) {
  return std::vector<StoredItem>(static_cast<std::size_t>(count), item);
}

} // namespace talvora::test
