// Counting of slots and words.
#include "pack/Status.h"

#include "pack/StreamText.h"
#include "text/WordForm.h"

#include <algorithm>
#include <map>

namespace talvora::pack {

namespace {

struct StoreSlots {
  std::string_view name;
  std::size_t slots;
};

// Stores whose sources the compiler does not read yet.
constexpr std::array<StoreSlots, 5> openStores = {{{"speaking texts", 2025},
                                                   {"rule lessons", 357},
                                                   {"exercise sections", 366},
                                                   {"listening items", 556},
                                                   {"analyses", 11}}};

std::string line(std::string_view name, std::size_t number) {
  return "  " + std::string(name) + ": " + std::to_string(number) + "\n";
}

std::string slotReport(const ReadingSource& readings) {
  const std::size_t filled = readings.texts.size() + readings.headings.size();
  std::string report = "Slots\n";
  report += "  reading texts: " + std::to_string(readings.texts.size()) + " texts, " +
            std::to_string(readings.headings.size()) + " headings, " +
            std::to_string(ReadingSlots - filled) + " open\n";
  for (const StoreSlots& store : openStores) {
    report +=
        "  " + std::string(store.name) + ": 0 filled, " + std::to_string(store.slots) + " open\n";
  }
  return report;
}

std::string kindReport(const WordList& list) {
  std::array<std::size_t, WordKindNames.size()> counts{};
  for (const Word& word : list.words())
    ++counts[static_cast<std::size_t>(word.kind)];
  std::string report = "Word list\n";
  for (const WordKindName& name : WordKindNames) {
    report += line(name.name, counts[static_cast<std::size_t>(name.kind)]);
  }
  return report + line("in all", list.size());
}

} // namespace

std::optional<std::size_t> lookUp(const WordList& list, const std::string& word) {
  if (const auto exact = list.find(word)) return exact;
  if (const auto reduced = list.find(RutGonDuoi(word))) return reduced;
  for (std::string shorter = word; shorter.size() > 1; shorter.pop_back()) {
    if (const auto found = list.find(shorter)) return found;
  }
  return std::nullopt;
}

std::vector<MissingWord> missingWords(const WordList& list, const ReadingSource& readings) {
  std::map<std::string, std::size_t> counts;
  for (const std::string& word : wordsOfReadings(readings)) {
    const auto found = lookUp(list, word);
    if (!found || !list.hasVietnamese(list.at(*found))) ++counts[word];
  }
  std::vector<MissingWord> missing;
  for (const auto& [word, count] : counts)
    missing.push_back({word, count});
  std::stable_sort(missing.begin(), missing.end(),
                   [](const auto& left, const auto& right) { return left.count > right.count; });
  return missing;
}

std::string statusReport(const Content& content, const WordList& list) {
  std::string report = slotReport(content.readings) + "\n" + kindReport(list) + "\n";
  const auto missing = missingWords(list, content.readings);
  report +=
      "Words of the reading texts without a Vietnamese sense: " + std::to_string(missing.size()) +
      "\n";
  for (const MissingWord& each : missing)
    report += line(utf8Of(each.word), each.count);
  return report;
}

} // namespace talvora::pack
