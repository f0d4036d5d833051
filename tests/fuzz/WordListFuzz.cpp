// Any bytes as a list of words: what is taken is what the program's list can hold, and it comes
// back the same from a table that is written of it.
#include "pack/words/WordListFile.h"

#include "learner/VocabularyFile.h"
#include "learner/WordRows.h"
#include "pack/words/Table.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace talvora;
  const auto content = pack::wordListFrom({reinterpret_cast<const char*>(data), size});
  std::string table = pack::tableRow({"word", "sentence"}, ',');
  for (const pack::ListedWord& word : content.words) {
    require(!word.word.empty() && word.word.size() <= VocabularyWord::LongestWord);
    table += pack::tableRow({readableText(word.word), readableText(word.sentence)}, ',');
  }
  const auto again = pack::wordListFrom(table);
  require(again.refused.empty() && again.words.size() == content.words.size());
  for (std::size_t at = 0; at < again.words.size(); ++at) {
    require(again.words[at].word == content.words[at].word);
    require(again.words[at].sentence == asWritten(content.words[at].sentence));
  }
  return 0;
}
