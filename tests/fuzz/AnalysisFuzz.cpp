// Any bytes at all as an analysis and its text: stretches, entries and marks come out, or the
// failure that names too many. As a source the same bytes are parsed, and what is accepted goes
// through the store and back.
#include "pack/AnalysisStore.h"
#include "platform/FatalFailure.h"
#include "writing/Analysis.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace talvora;

namespace {

void readAsAnalysis(std::string_view bytes) {
  try {
    const auto stretches = LapOTuPT(bytes, static_cast<int>(bytes.size() % 7), "text");
    const auto entries = GanGiaiPT(bytes, "analysis");
    if (stretches.size() > MostStretches || entries.size() > MostStretches) std::abort();
  } catch (const FatalFailure&) {
    return;
  }
  const auto length = static_cast<int>(bytes.size());
  for (int position = -1; position <= length + 2; position += 1 + length / 64) {
    const WordMark mark = markAt(bytes, position);
    if (mark.SelLength < 0 || mark.SelLength > length) std::abort();
  }
}

void readAsSource(std::string_view text) {
  pack::Problems problems;
  pack::AnalysisSource source;
  source.analyses[3] = pack::parseAnalysis(text, "analysis", problems);
  if (!problems.none()) return;
  pack::ReadingSource readings;
  readings.texts[6].paragraphs = {{{"She opens the shop.", ""}}};
  pack::Problems unfit;
  pack::markStretches(source, readings, unfit);
  const pack::TextStore store = pack::compileAnalysisTexts(source);
  const pack::AnalysisSource back = pack::decodeAnalyses(store.positions, store.stream, problems);
  if (!problems.none()) std::abort();
  if (pack::writeAnalysis(back.analyses.at(3)) != pack::writeAnalysis(source.analyses.at(3))) {
    std::abort();
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  readAsAnalysis(bytes);
  readAsSource(bytes);
  return 0;
}
