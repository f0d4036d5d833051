#include "listening/DrawOrder.h"

#include <algorithm>

namespace talvora {

namespace {

/// After so many clashes the first item that is left is taken.
constexpr int MostDraws = 20'000;

} // namespace

void DrawOrder::start(int items) {
  SoCauUnit = std::clamp(items, 0, MostItems);
  SoRut = 0;
  BuocHien = 0;
  BuocTruoc = 0;
  CoLui = false;
  ThuTuRut_.fill(0);
}

void DrawOrder::step() {
  if (CoLui) {
    CoLui = false;
    SoRut = at(BuocTruoc);
  } else if (BuocHien == 0 || at(BuocHien) == SoRut) {
    drawNew();
  } else {
    TimBuoc();
    SoRut = at(BuocTruoc + 2);
  }
  BuocHien = std::min(BuocHien, SoCauUnit);
}

bool DrawOrder::isDrawn(int number) const noexcept {
  const auto* first = ThuTuRut_.data() + 1;
  return std::find(first, first + BuocHien - 1, number) != first + BuocHien - 1;
}

void DrawOrder::drawNew() {
  BuocHien = std::min(BuocHien + 1, SoCauUnit);
  for (int draw = 0; draw < MostDraws; ++draw) {
    random_.seedFromClock();
    SoRut = random_.upTo(SoCauUnit);
    if (!isDrawn(SoRut)) break;
  }
  while (isDrawn(SoRut))
    SoRut = SoRut % SoCauUnit + 1;
  at(BuocHien) = static_cast<std::int16_t>(SoRut);
}

void DrawOrder::TimBuoc() {
  int found = 1;
  for (int step = 1; step <= BuocHien; ++step) {
    if (at(step) != SoRut) continue;
    found = step;
    break;
  }
  BuocTruoc = found - 1;
}

void DrawOrder::declare(Variables& variables) const {
  variables.add("SoCauUnit", &SoCauUnit);
  variables.add("SoRut", &SoRut);
  variables.add("BuocHien", &BuocHien);
  variables.add("BuocTruoc", &BuocTruoc);
  variables.add("CoLui", &CoLui);
  variables.add("ThuTuRut", [this] {
    return VariableValue(VariableValue::Table(ThuTuRut_.begin(), ThuTuRut_.end() - 1));
  });
}

} // namespace talvora
