#include "learner/WordJournal.h"

#include "platform/Files.h"
#include "text/Text.h"

#include <array>
#include <cstdint>
#include <cstdio>

namespace talvora {

namespace {

constexpr char AddedSign = '+';
constexpr char RemovedSign = '-';
constexpr std::size_t CheckDigits = 8;

/// What a line's bytes add up to, so that half a line is not taken for a whole one.
std::string checkOf(std::string_view text) {
  std::uint32_t sum = 2166136261U;
  for (const char byte : text)
    sum = (sum ^ static_cast<unsigned char>(byte)) * 16777619U;
  std::array<char, CheckDigits + 1> digits{};
  std::snprintf(digits.data(), digits.size(), "%08x", sum);
  return digits.data();
}

std::string lineOf(const WordDeed& deed) {
  std::string text(1, deed.kind == WordDeed::Kind::Added ? AddedSign : RemovedSign);
  text += '\t' + lineOf(deed.row);
  return checkOf(text) + '\t' + text;
}

std::optional<WordDeed> deedFrom(std::string_view line) {
  // Check, tab, sign, tab.
  constexpr std::size_t ahead = CheckDigits + 3;
  if (line.size() < ahead || line[CheckDigits] != '\t') return std::nullopt;
  const std::string_view text = line.substr(CheckDigits + 1);
  if (checkOf(text) != line.substr(0, CheckDigits) || text[1] != '\t') return std::nullopt;
  auto row = rowFrom(text.substr(2));
  if (!row || (text[0] != AddedSign && text[0] != RemovedSign)) return std::nullopt;
  const auto kind = text[0] == AddedSign ? WordDeed::Kind::Added : WordDeed::Kind::Removed;
  return WordDeed{kind, std::move(*row)};
}

} // namespace

std::vector<WordDeed> WordJournal::read() const {
  std::vector<WordDeed> deeds;
  std::error_code error;
  const auto content = readWhole(files_, path_, error);
  if (!content) return deeds;
  for (const std::string& line : split(textOfBytes(*content), '\n')) {
    if (auto deed = deedFrom(line)) deeds.push_back(std::move(*deed));
  }
  return deeds;
}

std::error_code WordJournal::append(const std::vector<WordDeed>& deeds) {
  std::string text;
  // Each line begins with a line end: half a line that a kill has left does not spoil it.
  for (const WordDeed& deed : deeds)
    text += '\n' + lineOf(deed);
  std::error_code error;
  const bool made = files_.status(path_, error).kind == FileStatus::Kind::Missing;
  if (error) return error;
  const auto file = files_.open(path_, OpenFor::Writing, error);
  if (file == nullptr) return error;
  const FileStatus before = file->status(error);
  if (error) return error;
  if (before.kind != FileStatus::Kind::File) {
    return std::make_error_code(std::errc::invalid_argument);
  }
  error = file->write(before.size, bytesOfText(text + '\n'));
  if (!error) error = file->sync();
  if (!error && made) error = files_.syncFolder(folderOf(path_));
  // Should that fail too, the deeds are there although nobody counts on them: they stand in memory
  // as well, and none is ever done twice.
  if (error) static_cast<void>(file->truncate(before.size));
  return error;
}

std::error_code WordJournal::clear() {
  std::error_code error;
  const FileStatus status = files_.status(path_, error);
  if (error || status.kind == FileStatus::Kind::Missing || status.size == 0) return error;
  const auto file = files_.open(path_, OpenFor::Writing, error);
  if (file == nullptr) return error;
  error = file->truncate(0);
  return error ? error : file->sync();
}

} // namespace talvora
