#include "stores/OwnTexts.h"

#include "formats/Integers.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace talvora {

namespace {

using Bytes = std::vector<unsigned char>;

/// Own texts as their file has them.
struct OwnTexts {
  int count = 0;
  std::vector<std::int32_t> positions; ///< 2 x count + 1
  std::span<const unsigned char> stream;
};

/// Nothing when the bytes are no such file.
std::optional<OwnTexts> ownTextsFrom(std::span<const unsigned char> bytes) {
  if (bytes.size() < IntegerSize) return std::nullopt;
  OwnTexts own;
  own.count = integerAt(bytes.data());
  if (own.count < 1 || own.count > MostOwnTexts) return std::nullopt;
  const std::size_t records = 2 * static_cast<std::size_t>(own.count) + 1;
  const std::size_t start = (records + 1) * IntegerSize;
  if (bytes.size() < start) return std::nullopt;
  own.stream = bytes.subspan(start);
  for (std::size_t record = 1; record <= records; ++record) {
    const std::int32_t position = integerAt(bytes.data() + record * IntegerSize);
    if (position < 0 || static_cast<std::size_t>(position) > own.stream.size()) return std::nullopt;
    own.positions.push_back(position);
  }
  return own;
}

void append(Bytes& bytes, std::int32_t value) {
  const auto record = bytesOf(value);
  bytes.insert(bytes.end(), record.begin(), record.end());
}

std::int32_t recordOf(const MappedFile& positions, int record) {
  const std::size_t offset = static_cast<std::size_t>(record - 1) * IntegerSize;
  const auto bytes = positions.bytes();
  return offset + IntegerSize <= bytes.size() ? integerAt(bytes.data() + offset) : 0;
}

/// The texts of both, then the translations of both, then the end.
Bytes joinedPositions(const TextFiles& course, const OwnTexts& own) {
  const auto shift = static_cast<std::int32_t>(course.stream->bytes().size());
  const auto count = static_cast<std::size_t>(own.count);
  Bytes joined;
  for (int half = 0; half < 2; ++half) {
    for (int text = 1; text <= course.texts; ++text)
      append(joined, recordOf(*course.positions, half * course.texts + text));
    for (std::size_t text = 0; text < count; ++text)
      append(joined, shift + own.positions[static_cast<std::size_t>(half) * count + text]);
  }
  append(joined, shift + own.positions.back());
  return joined;
}

} // namespace

TextFiles withOwnTexts(TextFiles course, const std::string& learner, FileSystem& files) {
  std::error_code error;
  const auto content = readWhole(files, learner + "/" + std::string(OwnTextsFile), error);
  const auto own = content ? ownTextsFrom(*content) : std::nullopt;
  if (!own) return course;
  Bytes stream(course.stream->bytes().begin(), course.stream->bytes().end());
  stream.insert(stream.end(), own->stream.begin(), own->stream.end());
  return {std::make_shared<const MappedFile>(joinedPositions(course, *own)),
          std::make_shared<const MappedFile>(std::move(stream)), course.texts + own->count};
}

} // namespace talvora
