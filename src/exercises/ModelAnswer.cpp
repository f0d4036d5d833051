#include "exercises/ModelAnswer.h"

#include "lessons/PageColours.h"

namespace talvora {

namespace {

void unbold(Surface& surface, const ItemState& item) {
  const KeepPlace keep(surface);
  surface.SelStart(item.ViTriChuCu);
  surface.SelLength(static_cast<int>(item.ChuCu.size()));
  surface.SelBold(false);
}

} // namespace

void ModelAnswer::HienDapAn(int p, Colour colour, Surface& surface) {
  const BlankEntry entry = item_.ODaLam.at(item_.ODaLam.find(p));
  if (entry.Chu.empty()) return;
  const KeepPlace keep(surface);
  surface.SelStart(entry.Dau - 1);
  surface.SelLength(static_cast<int>(entry.Chu.size()));
  item_.MauCu = surface.SelColor();
  item_.ChuCu = surface.SelText();
  item_.ViTriChuCu = entry.Dau - 1;
  surface.SelColor(colour);
  surface.SelBold(true);
  surface.SelText(entry.Chu);
}

void ModelAnswer::KhoiPhucChu(Surface& surface) {
  if (&surface == &controls_.RDT) {
    if (controls_.RVP2.Visible() || item_.ChuCu.empty()) return;
    unbold(surface, item_);
  } else if (!item_.ChuCu.empty()) {
    const KeepPlace keep(surface);
    surface.SelStart(item_.ViTriChuCu);
    surface.SelLength(static_cast<int>(item_.ChuCu.size()));
    surface.SelColor(item_.MauCu.value_or(PageRed));
    surface.SelText(item_.ChuCu);
  }
  item_.ChuCu.clear();
  surface.SetFocus();
}

void ModelAnswer::emphasise(Surface& surface, int caret, int length, Colour colour) {
  const KeepPlace keep(surface);
  surface.SelStart(caret);
  surface.SelLength(length);
  item_.ChuCu = surface.SelText();
  item_.ViTriChuCu = caret;
  surface.SelBold(true);
  surface.SelColor(colour);
}

void ModelAnswer::RoChonSai() {
  if (item_.ChuCu.empty()) return;
  unbold(controls_.Rsai, item_);
  item_.ChuCu.clear();
}

void ModelAnswer::restore(Surface& surface) {
  if (&surface == &controls_.Rsai) {
    RoChonSai();
  } else {
    KhoiPhucChu(surface);
  }
}

} // namespace talvora
