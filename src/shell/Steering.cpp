#include "shell/Steering.h"

namespace talvora {

namespace {

constexpr int RowsPerColumn = 9;

} // namespace

void Steering::XepChuot() {
  struct Positions {
    int X1, X2, Y, step;
  };
  const Positions positions = measures_.CoNut == 9    ? Positions{305, 477, 160, 29}
                              : measures_.CoNut == 10 ? Positions{388, 605, 190, 36}
                                                      : Positions{480, 750, 240, 46};
  ChuotX1 = positions.X1;
  ChuotX2 = positions.X2;
  ChuotY = positions.Y;
  ChuotBuoc = positions.step;
}

PixelPoint Steering::placeOfButton(int number) const {
  const bool left = number <= RowsPerColumn;
  const int row = left ? number - 1 : number - RowsPerColumn - 1;
  return {left ? ChuotX1 : ChuotX2, ChuotY + row * ChuotBuoc};
}

void Steering::pointAtButton(int number) {
  pointAt(placeOfButton(number));
}

bool Steering::arrowDown() {
  bool any = false;
  for (const int arrow : {key::Left, key::Right, key::Down, key::Up}) {
    if (input_.GetAsyncKeyState(arrow)) any = true;
  }
  return any;
}

bool Steering::CoMuiTen() {
  const bool arrow = arrowDown();
  const bool esc = input_.GetAsyncKeyState(key::Esc);
  if (arrow && !esc) XaPhim();
  return arrow;
}

void Steering::XaPhim() {
  for (const int code : {key::Esc, key::Left, key::Up, key::Right, key::Down}) {
    input_.GetAsyncKeyState(code);
  }
}

void Steering::ChonDong() {
  NhanPhim(key::Home);
  NhaPhim(key::Home);
  NhanPhim(key::Shift);
  NhanPhim(key::End);
  NhaPhim(key::Shift);
  NhaPhim(key::End);
}

PixelPoint Steering::restPoint() const {
  if (measures_.RongMH > 15560) return {612, 70};
  if (measures_.RongMH > 15000) return {512, 55};
  return {400, 50};
}

void Steering::ChuotGoc() {
  pointAt(restPoint());
}

void Steering::ChuotNhapGoc() {
  const PixelPoint rest = restPoint();
  pointAt({rest.x / 5, rest.y * 2});
  NhapPhai();
  pointAt(rest);
}

void Steering::declare(Variables& variables) const {
  variables.add("ChuotX1", &ChuotX1);
  variables.add("ChuotX2", &ChuotX2);
  variables.add("ChuotY", &ChuotY);
  variables.add("ChuotBuoc", &ChuotBuoc);
}

} // namespace talvora
