// Layout of the word list, its records and its entries.
#include "pack/DictionaryStore.h"

#include "formats/Integers.h"
#include "formats/PackFiles.h"
#include "pack/EntryNotation.h"
#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "pack/StreamText.h"

#include <unordered_map>

namespace talvora::pack {

namespace {

constexpr char entryEnd = '\r';

/// The stream of entries; equal entries share one place.
class EntryStream {
 public:
  /// Record number of the entry's first byte, from 1.
  std::size_t place(const std::string& entry) {
    const auto [known, isNew] = places_.emplace(entry, bytes_.size() + 1);
    if (isNew) {
      appendStored(bytes_, entry);
      appendStored(bytes_, std::string_view(&entryEnd, 1));
    }
    return known->second;
  }

  std::string takeBytes() { return std::move(bytes_); }

 private:
  std::string bytes_;
  std::unordered_map<std::string, std::size_t> places_;
};

} // namespace

std::vector<PackFile> compileDictionary(const WordList& list) {
  std::string words;
  std::string records;
  EntryStream entries;
  for (const std::size_t number : list.sorted()) {
    const Word& word = list.at(number);
    words += word.head + "\n";
    appendInteger(records, entries.place(list.entryOf(word)));
    appendInteger(records, words.size());
  }
  return {{std::string(packfile::Words), std::move(words)},
          {std::string(packfile::WordRecords), std::move(records)},
          {std::string(packfile::Entries), entries.takeBytes()}};
}

std::vector<OwnEntry> decodeOwnEntries(std::string_view words, std::string_view records,
                                       std::string_view entries, Problems& problems) {
  std::vector<OwnEntry> own;
  for (const SourceLine& line : linesOf(words)) {
    const auto record = 2 * static_cast<std::size_t>(line.number) - 1;
    const auto entry = storedUntil(entries, integerAt(records, record) - std::int64_t{1}, entryEnd);
    if (!entry) {
      problems.add({std::string(packfile::Words), line.number, 1},
                   said("the entry of this word cannot be read"));
      continue;
    }
    OwnNotation notation = readOwnNotation(*entry, line.text);
    for (EntryBlock& block : notation.blocks) {
      const bool first = &block == &notation.blocks.front();
      own.push_back({std::string(line.text), std::move(block), {}, notation.formsFirst && first});
    }
  }
  return own;
}

} // namespace talvora::pack
