#include "learner/LearnerWords.h"

#include "formats/LearnerFiles.h"
#include "learner/SentenceFinder.h"
#include "platform/Files.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <limits>

namespace talvora {

namespace {

using Words = std::vector<VocabularyWord>;

/// So many bytes are written to see whether the disk has room.
constexpr std::size_t ProbeSize = 4096;
constexpr std::string_view ProbeName = "talvora-probe.new";
/// What earlier versions wrote beside data.c.
constexpr std::string_view OldNewName = "data.c.new";

/// What two records of one word have alike.
std::string nameOf(const VocabularyWord& word) {
  return lower(trim(asWritten(word.Tu)));
}

std::set<std::string> namesOf(const Words& words) {
  std::set<std::string> names;
  for (const VocabularyWord& word : words)
    names.insert(nameOf(word));
  return names;
}

Words::iterator findWord(Words& words, const VocabularyWord& wanted) {
  const auto exact = std::find(words.begin(), words.end(), wanted);
  if (exact != words.end()) return exact;
  // The place may have changed with the pack since.
  return std::find_if(words.begin(), words.end(),
                      [&](const VocabularyWord& each) { return nameOf(each) == nameOf(wanted); });
}

/// Does to a list what was done.
void replay(const std::vector<WordDeed>& deeds, Words& words) {
  for (const WordDeed& deed : deeds) {
    const VocabularyWord word = deed.row.record();
    const auto found = findWord(words, word);
    if (deed.kind == WordDeed::Kind::Removed) {
      if (found != words.end()) words.erase(found);
    } else if (found == words.end()) {
      words.push_back(word);
    }
  }
}

void count(Carried& carried, Found found) {
  switch (found) {
  case Found::InItsText:
    ++carried.inTheirText;
    break;
  case Found::NearestInText:
    ++carried.nearest;
    break;
  case Found::InAnotherText:
    ++carried.inAnotherText;
    break;
  case Found::LikeInOtherText:
    ++carried.alike;
    break;
  case Found::Nowhere:
    ++carried.gone;
    break;
  }
}

} // namespace

LearnerWords::LearnerWords(const std::string& learner, FileSystem& files, const Calendar& calendar)
    : folder_(learner), files_(files), list_(pathOf(learnerfile::Words), files),
      journal_(pathOf(learnerfile::Journal), files), copies_(learner, files, calendar) {}

std::string LearnerWords::pathOf(std::string_view name) const {
  return folder_ + "/" + std::string(name);
}

// Two spellings that are written alike are one word.
LearnerWords::Key LearnerWords::keyOf(const VocabularyWord& word) {
  return {asWritten(word.word()), word.ViTriCauTu};
}

// -- The start.

void LearnerWords::open() {
  storing_ = mayStore();
  if (!storing_) return;
  clearLeftOvers();
  std::error_code error;
  if (files_.status(pathOf(learnerfile::Words), error).kind == FileStatus::Kind::Missing &&
      !error) {
    storing_ = !list_.write({});
  }
  mergeJournal();
}

bool LearnerWords::mayStore() {
  if (files_.makeFolder(folder_) || !files_.mayCreateIn(folder_)) return false;
  const std::string probe = pathOf(ProbeName);
  if (files_.remove(probe)) return false;
  std::error_code error;
  const auto file = files_.open(probe, OpenFor::CreatingNew, error);
  if (file == nullptr) return false;
  const std::array<unsigned char, ProbeSize> bytes{};
  error = file->write(0, bytes);
  static_cast<void>(files_.remove(probe));
  return !error;
}

void LearnerWords::clearLeftOvers() {
  std::error_code error;
  for (const std::string& entry : files_.list(folder_, error)) {
    const bool left = entry == OldNewName || isLeftOver(entry, learnerfile::Words) ||
                      isLeftOver(entry, learnerfile::Rows) ||
                      isLeftOver(entry, learnerfile::Lists) ||
                      isLeftOver(entry, learnerfile::Settings);
    if (left) static_cast<void>(files_.remove(pathOf(entry)));
  }
}

// What cannot be merged now is whenever the list is read or written; so long the journal stays.
void LearnerWords::mergeJournal() {
  const Kept kept = gather();
  if (!kept.list || !kept.anyDeeds) return;
  if (kept.words != kept.list) static_cast<void>(copies_.keep());
  static_cast<void>(store(kept.words, kept));
}

Carried LearnerWords::carry(TextCatalogue catalogue) {
  Carried carried;
  catalogue_ = std::move(catalogue);
  pack_ = catalogue_->fingerprint();
  const Kept kept = gather();
  // Without their rows nobody knows which pack the words belong to.
  if (!kept.list || !rowsOnDisk_) return carried;
  Words words = kept.words;
  std::optional<SentenceFinder> finder;
  for (VocabularyWord& word : words) {
    WordRow row = rowOf(word);
    if (row.pack == pack_) {
      ++carried.inPlace;
    } else {
      if (!finder) finder.emplace(*catalogue_);
      count(carried, finder->find(row));
      row.pack = pack_;
      word.ViTriCauTu = row.where.place;
    }
    rows_[keyOf(word)] = std::move(row);
  }
  if (words == kept.list) {
    finish(words, kept);
  } else {
    static_cast<void>(copies_.keep());
    static_cast<void>(store(words, kept));
  }
  static_cast<void>(copies_.keep());
  return carried;
}

// A word of which nothing is known belongs to the pack in hand. One whose place alone is not known
// has been found in a pack, but that could not be written beside it: its sentence holds.
WordRow LearnerWords::rowOf(const VocabularyWord& word) const {
  const Key key = keyOf(word);
  const auto known = rows_.find(key);
  if (known != rows_.end()) return known->second;
  const auto before = rows_.lower_bound({key.first, std::numeric_limits<std::int32_t>::min()});
  const bool isItsOwn = before != rows_.end() && before->first.first == key.first;
  return isItsOwn && before->second.pack != pack_ ? before->second : rowInHand(word);
}

WordRow LearnerWords::rowInHand(const VocabularyWord& word) const {
  WordRow row;
  row.word = word.word();
  row.pack = pack_;
  if (catalogue_) row.where = catalogue_->at(word.ViTriCauTu).value_or(SentencePlace());
  row.where.place = word.ViTriCauTu;
  if (word.ViTriCauTu < 0) row.where.kind = TextKind::Speaking;
  return row;
}

std::vector<WordRow> LearnerWords::rowsOf(const std::vector<VocabularyWord>& words) const {
  std::vector<WordRow> rows;
  rows.reserve(words.size());
  for (const VocabularyWord& word : words)
    rows.push_back(rowOf(word));
  return rows;
}

std::string LearnerWords::keptSentence(const VocabularyWord& word) const {
  if (word.ViTriCauTu != 0) return {};
  const auto known = rows_.find(keyOf(word));
  return known == rows_.end() ? std::string() : known->second.where.words;
}

// -- The list in memory and on the disk.

bool LearnerWords::Kept::unreadable() const {
  return !list && error != std::errc::no_such_file_or_directory;
}

LearnerWords::Kept LearnerWords::gather() {
  Kept kept;
  kept.list = list_.read(kept.error);
  kept.words = kept.list.value_or(Words());
  auto journal = journal_.read();
  kept.journalIsKnown = journal.has_value();
  auto deeds = std::move(journal).value_or(std::vector<WordDeed>());
  deeds.insert(deeds.end(), pending_.begin(), pending_.end());
  kept.anyDeeds = !deeds.empty();
  replay(deeds, kept.words);
  // Of what is known of a word the newest holds: the memory, the last deed, what stands beside it.
  for (auto deed = deeds.rbegin(); deed != deeds.rend(); ++deed)
    rows_.try_emplace(keyOf(deed->row.record()), deed->row);
  if (!rowsOnDisk_) readRows();
  return kept;
}

void LearnerWords::readRows() {
  std::error_code error;
  const auto content = readWhole(files_, pathOf(learnerfile::Rows), error);
  rowsOnDisk_.reset();
  if (content) rowsOnDisk_ = textOfBytes(*content);
  if (error == std::errc::no_such_file_or_directory) rowsOnDisk_.emplace();
  if (!rowsOnDisk_) return;
  for (const WordRow& row : rowsFrom(*rowsOnDisk_))
    rows_.try_emplace(keyOf(row.record()), row);
}

void LearnerWords::adopt(const std::vector<WordRow>& rows) {
  for (const WordRow& row : rows)
    rows_[keyOf(row.record())] = row;
}

std::optional<Words> LearnerWords::read() {
  Kept kept = gather();
  if (!kept.list) return std::nullopt;
  seen_ = kept.words;
  return std::move(kept.words);
}

std::optional<std::string> LearnerWords::write(Words words) {
  const Kept kept = gather();
  if (kept.unreadable()) return pathOf(learnerfile::Words) + ": cannot be read";
  // An earlier run may have left deeds that could not be read so far, and somebody else, as one who
  // copies folders between two machines, may have been at the list.
  if (kept.list != seen_) {
    static_cast<void>(copies_.keep());
    readRows();
  }
  auto problem = store(together(kept, words), kept);
  if (!problem && seen_) seen_ = std::move(words);
  return problem;
}

/// The words of the disk and those of the memory, each once and none that was deleted.
Words LearnerWords::together(const Kept& kept, Words mine) const {
  const auto listed = namesOf(kept.list.value_or(Words()));
  const auto left = namesOf(kept.words);
  std::erase_if(mine, [&](const VocabularyWord& word) {
    return listed.contains(nameOf(word)) && !left.contains(nameOf(word));
  });
  // A list that could not be read so far goes first: what was there keeps its place and its
  // sentence also where it was taken once more.
  Words theirs = kept.words;
  if (!seen_) std::swap(theirs, mine);
  auto known = namesOf(mine);
  known.merge(namesOf(seen_.value_or(Words())));
  known.insert(removed_.begin(), removed_.end());
  for (const VocabularyWord& word : theirs) {
    if (known.insert(nameOf(word)).second) mine.push_back(word);
  }
  return mine;
}

/// Writes a list that has all that is kept.
std::optional<std::string> LearnerWords::store(const Words& words, const Kept& kept) {
  if (auto problem = list_.write(words)) return problem;
  pending_.clear();
  finish(words, kept);
  return std::nullopt;
}

/// Writes what is beside a list that is on the disk. The journal is emptied last: as long as the
/// sentences are not beside the words, it has them.
void LearnerWords::finish(const Words& words, const Kept& kept) {
  if (writeRows(words) && kept.journalIsKnown) static_cast<void>(journal_.clear());
}

bool LearnerWords::writeRows(const Words& words) {
  if (!rowsOnDisk_) return false;
  Words known = words;
  // Which pack an unknown word belongs to nobody can say without one in hand.
  if (!catalogue_)
    std::erase_if(known, [&](const VocabularyWord& word) { return !rows_.contains(keyOf(word)); });
  const std::string content = talvora::fileOf(rowsOf(known));
  if (content == rowsOnDisk_) return true;
  if (replaceFile(files_, pathOf(learnerfile::Rows), bytesOfText(content))) return false;
  rowsOnDisk_ = content;
  return true;
}

// -- Deeds.

void LearnerWords::noteAdded(const VocabularyWord& word) {
  removed_.erase(nameOf(word));
  // Another pack may have had another sentence of the word at this place.
  WordRow row = rowInHand(word);
  rows_[keyOf(word)] = row;
  journal({{WordDeed::Kind::Added, std::move(row)}});
}

void LearnerWords::noteRemoved(const std::vector<VocabularyWord>& words) {
  static_cast<void>(copies_.keep());
  std::vector<WordDeed> deeds;
  deeds.reserve(words.size());
  for (const VocabularyWord& word : words) {
    removed_.insert(nameOf(word));
    deeds.push_back({WordDeed::Kind::Removed, rowOf(word)});
  }
  journal(std::move(deeds));
}

// What could not be noted before is noted first, so that the deeds stay in their order.
void LearnerWords::journal(std::vector<WordDeed> deeds) {
  pending_.insert(pending_.end(), deeds.begin(), deeds.end());
  if (!journal_.append(pending_)) pending_.clear();
}

} // namespace talvora
