#include "shell/Curtain.h"

#include "surface/Looks.h"
#include "text/Rounding.h"

namespace talvora {

namespace {

constexpr int Alpha = 100;
constexpr int PauseMs = 600;
constexpr int WideScreen = 15560;
constexpr int MiddleScreen = 15000;

} // namespace

void Curtain::KeoManNgang(Surface& surface) {
  narrator_.curtainOpened(surface.Name());
  steering_.pointAt({0, 0});
  hang(surface);
  const int extra = measures_.RongMH > WideScreen ? measures_.RongMH / 60 : 0;
  const int k = controls_.FC1.Width() / 100 + extra;
  steering_.ChuotGoc();
  if (clock_.Sleep(PauseMs) == Flow::Continue) open(k);
  controls_.FC1.Visible(false);
  controls_.FC2.Visible(false);
  form_.Refresh();
  surface.SetFocus();
  steering_.ChuotNhapGoc();
}

void Curtain::hang(const Surface& surface) {
  const int W = measures_.RongMH;
  const double H = measures_.CaoMH;
  const int below = W > WideScreen     ? Round(H / 100)
                    : W > MiddleScreen ? Round(H / 70)
                                       : Round(H / 40);
  Panel& left = controls_.FC1;
  left.BackColor(look::Curtain);
  left.Alpha(Alpha);
  left.Height(surface.Height() + W / 50);
  left.Top(surface.Top() + below);
  left.Left(surface.Left() - W / 150);
  left.Width(W / 2 - left.Left());
  left.Visible(true);
  form_.Refresh();

  Panel& right = controls_.FC2;
  right.BackColor(look::Curtain);
  right.Alpha(Alpha);
  right.Height(left.Height());
  right.Width(left.Width() + W / 80);
  right.Top(left.Top());
  right.Left(W / 2);
  right.Visible(true);
  form_.Refresh();
}

bool Curtain::part(int distance) {
  Panel& left = controls_.FC1;
  Panel& right = controls_.FC2;
  if (left.Width() <= distance) return false;
  left.Width(left.Width() - distance);
  right.Left(right.Left() + distance);
  form_.RefreshStep();
  return true;
}

void Curtain::open(int firstStep) {
  const int rounds = controls_.FC1.Width();
  // First with growing steps, then with even ones.
  for (int i = 1; i <= 16; ++i) {
    if (!part(i * 5 * firstStep)) break;
  }
  const int step = Round(controls_.FC1.Width() / 30.0);
  for (int round = 0; round < rounds; ++round) {
    // A step of nothing moves nothing, however often.
    if (step <= 0 || !part(step)) break;
  }
}

} // namespace talvora
