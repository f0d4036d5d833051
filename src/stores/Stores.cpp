#include "stores/Stores.h"

#include "formats/Integers.h"
#include "formats/LearnerFiles.h"
#include "formats/PackFiles.h"
#include "platform/FatalFailure.h"
#include "stores/ByteCode.h"
#include "stores/OwnTexts.h"
#include "surface/SectionNumbers.h"
#include "text/Text.h"

#include <algorithm>
#include <iterator>

namespace talvora {

namespace {

struct StoreFile {
  int number;
  std::string_view name;
};

// The read-only files that stay open for the run.
constexpr StoreFile readOnlyFiles[] = {
    {file::LessonPositions, packfile::LessonPositions},
    {file::Lessons, packfile::Lessons},
    {file::VietnameseSide, packfile::SideEntries},
    {file::ItemPositions, packfile::ItemPositions},
    {file::Items, packfile::Items},
    {file::SpeakingPositions, packfile::SpeakingPositions},
    {file::SpeakingTexts, packfile::SpeakingTexts},
    {file::AnalysisPositions, packfile::AnalysisPositions},
    {file::Analyses, packfile::Analyses},
};

} // namespace

std::string dictionaryFolderOf(const std::string& pack, const std::string& learner,
                               FileSystem& files) {
  constexpr std::string_view parts[] = {packfile::Words, packfile::WordRecords, packfile::Entries};
  std::string merged = learner + "/" + std::string(MergedDictionaryFolder);
  const bool isWhole = std::all_of(std::begin(parts), std::end(parts), [&](std::string_view part) {
    return TonTaiFile(pathBelow(merged, part), files);
  });
  return isWhole ? merged : pack;
}

std::int32_t RecordFile::integer(std::int64_t record) const noexcept {
  if (mapped_ == nullptr || record < 1) return 0;
  return integerAt(mapped_->text(), static_cast<std::size_t>(record));
}

std::span<const unsigned char> RecordFile::from(std::int64_t record,
                                                std::span<unsigned char> room) const noexcept {
  if (mapped_ == nullptr || record < 1) return {};
  return mapped_->from(static_cast<std::size_t>(record - 1), room);
}

std::optional<std::string_view> PieceReader::next() {
  if (left_ <= 0) return std::nullopt;
  if (ahead_.empty()) ahead_ = stream_.from(next_, room_);
  if (ahead_.empty()) return std::nullopt;
  --left_;
  ++next_;
  const std::string_view piece = MoRongByte(GiaiMaByte(ahead_.front()));
  ahead_ = ahead_.subspan(1);
  stream_.notePiece(piece);
  return piece;
}

void Stores::MoDuLieu() {
  closeAll();
  for (const StoreFile& each : readOnlyFiles) {
    files_[static_cast<std::size_t>(each.number)] = open(each.name);
  }
  openTexts();
  files_[file::Dictionary] = RecordFile(
      MappedFile::open(pathBelow(dictionaryFolder(), packfile::Entries), fileSystem_), &ChuoiByte);
  // Beside a pack that is the learner's own, settings that are missing begin empty.
  settings_.open(pathBelow(places_.learnerFolder(), learnerfile::Settings),
                 places_.learner.empty() ? SettingsFile::IfMissing::BeginEmpty
                                         : SettingsFile::IfMissing::BeginFresh);
  // The word list is written whole, so that it is only made sure that it is there.
  std::error_code ignored;
  static_cast<void>(fileSystem_.open(pathBelow(places_.learnerFolder(), learnerfile::Words),
                                     OpenFor::Writing, ignored));
}

void Stores::openTexts() {
  TextFiles texts =
      withOwnTexts({hold(packfile::ReadingPositions), hold(packfile::ReadingTexts), ReadingTexts},
                   places_.learnerFolder(), fileSystem_);
  files_[file::TextPositions] = RecordFile(std::move(texts.positions), &ChuoiByte);
  files_[file::Texts] = RecordFile(std::move(texts.stream), &ChuoiByte);
  readingTexts_ = texts.texts;
}

std::string Stores::dictionaryFolder() const {
  return dictionaryFolderOf(places_.ThuMuc, places_.learnerFolder(), fileSystem_);
}

std::string Stores::pathOf(std::string_view storedName) const {
  return pathBelow(places_.ThuMuc, storedName);
}

std::shared_ptr<const MappedFile> Stores::hold(std::string_view storedName) const {
  return MappedFile::open(pathOf(storedName), fileSystem_);
}

std::shared_ptr<const MappedFile> Stores::holdPage(std::string_view storedName) const {
  auto page = hold(storedName);
  if (page->bytes().size() > LongestPage) {
    throw FatalFailure(pathOf(storedName) + ": is too long for a page");
  }
  return page;
}

bool Stores::has(std::string_view storedName) const {
  return TonTaiFile(pathOf(storedName), fileSystem_);
}

RecordFile Stores::open(std::string_view storedName) {
  return RecordFile(hold(storedName), &ChuoiByte);
}

void Stores::closeAll() {
  files_.fill(RecordFile());
  settings_.close();
}

void Stores::ChonKho(int positionsFile) {
  FileChiSo = positionsFile;
  FileVanBan = positionsFile + 1;
  SoBai = places_.MucMenu == section::Analysis ? AnalysedTexts : textsInTable();
}

int Stores::textsInTable() const noexcept {
  return places_.MucMenu == section::Speaking ? SpeakingTexts : readingTexts_;
}

void Stores::NapViTriBai() {
  const RecordFile& positions = fileOf(FileChiSo);
  const int last = 2 * textsInTable() + 1;
  for (int record = 1; record <= last; ++record) {
    ViTriBai[static_cast<std::size_t>(record)] = positions.integer(record);
  }
}

const RecordFile& Stores::fileOf(int number) const {
  return files_.at(static_cast<std::size_t>(number));
}

std::int32_t Stores::readSetting(int record) const {
  return settings_.read(record);
}

void Stores::writeSetting(int record, std::int32_t value) {
  settings_.write(record, value);
}

void Stores::declare(Variables& variables) const {
  variables.add("ChuoiByte", [this] { return VariableValue(std::string(ChuoiByte)); });
  variables.add("FileChiSo", &FileChiSo);
  variables.add("FileVanBan", &FileVanBan);
  variables.add("SoBai", &SoBai);
  variables.addTable("ViTriBai", &ViTriBai);
}

} // namespace talvora
