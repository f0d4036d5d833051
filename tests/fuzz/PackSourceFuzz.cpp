// Any bytes at all as content sources: the parsers report, they never fail otherwise; and what they
// accept without a word goes through the store and back.
#include "formats/PackFiles.h"
#include "pack/DictionarySource.h"
#include "pack/DictionaryStore.h"
#include "pack/FilledList.h"
#include "pack/Guide.h"
#include "pack/LessonStore.h"
#include "pack/ReadingStore.h"
#include "text/WordForm.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

using namespace talvora::pack;

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

void readAsText(std::string_view text) {
  Problems problems;
  ReadingSource source;
  source.texts[4] = parseReadingText(text, "text", problems);
  if (!problems.none()) return;
  source.headings[1] = "A heading";
  const TextStore store = compileReadings(source);
  const ReadingSource back = decodeReadings(store.positions, store.stream, problems);
  require(problems.none() && back.headings == source.headings);
  const std::string written = writeReadingText(source.texts.at(4));
  require(writeReadingText(back.texts.at(4)) == written);
  require(writeReadingText(parseReadingText(written, "written", problems)) == written &&
          problems.none());
}

void readAsLesson(std::string_view text) {
  Problems problems;
  LessonSource source;
  source.lessons[2] = parseLesson(text, "lesson", problems);
  if (!problems.none()) return;
  source.headings[1] = "A heading";
  const TextStore store = compileLessons(source, {2});
  const LessonSource back = decodeLessons(store.positions, store.stream, problems);
  require(problems.none() && back.headings == source.headings);
  const std::string written = writeLesson(source.lessons.at(2));
  require(writeLesson(back.lessons.at(2)) == written);
  require(writeLesson(parseLesson(written, "written", problems)) == written && problems.none());
}

std::string written(const std::vector<OwnEntry>& entries) {
  std::string source;
  for (const OwnEntry& entry : entries)
    source += writeEntry(entry) + "\n";
  return source;
}

/// The words are written by their line of the list: a letter by its small one. An entry that names
/// a form ahead of itself says so only where there is one.
OwnEntry keptOf(OwnEntry entry, const WordList& list) {
  const auto number = list.find(talvora::ChuanHoaTu(entry.head));
  require(number.has_value());
  entry.head = list.at(*number).head;
  entry.formsFirst = entry.formsFirst && list.at(*number).opensWithOrigins();
  return entry;
}

void readAsDictionary(std::string_view text) {
  Problems problems;
  WordSources sources;
  sources.own = parseDictionary(text, "dictionary", problems);
  if (!problems.none()) return;
  for (const OwnEntry& entry : sources.own) {
    for (const std::string& form : entry.block.forms)
      require(!alternativesOf(form).empty());
  }
  // What is written is read as what it was written of.
  const std::string source = written(sources.own);
  require(written(parseDictionary(source, "written", problems)) == source && problems.none());

  const WordList list = fillWordList(sources, FullWordCount, Filling::OwnOnly, problems);
  const auto files = compileDictionary(list);
  Problems unread;
  auto back = decodeOwnEntries(files.at(0).bytes, files.at(1).bytes, files.at(2).bytes, unread);
  require(unread.none());
  if (!problems.none()) return;
  // A list has its own order, in which two words of one spelling stay as they are.
  const auto byForm = [](const OwnEntry& one, const OwnEntry& other) {
    return talvora::ChuanHoaTu(one.head) < talvora::ChuanHoaTu(other.head);
  };
  std::vector<OwnEntry> kept;
  for (const OwnEntry& entry : sources.own)
    kept.push_back(keptOf(entry, list));
  std::stable_sort(kept.begin(), kept.end(), byForm);
  require(written(back) == written(kept));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  readAsText(text);
  readAsLesson(text);
  readAsDictionary(text);
  Problems others;
  static_cast<void>(parseHeadings(text, "headings", others));
  static_cast<void>(compileGuide(text, "guide", others));
  return 0;
}
