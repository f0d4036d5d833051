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

Words::iterator findWord(Words& words, const VocabularyWord& wanted) {
  const auto exact = std::find(words.begin(), words.end(), wanted);
  if (exact != words.end()) return exact;
  // The place may have changed with the pack since.
  return std::find_if(words.begin(), words.end(), [&](const VocabularyWord& each) {
    return lower(each.word()) == lower(wanted.word());
  });
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
  rows_.clear();
  std::error_code error;
  const auto content = readWhole(files_, pathOf(learnerfile::Rows), error);
  rowsOnDisk_ = content ? textOfBytes(*content) : std::string();
  adopt(rowsFrom(rowsOnDisk_));
}

void LearnerWords::adopt(const std::vector<WordRow>& rows) {
  for (const WordRow& row : rows)
    rows_[keyOf(row.record())] = row;
}

void LearnerWords::mergeJournal() {
  const auto deeds = journal_.read();
  if (deeds.empty()) return;
  auto words = read();
  // A list that cannot be read now may be read next time; so long the journal stays.
  if (!words) return;
  for (const WordDeed& deed : deeds)
    adopt({deed.row});
  if (replay(deeds, *words)) static_cast<void>(copies_.keep());
  static_cast<void>(write(std::move(*words)));
}

std::optional<Words> LearnerWords::peek() {
  readRows();
  auto words = read();
  if (!words) return words;
  const auto deeds = journal_.read();
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
  if (!words) return carried;
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
  if (*words == before) {
    writeRows(*words);
  } else {
    static_cast<void>(copies_.keep());
    static_cast<void>(write(std::move(*words)));
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
  if (words && missedList_) catchUp(*words);
  return words;
}

/// Does to a list that could not be read for a while what was done since it was written; true when
/// that changed it.
bool LearnerWords::catchUp(Words& words) {
  auto deeds = journal_.read();
  deeds.insert(deeds.end(), pending_.begin(), pending_.end());
  for (const WordDeed& deed : deeds)
    rows_.try_emplace(keyOf(deed.row.record()), deed.row);
  return replay(deeds, words);
}

void LearnerWords::noteAdded(const VocabularyWord& word) {
  WordRow row = rowOf(word);
  rows_[keyOf(word)] = row;
  journal({{WordDeed::Kind::Added, std::move(row)}});
}

void LearnerWords::noteRemoved(const std::vector<VocabularyWord>& words) {
  static_cast<void>(copies_.keep());
  std::vector<WordDeed> deeds;
  deeds.reserve(words.size());
  for (const VocabularyWord& word : words)
    deeds.push_back({WordDeed::Kind::Removed, rowOf(word)});
  journal(std::move(deeds));
}

// What could not be noted before is noted first, so that the deeds stay in their order.
void LearnerWords::journal(std::vector<WordDeed> deeds) {
  pending_.insert(pending_.end(), deeds.begin(), deeds.end());
  if (!journal_.append(pending_)) pending_.clear();
}

std::optional<std::string> LearnerWords::write(std::vector<VocabularyWord> words) {
  if (missedList_) {
    std::error_code error;
    auto unseen = list_.read(error);
    if (!unseen && error != std::errc::no_such_file_or_directory)
      return pathOf(learnerfile::Words) + ": cannot be read";
    Words before = std::move(unseen).value_or(Words());
    if (catchUp(before)) static_cast<void>(copies_.keep());
    words = joined(std::move(before), std::move(words));
  }
  if (auto problem = list_.write(words)) return problem;
  missedList_ = false;
  pending_.clear();
  writeRows(words);
  return std::nullopt;
}

// The journal is emptied last: as long as the sentences are not beside the words, it has them.
void LearnerWords::writeRows(const std::vector<VocabularyWord>& words) {
  const std::string content = talvora::fileOf(rowsOf(words));
  if (content != rowsOnDisk_) {
    if (replaceFile(files_, pathOf(learnerfile::Rows), bytesOfText(content))) return;
    rowsOnDisk_ = content;
  }
  static_cast<void>(journal_.clear());
}

} // namespace talvora
