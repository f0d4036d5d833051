// Sources from the files of a pack.
#include "pack/Dump.h"

#include "formats/PackFiles.h"
#include "pack/AnalysisStore.h"
#include "pack/DictionaryStore.h"
#include "pack/ExerciseStore.h"
#include "pack/LessonStore.h"
#include "pack/ListeningStore.h"
#include "pack/ReadingStore.h"
#include "pack/SourceFile.h"
#include "pack/SpeakingSource.h"
#include "pack/StreamText.h"
#include "text/Text.h"
#include "text/WordForm.h"

#include <algorithm>
#include <map>

namespace talvora::pack {

namespace {

/// A slot as the file names have it.
std::string padded(int slot, std::size_t width) {
  const std::string digits = std::to_string(slot);
  return std::string(width - std::min(width, digits.size()), '0') + digits;
}

void addTexts(const std::string& folder, std::size_t digits, const ReadingSource& texts,
              std::vector<SourceText>& sources) {
  for (const auto& [slot, text] : texts.texts) {
    sources.push_back({folder + "/" + padded(slot, digits) + "-text.txt", writeReadingText(text)});
  }
  std::string headings;
  for (const auto& [slot, heading] : texts.headings) {
    headings += std::to_string(slot) + "\t" + utf8Of(heading) + "\n";
  }
  sources.push_back({folder + "/headings.txt", headings});
}

void dumpReadings(const std::filesystem::path& pack, std::vector<SourceText>& sources,
                  Problems& problems) {
  const std::string positions = readSource(pack / packfile::ReadingPositions, problems);
  const std::string stream = readSource(pack / packfile::ReadingTexts, problems);
  if (!problems.none()) return;
  ReadingSource readings = decodeReadings(positions, stream, problems);
  unmarkStretches(readings);
  addTexts("reading", 3, readings, sources);
}

void dumpSpeaking(const std::filesystem::path& pack, std::vector<SourceText>& sources,
                  Problems& problems) {
  const std::string positions = readSource(pack / packfile::SpeakingPositions, problems);
  const std::string stream = readSource(pack / packfile::SpeakingTexts, problems);
  if (!problems.none()) return;
  addTexts("speaking", 4, decodeSpeaking(positions, stream, problems), sources);
}

void dumpListening(const std::filesystem::path& pack, std::vector<SourceText>& sources,
                   Problems& problems) {
  const std::string positions = readSource(pack / packfile::ListeningPositions, problems);
  const std::string stream = readSource(pack / packfile::ListeningItems, problems);
  const std::string page = readSource(pack / packfile::ListeningPage, problems);
  if (!problems.none()) return;
  const ListeningSource listening = decodeListening(positions, stream, page, problems);
  for (const auto& [unit, items] : listening.units) {
    sources.push_back(
        {"listening/unit-" + std::to_string(unit) + ".txt", writeListeningUnit(items)});
  }
  sources.push_back({"listening/template.txt", writeListeningPage(listening.page)});
}

void dumpAnalyses(const std::filesystem::path& pack, std::vector<SourceText>& sources,
                  Problems& problems) {
  const std::string positions = readSource(pack / packfile::AnalysisPositions, problems);
  const std::string stream = readSource(pack / packfile::Analyses, problems);
  if (!problems.none()) return;
  for (const auto& [slot, analysis] : decodeAnalyses(positions, stream, problems).analyses) {
    sources.push_back({"analysis/" + padded(slot, 2) + ".txt", writeAnalysis(analysis)});
  }
}

void dumpItems(const std::filesystem::path& pack, const LessonSource& lessons,
               std::vector<SourceText>& sources, Problems& problems) {
  const std::string positions = readSource(pack / packfile::ItemPositions, problems);
  const std::string stream = readSource(pack / packfile::Items, problems);
  const std::string counts = readSource(pack / packfile::ItemCounts, problems);
  if (!problems.none()) return;
  const ExerciseSource items = decodeExercises({positions, stream, counts}, lessons, problems);
  for (std::size_t bank = 0; bank < BankCount; ++bank) {
    if (items.banks[bank].empty()) continue;
    sources.push_back({"exercises/" + std::string(BankNames[bank]) + "/items.txt",
                       writeItems(items.banks[bank], ItemPlace::Bank)});
  }
  for (const auto& [slot, ofLesson] : items.lessons) {
    sources.push_back(
        {"lessons/" + padded(slot, 3) + "-items.txt", writeItems(ofLesson, ItemPlace::Lesson)});
  }
}

void dumpLessons(const std::filesystem::path& pack, std::vector<SourceText>& sources,
                 Problems& problems) {
  const std::string positions = readSource(pack / packfile::LessonPositions, problems);
  const std::string stream = readSource(pack / packfile::Lessons, problems);
  if (!problems.none()) return;
  const LessonSource lessons = decodeLessons(positions, stream, problems);
  for (const auto& [slot, lesson] : lessons.lessons) {
    sources.push_back({"lessons/" + padded(slot, 3) + "-lesson.txt", writeLesson(lesson)});
  }
  std::string headings;
  for (const auto& [slot, heading] : lessons.headings) {
    headings += std::to_string(slot) + "\t" + utf8Of(heading) + "\n";
  }
  sources.push_back({"lessons/headings.txt", headings});
  dumpItems(pack, lessons, sources, problems);
}

void dumpDictionary(const std::filesystem::path& pack, std::vector<SourceText>& sources,
                    Problems& problems) {
  const std::string words = readSource(pack / packfile::Words, problems);
  const std::string records = readSource(pack / packfile::WordRecords, problems);
  const std::string entries = readSource(pack / packfile::Entries, problems);
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
  dumpSpeaking(pack, sources, problems);
  dumpListening(pack, sources, problems);
  dumpAnalyses(pack, sources, problems);
  dumpLessons(pack, sources, problems);
  return sources;
}

} // namespace talvora::pack
