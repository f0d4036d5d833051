// A click on a row of your vocabulary, for the surface and the desktop's own layout: the caret goes
// to the row, and the row's number is asked twice. Needs no display: QT_QPA_PLATFORM=offscreen.
#include "desktop/Fonts.h"
#include "desktop/QtLineLayout.h"
#include "surface/Surface.h"

#include <QApplication>
#include <benchmark/benchmark.h>

#include <string>

namespace {

using namespace talvora;

class QuietHost final : public ControlHost {
 public:
  void giveFocus(Control&) override {}
  [[nodiscard]] bool hasFocus(const Control&) const noexcept override { return true; }
  void focusNeighbour(Control&, int) override {}
  void controlChanged(Control&, ControlChange) override {}
};

std::string rows(int count) {
  std::string text;
  for (int row = 1; row <= count; ++row) {
    text += std::to_string(row) + "\t\tword";
    for (int rest = row; rest > 0; rest /= 26)
      text += static_cast<char>('a' + rest % 26);
    text += '\r';
  }
  return text;
}

class List {
 public:
  explicit List(int count) {
    surface.Width(8000);
    surface.Height(9000);
    surface.FontSize(19);
    surface.Text(rows(count));
  }
  void click(int caret) {
    surface.SelStart(caret);
    benchmark::DoNotOptimize(surface.pointOf(caret));
    benchmark::DoNotOptimize(surface.GetLineFromChar(caret));
    benchmark::DoNotOptimize(surface.GetLineFromChar(caret));
  }

  QuietHost host;
  QtLineLayout layout;
  Surface surface{"Rchon", host, layout};
};

void clickOnRow(benchmark::State& state) {
  List list(static_cast<int>(state.range(0)));
  const int length = list.surface.TextLength();
  list.click(length - 2);
  int step = 0;
  for ([[maybe_unused]] auto each : state)
    list.click(length - 2 - ++step % 20);
  state.SetLabel("limit 2 ms");
}

/// The list has just been written anew, as after a word that was added or deleted.
void clickOnNewList(benchmark::State& state) {
  const int count = static_cast<int>(state.range(0));
  List list(count);
  const std::string text = rows(count);
  for ([[maybe_unused]] auto each : state) {
    state.PauseTiming();
    list.surface.Text("");
    list.surface.Text(text);
    state.ResumeTiming();
    list.click(list.surface.TextLength() - 2);
  }
  state.SetLabel("limit 2 ms");
}

} // namespace

BENCHMARK(clickOnRow)->Arg(1000)->Arg(3000)->Unit(benchmark::kMillisecond);
BENCHMARK(clickOnNewList)->Arg(1000)->Arg(3000)->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  loadFonts();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
