#include "learner/WordJournal.h"

#include "platform/Files.h"
#include "text/Contains.h"
#include "text/Text.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <iterator>

namespace talvora {

namespace {

constexpr char AddedSign = '+';
constexpr char RemovedSign = '-';
/// Removed together with the word of the next line.
constexpr char RemovedWithNextSign = '~';
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

bool isForbidden(const std::error_code& error) {
  return error == std::errc::permission_denied || error == std::errc::operation_not_permitted ||
         error == std::errc::read_only_file_system;
}

bool removes(const WordDeed& deed) {
  return deed.kind == WordDeed::Kind::Removed;
}

std::string lineOf(const WordDeed& deed, char sign) {
  std::string text(1, sign);
  text += '\t' + lineOf(deed.row);
  return checkOf(text) + '\t' + text;
}

/// A line of the journal.
struct Entry {
  WordDeed deed;
  bool goesOn = false; ///< the next line belongs to the same deletion
};

std::optional<Entry> entryFrom(std::string_view line) {
  // Check, tab, sign, tab.
  constexpr std::size_t ahead = CheckDigits + 3;
  if (line.size() < ahead || line[CheckDigits] != '\t') return std::nullopt;
  const std::string_view text = line.substr(CheckDigits + 1);
  if (checkOf(text) != line.substr(0, CheckDigits) || text[1] != '\t') return std::nullopt;
  auto row = rowFrom(text.substr(2));
  constexpr std::array signs = {AddedSign, RemovedSign, RemovedWithNextSign};
  if (!row || !contains(signs, text[0])) return std::nullopt;
  const auto kind = text[0] == AddedSign ? WordDeed::Kind::Added : WordDeed::Kind::Removed;
  return Entry{{kind, std::move(*row)}, text[0] == RemovedWithNextSign};
}

} // namespace

std::optional<std::vector<WordDeed>> WordJournal::read() const {
  std::vector<WordDeed> deeds;
  std::error_code error;
  const auto content = readWhole(files_, path_, error);
  if (!content && error != std::errc::no_such_file_or_directory) return std::nullopt;
  if (!content) return deeds;
  std::vector<WordDeed> deletion; // as far as it is known
  for (const std::string& line : split(textOfBytes(*content), '\n')) {
    auto entry = entryFrom(line);
    if (!entry || !removes(entry->deed)) deletion.clear();
    if (!entry) continue;
    deletion.push_back(std::move(entry->deed));
    if (entry->goesOn) continue;
    deeds.insert(deeds.end(), deletion.begin(), deletion.end());
    deletion.clear();
  }
  return deeds;
}

std::error_code WordJournal::append(const std::vector<WordDeed>& deeds) {
  std::string text = "\n";
  // Begins with an empty line: what a kill has left, half a line or half a deletion, does not spoil
  // it.
  for (auto deed = deeds.begin(); deed != deeds.end(); ++deed) {
    const bool goesOn =
        removes(*deed) && std::next(deed) != deeds.end() && removes(*std::next(deed));
    const char removed = goesOn ? RemovedWithNextSign : RemovedSign;
    text += '\n' + lineOf(*deed, removes(*deed) ? removed : AddedSign);
  }
  std::error_code error;
  const auto file = files_.open(path_, OpenFor::Writing, error);
  if (file == nullptr) return error;
  const FileStatus before = file->status(error);
  if (error) return error;
  if (before.kind != FileStatus::Kind::File) {
    return std::make_error_code(std::errc::invalid_argument);
  }
  error = file->write(before.size, bytesOfText(text + '\n'));
  if (!error) error = file->sync();
  // An empty one may be new, or one whose folder could not be synced when it was.
  if (!error && before.size == 0) error = files_.syncFolder(folderOf(path_));
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
  // One that may not be written may be taken away: what it says would be done again and again.
  if (isForbidden(error)) {
    error = files_.remove(path_);
    return error ? error : files_.syncFolder(folderOf(path_));
  }
  if (file == nullptr) return error;
  error = file->truncate(0);
  return error ? error : file->sync();
}

} // namespace talvora
