// Any bytes as a dictionary entry: what is shown stays bounded, and stretches stay in the table.
#include "dictionary/EntryMarkup.h"

#include <cstdint>
#include <cstdlib>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace talvora;
  const std::string_view entry(reinterpret_cast<const char*>(data), size);
  const ShownEntry shown = readMarkup(entry);
  constexpr std::size_t mostPerCharacter = 4; // a line end and a dash for "_"
  if (shown.text.size() > mostPerCharacter * size) std::abort();
  for (const auto* spans : {&shown.blue, &shown.redItalic}) {
    if (spans->size() > ShownEntry::MostSpans) std::abort();
    for (const EntrySpan& span : *spans) {
      if (span.start < 0 || static_cast<std::size_t>(span.start) > shown.text.size()) std::abort();
      if (span.length < -1) std::abort();
    }
  }
  return 0;
}
