// Gathering what the checks need.
#include "pack/DictionaryFindings.h"

#include "pack/DictionaryStore.h"
#include "pack/SourceFile.h"

#include <utility>

namespace talvora::pack {

namespace {

constexpr std::string_view irregularVerbsLesson = "012";

/// The text of the lesson with the table of irregular verbs; empty without one.
std::string irregularVerbsText(const std::filesystem::path& source) {
  Problems ofLessons; // told where they are checked
  for (const auto& path : textFilesIn(source / "lessons", ofLessons)) {
    const std::string name = path.filename().string();
    if (name.starts_with(irregularVerbsLesson) && name.find("items") == std::string::npos)
      return readWhole(path).value_or("");
  }
  return {};
}

/// What the dictionary breaks. `entries` holds the normal forms of its word list.
std::vector<Finding> findingsIn(const std::filesystem::path& source,
                                const std::vector<OwnEntry>& own, WordSet entries,
                                const CheckLists& lists) {
  DictionaryMeasures measures;
  measures.entries = std::move(entries);
  measures.vietnamese = wordSetOf(lists.vietnamese);
  for (const auto& path : lists.english)
    measures.english.merge(wordSetOf(path));
  measures.accepted = acceptedIn(source / AcceptedFile);
  measures.irregularVerbs = verbsOfLesson(irregularVerbsText(source));
  return checkDictionary(own, measures);
}

} // namespace

std::vector<Finding> checkDictionaryAlone(const std::filesystem::path& source,
                                          const CheckLists& lists, Problems& problems) {
  WordSources sources;
  sources.own = readDictionary(source / "dictionary", problems);
  for (const auto& path : lists.english)
    if (std::filesystem::exists(path)) readListedWords(path, sources, problems);
  sources.known.merge(wordSetOf(source / AcceptedFile));
  const WordList list = fillWordList(sources, FullWordCount, Filling::OwnOnly, problems);
  WordSet entries;
  for (const Word& word : list.words())
    entries.insert(word.form);
  return findingsIn(source, sources.own, std::move(entries), lists);
}

void reportErrors(const std::vector<Finding>& findings, Problems& problems) {
  for (const Finding& finding : findings)
    problems.add(finding.problem.where, finding.problem.message);
}

} // namespace talvora::pack
