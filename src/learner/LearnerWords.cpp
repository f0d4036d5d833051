#include "learner/LearnerWords.h"

#include "formats/LearnerFiles.h"
#include "learner/SentenceFinder.h"
#include "platform/Files.h"
#include "text/Text.h"

#include <algorithm>
#include <array>

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
  return lower(word.word());
}

Words::iterator findWord(Words& words, const VocabularyWord& wanted) {
  const auto exact = std::find(words.begin(), words.end(), wanted);
  if (exact != words.end()) return exact;
  // The place may have changed with the pack since.
  return std::find_if(words.begin(), words.end(),
                      [&](const VocabularyWord& each) { return nameOf(each) == nameOf(wanted); });
}

/// Does to a list what a journal says; true when that changed it.
bool replay(const std::vector<WordDeed>& deeds, Words& words) {
  const Words before = words;
  for (const WordDeed& deed : deeds) {
    const VocabularyWord word = deed.row.record();
    const auto found = findWord(words, word);
    if (deed.kind == WordDeed::Kind::Removed) {
      if (found != words.end()) words.erase(found);
    } else if (found == words.end()) {
      words.push_back(word);
    }
  }
  return words != before;
}

/// A list that could not be read, with what was taken meanwhile behind it. What was there keeps its
/// sentence also where it was taken once more.
Words joined(Words before, Words meanwhile) {
  const auto wasThere = [&](const VocabularyWord& word) {
    return findWord(before, word) != before.end();
  };
  std::erase_if(meanwhile, wasThere);
  before.insert(before.end(), meanwhile.begin(), meanwhile.end());
  return before;
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
  readRows();
  // What cannot be merged into the list on the disk is merged whenever that is read.
  unmerged_ = true;
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

void LearnerWords::readRows() {
  std::error_code error;
  const auto content = readWhole(files_, pathOf(learnerfile::Rows), error);
  missedRows_ = !content && error != std::errc::no_such_file_or_directory;
  rowsOnDisk_ = content ? textOfBytes(*content) : std::string();
  // What has been learned of a word since is newer.
  for (const WordRow& row : rowsFrom(rowsOnDisk_))
    rows_.try_emplace(keyOf(row.record()), row);
}

void LearnerWords::adopt(const std::vector<WordRow>& rows) {
  for (const WordRow& row : rows)
    rows_[keyOf(row.record())] = row;
}

void LearnerWords::mergeJournal() {
  const auto deeds = journal_.read();
  unmerged_ = !deeds || !deeds->empty();
  // What cannot be read now may be read next time; so long the journal stays.
  if (!deeds || deeds->empty()) return;
  std::error_code error;
  auto words = list_.read(error);
  missedList_ = !words && error != std::errc::no_such_file_or_directory;
  if (!words) return;
  for (const WordDeed& deed : *deeds)
    adopt({deed.row});
  if (replay(*deeds, *words)) static_cast<void>(copies_.keep());
  static_cast<void>(store(*words));
}

std::optional<Words> LearnerWords::peek() {
  rows_.clear();
  readRows();
  auto words = read();
  if (!words) return words;
  const auto deeds = journal_.read().value_or(std::vector<WordDeed>());
  for (const WordDeed& deed : deeds)
    adopt({deed.row});
  replay(deeds, *words);
  return words;
}

Carried LearnerWords::carry(TextCatalogue catalogue) {
  Carried carried;
  catalogue_ = std::move(catalogue);
  pack_ = catalogue_->fingerprint();
  auto words = read();
  // Without their rows nobody knows which pack the words belong to.
  if (!words || missedRows_) return carried;
  const Words before = *words;
  std::optional<SentenceFinder> finder;
  for (VocabularyWord& word : *words) {
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
  if (*words == before && !missedList_ && !unmerged_) {
    writeRows(*words);
  } else {
    static_cast<void>(copies_.keep());
    static_cast<void>(store(*words));
  }
  static_cast<void>(copies_.keep());
  return carried;
}

// A word of which nothing is known belongs to the pack in hand.
WordRow LearnerWords::rowOf(const VocabularyWord& word) const {
  const auto known = rows_.find(keyOf(word));
  if (known != rows_.end()) return known->second;
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

// -- The run.

std::optional<std::vector<VocabularyWord>> LearnerWords::read() {
  std::error_code error;
  auto words = list_.read(error);
  if (!words && error != std::errc::no_such_file_or_directory) missedList_ = true;
  if (!words) return words;
  onDisk_ = *words;
  if (missedList_ || unmerged_) catchUp(*words);
  return words;
}

/// Does to a list that was read what the journal and the memory have and it lacks; true when that
/// changed it.
bool LearnerWords::catchUp(Words& words) {
  auto deeds = journal_.read();
  unmerged_ = unmerged_ && (!deeds || !deeds->empty());
  missedJournal_ = !deeds;
  auto all = std::move(deeds).value_or(std::vector<WordDeed>());
  all.insert(all.end(), pending_.begin(), pending_.end());
  for (const WordDeed& deed : all)
    rows_.try_emplace(keyOf(deed.row.record()), deed.row);
  return replay(all, words);
}

void LearnerWords::noteAdded(const VocabularyWord& word) {
  removed_.erase(nameOf(word));
  WordRow row = rowOf(word);
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

std::optional<std::string> LearnerWords::write(std::vector<VocabularyWord> words) {
  std::error_code error;
  auto unseen = list_.read(error);
  if (missedList_) {
    if (!unseen && error != std::errc::no_such_file_or_directory)
      return pathOf(learnerfile::Words) + ": cannot be read";
    Words before = std::move(unseen).value_or(Words());
    if (catchUp(before)) static_cast<void>(copies_.keep());
    words = joined(std::move(before), std::move(words));
  } else {
    if (unseen && onDisk_ && *unseen != *onDisk_) takeFromOthers(*unseen, words);
    if (unmerged_ && catchUp(words)) static_cast<void>(copies_.keep());
  }
  return store(words);
}

/// Takes over the words that somebody else, as one who copies folders between two machines, has put
/// into the list on the disk since it was read, and keeps that list as a copy.
void LearnerWords::takeFromOthers(const Words& theirs, Words& words) {
  static_cast<void>(copies_.keep());
  readRows();
  for (const VocabularyWord& word : theirs) {
    const bool known = findWord(*onDisk_, word) != onDisk_->end() ||
                       findWord(words, word) != words.end() || removed_.contains(nameOf(word));
    if (!known) words.push_back(word);
  }
}

/// Writes a list that has all that the one on the disk has, and the journal.
std::optional<std::string> LearnerWords::store(const Words& words) {
  if (auto problem = list_.write(words)) return problem;
  onDisk_ = words;
  missedList_ = false;
  unmerged_ = unmerged_ && missedJournal_;
  pending_.clear();
  writeRows(words);
  return std::nullopt;
}

// The journal is emptied last: as long as the sentences are not beside the words, it has them.
void LearnerWords::writeRows(const Words& words) {
  if (missedRows_) readRows();
  if (missedRows_) return;
  const std::string content = talvora::fileOf(rowsOf(words));
  if (content != rowsOnDisk_) {
    if (replaceFile(files_, pathOf(learnerfile::Rows), bytesOfText(content))) return;
    rowsOnDisk_ = content;
  }
  if (!unmerged_) static_cast<void>(journal_.clear());
}

} // namespace talvora
