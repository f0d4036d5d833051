// From a key to the finished text of a lesson or an item, its lines broken and its place scrolled
// to, without a window. What painting adds is measured beside it with the desktop.
#include "Pages.h"

namespace {

using namespace talvora;

using Measured = void (*)(benchmark::State&, test::ItemRun&, const std::function<void()>&);

void onSurface(benchmark::State& state, Measured measured, Surface ProgramControls::*surface) {
  test::ItemRun run(bench::pages());
  Surface& seen = run.controls.*surface;
  measured(state, run, [&seen] {
    benchmark::DoNotOptimize(seen.pointOf(seen.SelStart()));
    benchmark::DoNotOptimize(seen.GetLineFromChar(seen.TextLength()));
  });
}

} // namespace

BENCHMARK_CAPTURE(onSurface, lesson, bench::openLessons, &ProgramControls::RVP2)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(onSurface, nextItem, bench::stepItems, &ProgramControls::RDT)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(onSurface, judgedItem, bench::judgeItems, &ProgramControls::RDT)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(onSurface, typedLetter, bench::typeLetters, &ProgramControls::RDT)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);
