// Any bytes at all as content sources: the parsers report, they never fail otherwise; and what they
// accept without a word goes through the store and back.
#include "pack/DictionarySource.h"
#include "pack/Guide.h"
#include "pack/ReadingStore.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

using namespace talvora::pack;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  Problems readingProblems;
  ReadingSource source;
  source.texts[4] = parseReadingText(text, "text", readingProblems);
  if (readingProblems.none()) {
    const TextStore store = compileReadings(source);
    const ReadingSource back = decodeReadings(store.positions, store.stream, readingProblems);
    if (!readingProblems.none()) std::abort();
    if (writeReadingText(back.texts.at(4)) != writeReadingText(source.texts.at(4))) std::abort();
  }
  Problems others;
  static_cast<void>(parseHeadings(text, "headings", others));
  static_cast<void>(parseDictionary(text, "dictionary", others));
  static_cast<void>(compileGuide(text, "guide", others));
  return 0;
}
