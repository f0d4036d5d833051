#include "pack/words/WordsImport.h"

#include "learner/LearnerLock.h"
#include "learner/LearnerWords.h"
#include "pack/Message.h"
#include "pack/StreamText.h"
#include "pack/Telling.h"
#include "pack/words/WordCards.h"
#include "pack/words/WordListFile.h"
#include "platform/Files.h"
#include "text/CharClass.h"
#include "text/Text.h"

#include <algorithm>
#include <map>
#include <ostream>
#include <set>

namespace talvora::pack {

namespace {

constexpr CharClass wordCharacters("[a-zA-Z']");

bool isEnglish(std::string_view sentence) {
  return std::none_of(sentence.begin(), sentence.end(), isVietnameseLetter);
}

/// The row of a word as the list has it; it belongs to no pack.
WordRow plainRow(const ListedWord& listed) {
  WordRow row{listed.word, "", {}};
  row.where.words = listed.sentence;
  row.where.title = listed.title;
  return row;
}

/// The sentences of a pack by the words that they hold, for words that come without one.
class SentencesByWord {
 public:
  explicit SentencesByWord(const TextCatalogue& catalogue)
      : pack_(catalogue.fingerprint()), sentences_(catalogue.all()) {
    for (std::size_t at = 0; at < sentences_.size(); ++at) {
      // Neither a title nor a sentence in Vietnamese is one to learn a word from.
      if (sentences_[at].sentence > 1 && isEnglish(sentences_[at].words)) note(at);
    }
  }

  /// The row of a word with its sentence; one without when no sentence holds it.
  [[nodiscard]] WordRow rowOf(const ListedWord& listed) const {
    WordRow row = plainRow(listed);
    if (!listed.sentence.empty()) return row;
    const auto [first, last] = byWord_.equal_range(firstPart(lower(listed.word)));
    for (auto each = first; each != last; ++each) {
      const SentencePlace& place = sentences_[each->second];
      if (!markedSentence(place.words, listed.word).word.empty())
        return {listed.word, pack_, place};
    }
    return row;
  }

 private:
  void note(std::size_t at) {
    std::set<std::string> words;
    std::string word;
    for (const char character : lower(sentences_[at].words) + ' ') {
      if (wordCharacters.has(character)) {
        word += character;
      } else if (!word.empty()) {
        words.insert(std::exchange(word, {}));
      }
    }
    for (const std::string& each : words)
      byWord_.emplace(each, at);
  }

  static std::string firstPart(std::string_view word) {
    const auto* const end = std::find_if_not(word.begin(), word.end(),
                                             [](char each) { return wordCharacters.has(each); });
    return {word.begin(), end};
  }

  std::string pack_;
  std::vector<SentencePlace> sentences_;
  std::multimap<std::string, std::size_t> byWord_;
};

/// The words that a list has not, each once.
std::vector<WordRow> newRows(const std::vector<ListedWord>& listed,
                             const std::vector<VocabularyWord>& there, const LearnersList& list,
                             const std::string& pack) {
  std::set<std::string> spellings;
  for (const VocabularyWord& word : there)
    spellings.insert(lower(word.word()));
  std::optional<SentencesByWord> sentences;
  if (!pack.empty()) sentences.emplace(TextCatalogue(pack, list.folder, list.files));
  std::vector<WordRow> rows;
  for (const ListedWord& each : listed) {
    if (!spellings.insert(lower(each.word)).second) continue;
    rows.push_back(sentences ? sentences->rowOf(each) : plainRow(each));
  }
  return rows;
}

std::optional<std::string> contentOf(const LearnersList& list, const std::string& file,
                                     std::ostream& out) {
  std::error_code error;
  const FileStatus status = list.files.status(file, error);
  if (status.size > LargestWordList) {
    out << said("{}: the file is too large to be a list of words", file) << "\n";
    return std::nullopt;
  }
  const auto bytes = readWhole(list.files, file, error);
  if (!bytes) {
    out << said("{}: cannot be read", file) << "\n";
    return std::nullopt;
  }
  return textOfBytes(*bytes);
}

std::optional<std::string> addRows(LearnerWords& words, std::vector<VocabularyWord> there,
                                   const std::vector<WordRow>& rows) {
  static_cast<void>(words.copies().keep());
  words.adopt(rows);
  for (const WordRow& row : rows)
    there.push_back(row.record());
  return words.write(std::move(there));
}

} // namespace

ListResult importWords(const LearnersList& list, const std::filesystem::path& file,
                       const std::string& pack, std::ostream& out) {
  const LearnerLock lock(list.files, list.folder);
  if (lock.state() == LearnerLock::State::Taken) return tellRunning(out);
  const auto content = contentOf(list, file.string(), out);
  if (!content) return ListResult::Impossible;
  const WordListContent listed = wordListFrom(*content);
  for (const RefusedLine& line : listed.refused)
    out << file.string() << ":" << line.line << ": " << line.why << "\n";

  LearnerWords words(list.folder, list.files, list.calendar);
  words.open();
  const auto there = words.read();
  if (!there) return tellUnreadable(list.folder, out);
  const auto rows = newRows(listed.words, *there, list, pack);
  if (!rows.empty()) {
    if (const auto problem = addRows(words, *there, rows)) return tellUnwritten(*problem, out);
  }
  out << said("{} words added, {} were there already, {} lines were not taken.", rows.size(),
              listed.words.size() - rows.size(), listed.refused.size())
      << "\n";
  return listed.refused.empty() ? ListResult::Fine : ListResult::Found;
}

} // namespace talvora::pack
