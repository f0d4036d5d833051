#include "pack/LearnersList.h"

#include "pack/Message.h"
#include "pack/Telling.h"

#include "formats/LearnerFiles.h"
#include "learner/LearnerLock.h"
#include "learner/LearnerWords.h"
#include "learner/SentenceFinder.h"
#include "platform/Files.h"
#include "text/Text.h"

#include <algorithm>
#include <ostream>
#include <set>

namespace talvora::pack {

namespace {

using Words = std::vector<VocabularyWord>;

LearnerWords wordsOf(const LearnersList& list) {
  return {list.folder, list.files, list.calendar};
}

std::set<std::string> spellingsOf(const Words& words) {
  std::set<std::string> spellings;
  for (const VocabularyWord& word : words)
    spellings.insert(lower(word.word()));
  return spellings;
}

void tellRow(const WordRow& row, std::ostream& out) {
  out << readableText(row.word);
  if (!row.where.title.empty()) out << "\t" << readableText(row.where.title);
  if (!row.where.words.empty()) out << "\t" << readableText(trim(row.where.words));
  if (row.where.place == 0) {
    out << "\t"
        << (row.where.words.empty() ? said("(without a sentence)")
                                    : said("(this sentence is no longer in the course)"));
  }
  out << "\n";
}

/// The rows of a copy for the words that a list has not.
std::vector<WordRow> missingRows(const DatedCopies& copies, const std::string& copy,
                                 const Words& there) {
  const auto content = copies.read(copy, learnerfile::Words);
  if (!content) return {};
  std::vector<WordRow> known =
      rowsFrom(copies.read(copy, learnerfile::Rows).value_or(std::string()));
  std::set<std::string> spellings = spellingsOf(there);
  std::vector<WordRow> rows;
  for (const VocabularyWord& word : vocabularyFrom(bytesOfText(*content)).words) {
    if (word.word().empty() || !spellings.insert(lower(word.word())).second) continue;
    const auto row = std::find_if(known.begin(), known.end(), [&](const WordRow& each) {
      return each.record().ViTriCauTu == word.ViTriCauTu && each.word == asWritten(word.word());
    });
    // Without its sentence a word's place belongs to nobody knows which pack.
    rows.push_back(row != known.end() ? *row : WordRow{word.word(), {}, {}});
  }
  return rows;
}

std::string newestWithMissing(const DatedCopies& copies, const Words& there) {
  const auto all = copies.all();
  for (auto copy = all.rbegin(); copy != all.rend(); ++copy) {
    if (!missingRows(copies, copy->name, there).empty()) return copy->name;
  }
  return {};
}

std::optional<VocabularyContent> contentOf(const LearnersList& list) {
  std::error_code error;
  const auto bytes =
      readWhole(list.files, list.folder + "/" + std::string(learnerfile::Words), error);
  if (!bytes) return std::nullopt;
  return vocabularyFrom(*bytes);
}

/// What is odd in a list.
struct Oddities {
  std::size_t oddBytes = 0;
  std::vector<std::size_t> empty;  ///< places in the list, from 0
  std::vector<std::size_t> twice;  ///< the second and further ones of a word
  std::vector<std::size_t> astray; ///< without a sentence at their place
};

bool isEmpty(const VocabularyWord& word) {
  const std::string text = word.word();
  return text.empty() || std::any_of(text.begin(), text.end(), [](char each) {
           return static_cast<unsigned char>(each) < ' ';
         });
}

Oddities odditiesOf(const VocabularyContent& content, const TextCatalogue* catalogue) {
  Oddities found;
  found.oddBytes = content.oddBytes.size();
  std::set<std::string> seen;
  for (std::size_t at = 0; at < content.words.size(); ++at) {
    const VocabularyWord& word = content.words[at];
    if (isEmpty(word)) {
      found.empty.push_back(at);
    } else if (!seen.insert(lower(word.word())).second) {
      found.twice.push_back(at);
    } else if (catalogue != nullptr && word.ViTriCauTu != 0 && !catalogue->at(word.ViTriCauTu)) {
      found.astray.push_back(at);
    }
  }
  return found;
}

bool tell(const Oddities& found, const VocabularyContent& content, std::ostream& out) {
  if (found.oddBytes != 0)
    out << said("{} bytes too many at the end of the file.", found.oddBytes) << "\n";
  for (const std::size_t at : found.empty)
    out << said("Line {} has no word.", at + 1) << "\n";
  const auto name = [&](std::size_t at) { return readableText(content.words[at].word()); };
  for (const std::size_t at : found.twice)
    out << said("Line {}: the word {} stands above already.", at + 1, name(at)) << "\n";
  for (const std::size_t at : found.astray)
    out << said("Line {}: the sentence of the word {} is not at its place.", at + 1, name(at))
        << "\n";
  return found.oddBytes != 0 || !found.empty.empty() || !found.twice.empty() ||
         !found.astray.empty();
}

/// The list without what is odd; a word whose place is wrong belongs to no pack from here on.
Words mended(const VocabularyContent& content, const Oddities& found, LearnerWords& words) {
  std::set<std::size_t> going(found.empty.begin(), found.empty.end());
  going.insert(found.twice.begin(), found.twice.end());
  const std::set<std::size_t> astray(found.astray.begin(), found.astray.end());
  Words left;
  for (std::size_t at = 0; at < content.words.size(); ++at) {
    if (going.contains(at)) continue;
    left.push_back(content.words[at]);
    if (!astray.contains(at)) continue;
    WordRow row = words.rowsOf({content.words[at]}).front();
    row.pack.clear();
    words.adopt({row});
  }
  return left;
}

} // namespace

ListResult listWords(const LearnersList& list, std::ostream& out) {
  LearnerWords words = wordsOf(list);
  const auto there = words.read();
  if (!there) return tellUnreadable(list.folder, out);
  std::size_t gone = 0;
  for (const WordRow& row : words.rowsOf(*there)) {
    tellRow(row, out);
    if (row.where.place == 0 && !row.where.words.empty()) ++gone;
  }
  out << saidOf(there->size(), "{} word", "{} words");
  if (gone > 0) out << said(", {} of them with a sentence that is no longer in the course", gone);
  out << "\n";
  return ListResult::Fine;
}

ListResult listBackups(const LearnersList& list, std::ostream& out) {
  const DatedCopies copies(list.folder, list.files, list.calendar);
  const auto all = copies.all();
  for (const DatedCopy& copy : all)
    out << copy.name << "\t" << saidOf(copy.words, "{} word", "{} words") << "\n";
  if (all.empty()) out << said("There are no copies yet.") << "\n";
  return ListResult::Fine;
}

ListResult restoreWords(const LearnersList& list, const std::string& copy, Doing doing,
                        std::ostream& out) {
  const LearnerLock lock(list.files, list.folder);
  if (doing == Doing::Do && lock.state() == LearnerLock::State::Taken) return tellRunning(out);
  LearnerWords words = wordsOf(list);
  auto there = words.read();
  if (!there) there.emplace();
  const DatedCopies copies(list.folder, list.files, list.calendar);
  const std::string from = copy.empty() ? newestWithMissing(copies, *there) : copy;
  if (!copy.empty() && !copies.read(copy, learnerfile::Words)) {
    out << said("There is no copy {}.", copy) << "\n";
    return ListResult::Impossible;
  }
  const auto rows = missingRows(copies, from, *there);
  if (rows.empty()) {
    out << said("There is no word to bring back.") << "\n";
    return ListResult::Fine;
  }
  out << said("From the copy {}:", from) << "\n";
  for (const WordRow& row : rows)
    tellRow(row, out);
  if (doing == Doing::Show) {
    out << saidOf(rows.size(), "{} word will be brought back if --yes is added.",
                  "{} words will be brought back if --yes is added.")
        << "\n";
    return ListResult::Found;
  }
  words.open();
  static_cast<void>(words.copies().keep());
  words.adopt(rows);
  for (const WordRow& row : rows)
    there->push_back(row.record());
  if (const auto problem = words.write(*there)) return tellUnwritten(*problem, out);
  out << saidOf(rows.size(), "{} word has been brought back.", "{} words have been brought back.")
      << "\n";
  return ListResult::Fine;
}

ListResult checkWords(const LearnersList& list, const std::optional<std::string>& pack, Doing doing,
                      std::ostream& out) {
  const LearnerLock lock(list.files, list.folder);
  if (doing == Doing::Do && lock.state() == LearnerLock::State::Taken) return tellRunning(out);
  const auto content = contentOf(list);
  if (!content) return tellUnreadable(list.folder, out);
  std::optional<TextCatalogue> catalogue;
  if (pack) catalogue.emplace(*pack, list.folder, list.files);
  const auto oddities = [&](const VocabularyContent& of) {
    return odditiesOf(of, catalogue ? &*catalogue : nullptr);
  };
  if (!tell(oddities(*content), *content, out)) {
    out << saidOf(content->words.size(), "{} word, nothing odd.", "{} words, nothing odd.") << "\n";
    return ListResult::Fine;
  }
  if (doing == Doing::Show) {
    out << said("Add --mend to mend this.") << "\n";
    return ListResult::Found;
  }
  LearnerWords words = wordsOf(list);
  words.open();
  static_cast<void>(words.copies().keep());
  words.dropOddBytes();
  // What stood in the journal is in the list by now.
  const auto merged = words.read();
  if (!merged) return tellUnreadable(list.folder, out);
  const VocabularyContent whole{*merged, {}};
  auto problem = words.write(mended(whole, oddities(whole), words));
  if (!problem && catalogue) static_cast<void>(words.carry(*catalogue));
  if (problem) return tellUnwritten(*problem, out);
  out << said("Mended.") << "\n";
  return ListResult::Fine;
}

} // namespace talvora::pack
