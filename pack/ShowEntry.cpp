// Making of a small word list around a source, and laying out of its entries.
#include "pack/ShowEntry.h"

#include "dictionary/EntryMarkup.h"
#include "pack/DictionaryCheck.h"
#include "pack/DictionarySource.h"
#include "pack/DictionaryStore.h"
#include "pack/FilledList.h"
#include "pack/Options.h"
#include "pack/Pronouncer.h"
#include "pack/SourceFile.h"
#include "pack/StreamText.h"
#include "text/Text.h"
#include "text/WordForm.h"

#include <algorithm>

namespace talvora::pack {

namespace {

/// Begins a line of the popup.
constexpr char lineStart = '\r';
/// Stands between a head word and its entry.
constexpr char entryMark = '~';

bool isSenseLine(std::string_view line) {
  return line.starts_with("  ") && std::ranges::any_of(ClassNames, [line](const ClassName& name) {
           return line.substr(2).starts_with(std::string(name.source) + " ");
         });
}

/// The entries of a source with those of the files beside it when it lies in a dictionary. What is
/// wrong with the others is told where they are checked.
std::vector<OwnEntry> entriesAround(const std::filesystem::path& dictionary,
                                    const std::vector<OwnEntry>& here) {
  if (dictionary.filename() != "dictionary") return here;
  Problems elsewhere;
  return readDictionary(dictionary, elsewhere);
}

/// Our words and their forms, said as the course in a folder has them.
WordList wordsAround(const std::filesystem::path& file, const std::vector<OwnEntry>& here,
                     Problems& problems) {
  const auto dictionary = std::filesystem::absolute(file).parent_path();
  const auto course = dictionary.parent_path();
  WordSources sources;
  sources.own = entriesAround(dictionary, here);
  Pronouncer(readPronunciations(course / "pronunciation.txt", problems)).pronounce(sources.own);
  const Options installed;
  if (std::filesystem::exists(installed.wordNet))
    sources.wordNet = readWordNet(installed.wordNet, problems);
  for (const auto& path : installed.wordLists)
    if (std::filesystem::exists(path)) readListedWords(path, sources, problems);
  sources.known.merge(wordSetOf(course / AcceptedFile));
  return fillWordList(sources, FullWordCount, Filling::OwnOnly, problems);
}

std::string popupOf(const WordList& words, const Word& word) {
  std::string text = utf8Of(readMarkup(word.head + entryMark + words.entryOf(word)).text);
  std::replace(text.begin(), text.end(), lineStart, '\n');
  return text + "\n";
}

} // namespace

bool holdsEntries(std::string_view source) {
  bool underHead = false;
  for (const SourceLine& line : linesOf(source)) {
    if (line.text.starts_with("//")) continue;
    if (underHead) return isSenseLine(line.text);
    underHead = !line.text.empty() && line.text.front() != ' ';
  }
  return false;
}

std::string entriesShown(const ShownPlace& place, std::string_view source, Problems& problems) {
  auto here = parseDictionary(source, place.file.string(), problems);
  if (!problems.none()) return {};
  const WordList words = wordsAround(place.file, here, problems);
  // Two words of one spelling stand one behind the other and share an entry.
  const auto shared =
      std::unique(here.begin(), here.end(), [](const OwnEntry& one, const OwnEntry& other) {
        return one.head == other.head;
      });
  here.erase(shared, here.end());
  return partsShown(place, here, [&words](const OwnEntry& entry) {
    // A head word of one letter stands where the letter's section opens.
    const auto number =
        words.find(ChuanHoaTu(entry.head.size() == 1 ? lower(entry.head) : entry.head));
    return placeShown(entry.where) + "\n" + (number ? popupOf(words, words.at(*number)) : "");
  });
}

} // namespace talvora::pack
