#include "pack/import/ImportedDictionary.h"

#include "pack/Message.h"

#include <utility>

namespace talvora::pack {

namespace {

constexpr std::size_t mostText = std::size_t{768} << 20;

} // namespace

bool EntryCollector::add(std::string head, std::string text) {
  bytes_ += head.size() + text.size();
  if (dictionary.entries.size() >= MostImportedEntries || bytes_ > mostText) {
    problems_.add({file_}, said("the dictionary is too large"));
    return false;
  }
  dictionary.entries.push_back({std::move(head), std::move(text)});
  return true;
}

void EntryCollector::fail(std::size_t offset, const std::string& what) {
  problems_.add({file_}, said("offset {}: {}", offset, what));
}

} // namespace talvora::pack
