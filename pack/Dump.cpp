// Sources from the files of a pack.
#include "pack/Dump.h"

#include "pack/DictionaryStore.h"
#include "pack/ReadingStore.h"
#include "pack/SourceFile.h"
#include "pack/StreamText.h"
#include "text/Text.h"
#include "text/WordForm.h"

#include <map>

namespace talvora::pack {

namespace {

std::string threeDigits(int slot) {
  const std::string digits = std::to_string(slot);
  return std::string(3 - digits.size(), '0') + digits;
}

void dumpReadings(const std::filesystem::path& pack, std::vector<SourceText>& sources,
                  Problems& problems) {
  const std::string positions = readSource(pack / "data.vt", problems);
  const std::string stream = readSource(pack / "data.av", problems);
  if (!problems.none()) return;
  const ReadingSource readings = decodeReadings(positions, stream, problems);
  for (const auto& [slot, text] : readings.texts) {
    sources.push_back({"reading/" + threeDigits(slot) + "-text.txt", writeReadingText(text)});
  }
  std::string headings;
  for (const auto& [slot, heading] : readings.headings) {
    headings += std::to_string(slot) + "\t" + utf8Of(heading) + "\n";
  }
  sources.push_back({"reading/headings.txt", headings});
}

void dumpDictionary(const std::filesystem::path& pack, std::vector<SourceText>& sources,
                    Problems& problems) {
  const std::string words = readSource(pack / "datatu.txt", problems);
  const std::string records = readSource(pack / "data.mtd", problems);
  const std::string entries = readSource(pack / "data.avt", problems);
  if (!problems.none()) return;
  std::map<char, std::string> byLetter;
  for (const OwnEntry& entry : decodeOwnEntries(words, records, entries, problems)) {
    std::string& text = byLetter[ChuanHoaTu(entry.head).front()];
    if (!text.empty()) text += "\n";
    text += writeEntry(entry);
  }
  for (auto& [letter, text] : byLetter) {
    sources.push_back({std::string("dictionary/") + letter + ".txt", std::move(text)});
  }
}

} // namespace

std::vector<SourceText> dump(const std::filesystem::path& pack, Problems& problems) {
  std::vector<SourceText> sources;
  dumpReadings(pack, sources, problems);
  dumpDictionary(pack, sources, problems);
  return sources;
}

} // namespace talvora::pack
