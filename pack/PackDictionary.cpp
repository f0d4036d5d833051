#include "pack/PackDictionary.h"

#include "formats/Integers.h"
#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "pack/StreamText.h"
#include "platform/FatalFailure.h"
#include "text/Text.h"
#include "text/WordForm.h"

#include <algorithm>

namespace talvora::pack {

namespace {

constexpr char entryEnd = '\r';
/// A word is shortened down to so many letters.
constexpr std::size_t shortestStem = 2;

std::shared_ptr<const MappedFile> held(const std::filesystem::path& path, Problems& problems) {
  try {
    return MappedFile::open(path.string());
  } catch (const FatalFailure& failure) {
    problems.add({path.string()}, said("cannot be read"));
    return std::make_shared<const MappedFile>(std::vector<unsigned char>());
  }
}

} // namespace

PackDictionary::PackDictionary(const std::filesystem::path& folder, Problems& problems)
    : words_(held(folder / "datatu.txt", problems)), records_(held(folder / "data.mtd", problems)),
      entries_(held(folder / "data.avt", problems)) {
  for (const SourceLine& line : linesOf(words_->text()))
    heads_.push_back(line.text);
}

std::size_t PackDictionary::placeOf(std::size_t number) const {
  // The records have two parts: the entry's first byte, from 1, and where the next line begins.
  const std::int32_t place = integerAt(records_->text(), 2 * number + 1);
  return static_cast<std::size_t>(std::max<std::int32_t>(place, 0));
}

std::string PackDictionary::entryAt(std::size_t number) const {
  const auto first = static_cast<std::int64_t>(placeOf(number)) - 1;
  return storedUntil(entries_->text(), first, entryEnd).value_or("");
}

std::optional<std::size_t> PackDictionary::find(std::string_view word) const {
  const std::string wanted = ChuanHoaTu(word);
  const auto found = std::lower_bound(
      heads_.begin(), heads_.end(), wanted,
      [](std::string_view head, const std::string& form) { return ChuanHoaTu(head) < form; });
  if (found == heads_.end() || ChuanHoaTu(*found) != wanted) return std::nullopt;
  return static_cast<std::size_t>(found - heads_.begin());
}

std::optional<std::size_t> PackDictionary::findReduced(std::string_view word) const {
  if (const auto whole = find(word)) return whole;
  if (const auto stem = find(RutGonDuoi(word))) return stem;
  std::string shortened = lower(word);
  while (shortened.size() > shortestStem) {
    shortened.pop_back();
    if (const auto stem = find(shortened)) return stem;
  }
  return std::nullopt;
}

} // namespace talvora::pack
