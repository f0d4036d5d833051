#include "stores/SettingsFile.h"

#include "formats/Integers.h"
#include "formats/Settings.h"
#include "platform/Files.h"

#include <utility>

namespace talvora {

namespace {

/// More records than anybody has are another file's.
constexpr std::size_t MostRecords = 4096;

std::vector<std::int32_t> recordsOf(std::span<const unsigned char> bytes) {
  std::vector<std::int32_t> records;
  while (bytes.size() >= IntegerSize && records.size() < MostRecords) {
    records.push_back(integerAt(bytes.data()));
    bytes = bytes.subspan(IntegerSize);
  }
  return records;
}

std::vector<unsigned char> bytesOfRecords(const std::vector<std::int32_t>& records) {
  std::vector<unsigned char> bytes;
  for (const std::int32_t record : records) {
    const auto integer = bytesOf(record);
    bytes.insert(bytes.end(), integer.begin(), integer.end());
  }
  return bytes;
}

} // namespace

void SettingsFile::open(std::string path, IfMissing ifMissing) {
  path_ = std::move(path);
  std::error_code error;
  const auto content = readWhole(files_, path_, error);
  mayWrite_ = content.has_value() || error == std::errc::no_such_file_or_directory;
  // An empty one is what a kill has left of one that was being made.
  const bool begins = !content || (content->empty() && ifMissing == IfMissing::BeginFresh);
  if (!begins) {
    records_ = recordsOf(*content);
    return;
  }
  records_.clear();
  if (!mayWrite_ || ifMissing == IfMissing::BeginFresh) {
    constexpr auto fresh = firstSettings();
    records_.assign(fresh.begin(), fresh.end());
  }
  store(0);
}

void SettingsFile::close() {
  path_.clear();
  records_.clear();
}

std::int32_t SettingsFile::read(int record) const {
  const auto at = static_cast<std::size_t>(record - 1);
  return record >= 1 && at < records_.size() ? records_[at] : 0;
}

void SettingsFile::write(int record, std::int32_t value) {
  if (path_.empty() || record < 1) return;
  const auto at = static_cast<std::size_t>(record - 1);
  if (at >= records_.size()) records_.resize(at + 1);
  records_[at] = value;
  store(at);
}

// A file that somebody took away meanwhile is made again. It is made whole or not at all: one that
// is empty would turn the sound off. A setting that stays behind is as it was: that is all.
void SettingsFile::store(std::size_t fromRecord) {
  if (!mayWrite_) return;
  std::error_code error;
  const FileStatus status = files_.status(path_, error);
  const bool lacksRecords = status.size < fromRecord * IntegerSize || status.size == 0;
  if (!error && lacksRecords) {
    static_cast<void>(replaceFile(files_, path_, bytesOfRecords(records_)));
    return;
  }
  if (error || status.kind != FileStatus::Kind::File) return;
  const auto file = files_.open(path_, OpenFor::Writing, error);
  if (file == nullptr) return;
  static_cast<void>(file->write(fromRecord * IntegerSize, bytesOf(records_[fromRecord])));
}

} // namespace talvora
