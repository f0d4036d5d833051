// Any bytes at all as content sources: the parsers report, they never fail otherwise; and what they
// accept without a word goes through the store and back.
#include "formats/PackFiles.h"
#include "pack/DictionarySource.h"
#include "pack/DictionaryStore.h"
#include "pack/FilledList.h"
#include "pack/Guide.h"
#include "pack/LessonStore.h"
#include "pack/ReadingStore.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

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
  require(writeReadingText(back.texts.at(4)) == writeReadingText(source.texts.at(4)));
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
  require(writeLesson(back.lessons.at(2)) == writeLesson(source.lessons.at(2)));
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
  std::string written;
  for (const OwnEntry& entry : sources.own)
    written += writeEntry(entry) + "\n";
  std::string again;
  for (const OwnEntry& entry : parseDictionary(written, "written", problems))
    again += writeEntry(entry) + "\n";
  require(problems.none() && again == written);

  const WordList list = fillWordList(sources, FullWordCount, Filling::OwnOnly, problems);
  const auto files = compileDictionary(list);
  Problems unread;
  const auto back =
      decodeOwnEntries(files.at(0).bytes, files.at(1).bytes, files.at(2).bytes, unread);
  require(unread.none());
  if (!problems.none() || sources.own.size() != 1) return;
  const OwnEntry& entry = sources.own.front();
  require(back.size() == 1 && back.front().head == entry.head);
  require(back.front().block.senses.size() == entry.block.senses.size());
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
