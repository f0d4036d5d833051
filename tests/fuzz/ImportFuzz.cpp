// Any bytes as the files of a brought dictionary, and as what it says: whatever is read goes into
// the notation of entries without a mark of its own.
#include "pack/Entry.h"
#include "pack/Gunzip.h"
#include "pack/import/Dictd.h"
#include "pack/import/ImportedNotation.h"
#include "pack/import/StarDict.h"
#include "pack/import/TabbedDictionary.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

using namespace talvora::pack;

void require(bool holds) {
  if (!holds) std::abort();
}

void examine(const ImportedDictionary& dictionary) {
  NotationWriter writer(dictionary.name);
  for (const ImportedEntry& entry : dictionary.entries) {
    const ImportedNotation notation = writer.notationOf(entry.head, entry.text);
    const auto marks = [&](char mark) {
      return std::count(notation.text.begin(), notation.text.end(), mark);
    };
    require(marks('#') == (notation.text.empty() ? 0 : 2) && marks('@') == 0 && marks('\r') == 0);
    require(writer.headOf(entry.head).find_first_of(EntryMarks) == std::string::npos);
  }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  Problems problems;
  examine(readTabbed(bytes, "a.tsv", problems));
  // The first half is the index, the second what it leads to.
  const std::string_view index = bytes.substr(0, size / 2);
  const std::string_view articles = bytes.substr(size / 2);
  examine(readDictd(index, articles, "a.index", problems));
  for (const std::string_view info : {"sametypesequence=tXm", "idxoffsetbits=64", "bookname=a_#b"})
    examine(readStarDict({info, index, articles, articles, "a.idx"}, problems));
  const Unpacked content = unpacked(bytes, std::size_t{1} << 20);
  require(content.bytes.has_value() == content.problem.empty());
  return 0;
}
