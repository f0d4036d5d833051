// Any bytes as the stores that the compiler reads back: every decoder reports what it cannot read
// and ends, and what it read can be stored and read again.
#include "pack/AnalysisStore.h"
#include "pack/DictionaryStore.h"
#include "pack/ExerciseStore.h"
#include "pack/LessonStore.h"
#include "pack/ListeningStore.h"
#include "pack/ReadingStore.h"
#include "tests/fuzz/Pieces.h"

#include <cstdint>
#include <cstdlib>

using namespace talvora::pack;

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

void storeAgain(const ReadingSource& readings) {
  const TextStore store = compileReadings(readings);
  Problems problems;
  const ReadingSource back = decodeReadings(store.positions, store.stream, problems);
  require(problems.none() && back.headings == readings.headings);
  require(back.texts.size() == readings.texts.size());
  for (const auto& [slot, text] : readings.texts)
    require(writeReadingText(back.texts.at(slot)) == writeReadingText(text));
}

void storeAgain(const LessonSource& lessons) {
  const TextStore store = compileLessons(lessons, {});
  Problems problems;
  const LessonSource back = decodeLessons(store.positions, store.stream, problems);
  require(problems.none() && back.headings == lessons.headings);
  require(back.lessons.size() == lessons.lessons.size());
}

void storeAgain(const ExerciseSource& exercises, const LessonSource& lessons) {
  const auto files = compileExercises(exercises, lessons);
  Problems problems;
  const ExerciseSource back =
      decodeExercises({files.at(0).bytes, files.at(1).bytes, files.at(2).bytes}, lessons, problems);
  require(problems.none());
  for (std::size_t bank = 0; bank < BankCount; ++bank)
    require(back.banks[bank].size() == exercises.banks[bank].size());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  talvora::fuzz::Pieces pieces({reinterpret_cast<const char*>(data), size});
  const std::string_view table = pieces.next();
  const std::string_view stream = pieces.next();
  const std::string_view third = pieces.next();
  Problems problems;
  storeAgain(decodeReadings(table, stream, problems));
  const LessonSource lessons = decodeLessons(table, stream, problems);
  storeAgain(lessons);
  storeAgain(decodeExercises({table, stream, third}, lessons, problems), lessons);
  static_cast<void>(decodeListening(table, stream, third, problems));
  static_cast<void>(decodeAnalyses(table, stream, problems));
  static_cast<void>(decodeOwnEntries(third, table, stream, problems));
  return 0;
}
