// Any bytes as a learner's list, as the file of its sentences and as its journal: what can be read
// is written again just as it was read, and no deed that was not noted is done.
#include "learner/VocabularyFile.h"
#include "learner/WordJournal.h"
#include "learner/WordRows.h"
#include "platform/Files.h"
#include "tests/support/TemporaryFolder.h"

#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using namespace talvora;

void require(bool holds) {
  if (!holds) std::abort();
}

const std::string& journalPath() {
  static const test::TemporaryFolder folder;
  static const std::string path = (folder.path() / "journal").string();
  return path;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  const auto rows = rowsFrom(text);
  require(rowsFrom(fileOf(rows)) == rows);

  const VocabularyContent content = vocabularyFrom({data, size});
  require(content.words.size() * VocabularyWord::RecordSize + content.oddBytes.size() == size);
  for (const VocabularyWord& word : content.words)
    require(asWritten(asWritten(word.word())) == asWritten(word.word()));

  if (replaceFile(systemFiles(), journalPath(), {data, size})) return 0;
  WordJournal journal(journalPath(), systemFiles());
  auto deeds = journal.read();
  require(deeds.has_value());
  if (rows.empty()) return 0;
  deeds->push_back({WordDeed::Kind::Added, rows.front()});
  require(!journal.append({deeds->back()}));
  require(journal.read() == deeds);
  return 0;
}
