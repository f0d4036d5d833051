// From a key to the painted picture of a lesson or an item, in a window of the size of the virtual
// screen. Needs no display: run it with QT_QPA_PLATFORM=offscreen, or with one to see it at work.
#include "../Pages.h"

#include "desktop/EventBridge.h"
#include "desktop/FontWarmer.h"
#include "desktop/Fonts.h"
#include "desktop/FormView.h"
#include "desktop/QtLineLayout.h"

#include <QApplication>

namespace {

using namespace talvora;

using Measured = void (*)(benchmark::State&, test::ItemRun&, const std::function<void()>&);

constexpr double PixelsPerTwip = 1.0 / 15;

void inWindow(benchmark::State& state, Measured measured) {
  const QtLineLayout layout;
  QtLineLayout shaper;
  test::ItemRun run(bench::pages(), {}, layout);
  EventBridge bridge;
  FormView view(run.form, run.input, bridge, shaper, nullptr);
  view.setScale(PixelsPerTwip);
  run.form.Show();
  view.show();
  FontWarmer warmer(shaper.letters());
  warmer.warm(stylesOf(run.controls), PixelsPerTwip);
  warmer.finish();
  QApplication::processEvents();
  measured(state, run, [&view] { view.repaintNow(); });
}

} // namespace

BENCHMARK_CAPTURE(inWindow, lesson, bench::openLessons)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(inWindow, nextItem, bench::stepItems)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(inWindow, judgedItem, bench::judgeItems)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(inWindow, typedLetter, bench::typeLetters)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  loadFonts();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
}
