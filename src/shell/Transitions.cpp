#include "shell/Transitions.h"

#include "text/Rounding.h"

namespace talvora {

namespace {

/// One coordinate of a slide. Where the other way is longer, a step is taken back once per period,
/// so that both arrive together.
struct Way {
  int at;
  int target;
  int step; ///< signed: towards the target
  int period = 0;
  int count = 0;

  [[nodiscard]] bool arrived() const { return step > 0 ? at >= target : at <= target; }

  void advance() {
    ++count;
    const bool fits = step > 0 ? at + step <= target : at + step >= target;
    if (!fits) {
      at = target;
      return;
    }
    at += step;
    if (period > 0 && count == period) {
      count = 0;
      at -= step;
    }
  }
};

int periodOf(int longer, int shorter) {
  return shorter > 0 ? Round(static_cast<double>(longer - shorter) / shorter) : 0;
}

} // namespace

int Transitions::TreTruot() const noexcept {
  switch (measures_.KieuTruot) {
  case 1:
    return 50;
  case 2:
    return 30;
  case 3:
    return 1;
  default:
    return 0;
  }
}

int Transitions::openingStep() const {
  return measures_.KieuTruot == 4 ? measures_.BuocTruot : Round(measures_.RongMH * 2 / 100.0);
}

int Transitions::closingStep() const {
  return measures_.KieuTruot == 4 ? measures_.BuocTruot : Round(measures_.RongMH * 2 / 150.0);
}

Flow Transitions::pause() {
  return TreTruot() == 0 ? Flow::Continue : clock_.Sleep(TreTruot());
}

void Transitions::MoRan(Surface& surface, Frame& frame) {
  const double W = measures_.RongMH;
  const double H = measures_.CaoMH;
  surface.Height(Round(H * 80 / 100));
  surface.Width(Round(W * measures_.PhanTramRong / 100));
  frame.Visible(false);
  frame.Height(surface.Height() + Round(H * 2 / 100));
  frame.Width(surface.Width() + Round(W * 2 / 100));

  const int targetTop = Round((H - surface.Height()) / 2);
  const int targetLeft = Round((W - surface.Width()) / 2);
  if (!standsAtOnce()) slideIn(surface, targetLeft, targetTop);
  surface.Left(targetLeft);
  surface.Top(targetTop);
  surface.Visible(true);
  frame.Left(surface.Left() - Round(W / 100));
  frame.Top(surface.Top() - Round(H / 100));
  frame.Visible(true);
  form_.Refresh();
  surface.SetFocus();
}

void Transitions::slideIn(Surface& surface, int targetLeft, int targetTop) {
  int step = openingStep();
  if (step < 6) step = 10;
  Way across{-surface.Width(), targetLeft, step};
  Way up{measures_.CaoMH, targetTop, -step};
  const int n = Round(static_cast<double>(surface.Width() + targetLeft) / step);
  const int m = Round(static_cast<double>(measures_.CaoMH - targetTop) / step);
  if (m > n) up.period = periodOf(m, n);
  if (m < n) across.period = periodOf(n, m);
  // A period of 1 would take every step back again.
  if (up.period == 1) up.period = 0;
  if (across.period == 1) across.period = 0;
  while (!across.arrived() || !up.arrived()) {
    across.advance();
    up.advance();
    form_.Refresh();
    surface.Top(up.at);
    surface.Left(across.at);
    surface.Visible(true);
    if (pause() == Flow::Interrupt) return;
  }
}

void Transitions::DongRan(Surface& surface, Frame& frame) {
  hints_.AnRDOS(surface);
  // The popup closes with whatever surface leaves.
  upward_.DongNghia();
  if (!standsAtOnce()) {
    frame.Visible(false);
    slideOut(surface);
  }
  surface.Visible(false);
  frame.Visible(false);
  form_.Refresh();
}

void Transitions::declare(Variables& variables) const {
  variables.add("TreTruot", [this] { return VariableValue(TreTruot()); });
}

void Transitions::slideOut(Surface& surface) {
  const int step = closingStep();
  const int W = measures_.RongMH;
  const int H = measures_.CaoMH;
  // Whoever calls hides the surface, wherever it has come to.
  Flow flow = Flow::Continue;
  const auto mayMove = [&] {
    form_.Refresh();
    if (flow == Flow::Continue) flow = pause();
    return flow == Flow::Continue;
  };
  const auto down = [&] {
    while (surface.Top() + surface.Height() < H && mayMove())
      surface.Top(surface.Top() + step);
  };
  const auto towardsOne = [&](int at) { return at - step < 0 ? 1 : at - step; };

  down();
  while (surface.Left() + surface.Width() < W && mayMove())
    surface.Left(surface.Left() + step);
  while (surface.Top() >= 1 && mayMove()) {
    surface.Top(towardsOne(surface.Top()));
    if (surface.Top() == 1) break;
  }
  while (surface.Left() >= 1 && mayMove()) {
    surface.Left(towardsOne(surface.Left()));
    if (surface.Left() == 1) break;
  }
  down();
  for (int counter = H; counter > 0 && surface.Left() < W && mayMove(); counter -= step) {
    surface.Top(surface.Top() - step);
    surface.Left(surface.Left() + step);
  }
}

} // namespace talvora
