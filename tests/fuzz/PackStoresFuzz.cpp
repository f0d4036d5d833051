// Any bytes as the stores that the compiler reads back: every decoder reports what it cannot read
// and ends.
#include "pack/AnalysisStore.h"
#include "pack/DictionaryStore.h"
#include "pack/ExerciseStore.h"
#include "pack/LessonStore.h"
#include "pack/ListeningStore.h"
#include "pack/ReadingStore.h"
#include "tests/fuzz/Pieces.h"

#include <cstdint>

using namespace talvora::pack;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  talvora::fuzz::Pieces pieces({reinterpret_cast<const char*>(data), size});
  const std::string_view table = pieces.next();
  const std::string_view stream = pieces.next();
  const std::string_view third = pieces.next();
  Problems problems;
  static_cast<void>(decodeReadings(table, stream, problems));
  const LessonSource lessons = decodeLessons(table, stream, problems);
  static_cast<void>(decodeExercises({table, stream, third}, lessons, problems));
  static_cast<void>(decodeListening(table, stream, third, problems));
  static_cast<void>(decodeAnalyses(table, stream, problems));
  static_cast<void>(decodeOwnEntries(third, table, stream, problems));
  return 0;
}
