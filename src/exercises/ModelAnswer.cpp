#include "exercises/ModelAnswer.h"

#include "surface/Looks.h"

namespace talvora {

namespace {

/// Where the text stands that is kept.
TextRange keptRange(const ItemState& item) {
  return {item.ViTriChuCu, item.ViTriChuCu + static_cast<int>(item.ChuCu.size())};
}

void unbold(Surface& surface, const ItemState& item) {
  surface.format(keptRange(item), {.bold = false});
  surface.SelLength(0);
}

} // namespace

void ModelAnswer::HienDapAn(int p, Colour colour, Surface& surface) {
  const BlankEntry entry = item_.ODaLam.at(item_.ODaLam.find(p));
  if (entry.Chu.empty()) return;
  const int from = entry.Dau - 1;
  const int to = from + static_cast<int>(entry.Chu.size());
  item_.MauCu = surface.styleAt(from).color;
  item_.ChuCu = surface.TextBetween(from, to);
  item_.ViTriChuCu = from;
  surface.write({from, to}, entry.Chu, {.color = colour, .bold = true});
  surface.SelLength(0);
}

void ModelAnswer::KhoiPhucChu(Surface& surface) {
  if (!item_.ChuCu.empty()) {
    surface.write(keptRange(item_), item_.ChuCu, {.color = item_.MauCu.value_or(look::Red)});
    surface.SelLength(0);
  }
  item_.ChuCu.clear();
  surface.SetFocus();
}

void ModelAnswer::keepInBlank(Surface& surface) {
  if (controls_.RVP2.Visible() || item_.ChuCu.empty()) return;
  unbold(surface, item_);
  item_.ChuCu.clear();
  surface.SetFocus();
}

void ModelAnswer::emphasise(Surface& surface, int caret, int length, Colour colour) {
  item_.ChuCu = surface.TextBetween(caret, caret + length);
  item_.ViTriChuCu = caret;
  surface.format({caret, caret + length}, {.color = colour, .bold = true});
  surface.SelLength(0);
}

void ModelAnswer::RoChonSai(Surface& surface) {
  if (item_.ChuCu.empty()) return;
  unbold(surface, item_);
  item_.ChuCu.clear();
}

void ModelAnswer::restore(Surface& surface) {
  if (ItemKindPage* const page = kinds_.on(surface)) {
    page->takeAnswerBack();
  } else {
    KhoiPhucChu(surface);
  }
}

} // namespace talvora
