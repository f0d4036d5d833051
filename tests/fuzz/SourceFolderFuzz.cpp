// Any files at all as the folders of a course's sources: the first line of each piece names the
// file. What is accepted without a word goes through the stores and back.
#include "pack/AnalysisStore.h"
#include "pack/DictionarySource.h"
#include "pack/LessonSource.h"
#include "pack/ReadingStore.h"
#include "tests/fuzz/Pieces.h"
#include "tests/support/TemporaryFolder.h"

#include <algorithm>
#include <cctype>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>

namespace {

using namespace talvora;
using namespace talvora::pack;

constexpr int MostFiles = 6;

void require(bool holds) {
  if (!holds) std::abort();
}

bool isPlain(char character) {
  return std::isalnum(static_cast<unsigned char>(character)) != 0 || character == '-';
}

void writeFiles(const std::filesystem::path& folder, fuzz::Pieces pieces) {
  constexpr std::size_t LongestName = 30;
  for (int file = 0; file < MostFiles; ++file) {
    const std::string_view piece = pieces.next();
    const std::string_view name = piece.substr(0, std::min(piece.find('\n'), piece.size()));
    if (name.empty() || name.size() > LongestName ||
        !std::all_of(name.begin(), name.end(), isPlain))
      continue;
    std::ofstream(folder / (std::string(name) + ".txt"), std::ios::binary)
        << piece.substr(std::min(name.size() + 1, piece.size()));
  }
}

void checkTexts(const std::filesystem::path& folder) {
  Problems problems;
  ReadingSource readings = readReadings(folder, problems);
  const ReadingSource before = readings;
  const AnalysisSource analyses = readAnalyses(folder, problems);
  markStretches(analyses, readings, problems);
  if (!problems.none()) return;
  const TextStore texts = compileReadings(readings);
  const TextStore told = compileAnalysisTexts(analyses);
  ReadingSource back = decodeReadings(texts.positions, texts.stream, problems);
  unmarkStretches(back);
  require(problems.none() && back.texts.size() == before.texts.size());
  for (const auto& [slot, text] : before.texts)
    require(writeReadingText(back.texts.at(slot)) == writeReadingText(text));
  static_cast<void>(decodeAnalyses(told.positions, told.stream, problems));
  require(problems.none());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const test::TemporaryFolder folder;
  writeFiles(folder.path(), fuzz::Pieces({reinterpret_cast<const char*>(data), size}));
  checkTexts(folder.path());
  Problems others;
  static_cast<void>(readTexts(folder.path(), 1000, others));
  static_cast<void>(readDictionary(folder.path(), others));
  static_cast<void>(readLessons(folder.path(), others));
  return 0;
}
