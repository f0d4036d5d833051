#include "core/Faces.h"

#include "platform/FatalFailure.h"
#include "text/GlyphMap.h"

#include <algorithm>
#include <cmath>

namespace talvora::web {

namespace {

constexpr double TwipsPerPoint = 20;
constexpr double LinePitch = 1.32;     ///< in sizes of the letters
constexpr double SmallestTitle = 22.5; // points
constexpr std::size_t Letters = 0x10000;

/// Units of a face as 64ths of a twip, rounded as scalable faces are everywhere: the scale has 16
/// binary places.
std::int64_t scaleOf(int size, int unitsPerEm) {
  const std::int64_t wanted = std::int64_t{size} * FinePerTwip << 16;
  return (wanted + unitsPerEm / 2) / unitsPerEm;
}

double scaled(int units, int size, int unitsPerEm) {
  return static_cast<double>(units) * size / unitsPerEm;
}

} // namespace

Face faceOf(const FontSpec& font, bool italic) {
  if (encodingOf(font.name) == Encoding::Vni) return font.bold ? Face::ScholaBold : Face::Schola;
  if (italic) return font.bold ? Face::SemiboldItalic : Face::Italic;
  if (!font.bold) return Face::Sans;
  return font.size >= SmallestTitle ? Face::Bold : Face::Semibold;
}

int sizeOf(const FontSpec& font) {
  return std::max(1, static_cast<int>(std::lround(font.size * TwipsPerPoint)));
}

/// Reads numbers one after the other; beyond the end it throws.
class MeasureReader {
 public:
  explicit MeasureReader(std::span<const unsigned char> bytes) : bytes_(bytes) {}

  std::uint16_t number() {
    if (bytes_.size() < 2) throw FatalFailure("faces.bin: record 1: the measures end too soon");
    const auto value = static_cast<std::uint16_t>(bytes_[0] | bytes_[1] << 8U);
    bytes_ = bytes_.subspan(2);
    return value;
  }
  std::int16_t signedNumber() { return static_cast<std::int16_t>(number()); }

  PairTable pairs(std::size_t letters) {
    PairTable table;
    for (auto* const classes : {&table.rows_, &table.columns_}) {
      for (std::size_t at = 0; at < letters; ++at)
        classes->push_back(number());
    }
    const std::size_t rowCount = number();
    table.columnCount_ = number();
    const auto isBeyond = [](std::size_t count) {
      return [count](std::uint16_t each) { return each >= count; };
    };
    if (std::any_of(table.rows_.begin(), table.rows_.end(), isBeyond(rowCount)) ||
        std::any_of(table.columns_.begin(), table.columns_.end(), isBeyond(table.columnCount_))) {
      throw FatalFailure("faces.bin: record 1: a row that is not there");
    }
    for (std::size_t at = 0; at < rowCount * table.columnCount_; ++at)
      table.values_.push_back(signedNumber());
    return table;
  }

 private:
  std::span<const unsigned char> bytes_;
};

Faces::Faces(std::span<const unsigned char> bytes) : numbers_(Letters) {
  MeasureReader reader(bytes);
  const std::size_t letters = reader.number();
  std::uint16_t blank = 0;
  std::vector<std::uint16_t> known;
  for (std::size_t at = 0; at < letters; ++at) {
    known.push_back(reader.number());
    if (known.back() == ' ') blank = static_cast<std::uint16_t>(at);
  }
  std::fill(numbers_.begin(), numbers_.end(), blank);
  for (std::size_t at = 0; at < letters; ++at)
    numbers_[known[at]] = static_cast<std::uint16_t>(at);
  breaks_ = reader.pairs(letters);
  for (Measures& each : measures_) {
    each.unitsPerEm = std::max<int>(1, reader.number());
    each.ascent = reader.signedNumber();
    each.descent = reader.signedNumber();
    each.averageWidth = reader.signedNumber();
    for (std::size_t at = 0; at < letters; ++at) {
      each.advances.push_back(reader.signedNumber());
      each.rightBearings.push_back(reader.signedNumber());
    }
    each.kerning = reader.pairs(letters);
  }
}

Fine Faces::advance(Face face, int size, std::size_t letter) const noexcept {
  const Measures& measures = of(face);
  // Cut to a 64th, as the toolkit's rasteriser does.
  return static_cast<Fine>(measures.advances[letter] * scaleOf(size, measures.unitsPerEm) >> 16);
}

Fine Faces::kerning(Face face, int size, std::size_t letter, std::size_t next) const noexcept {
  const Measures& measures = of(face);
  const std::int64_t units = measures.kerning.at(letter, next);
  const std::int64_t scale = (std::int64_t{size} * FinePerTwip << 16) / measures.unitsPerEm;
  return static_cast<Fine>((units * scale + (1 << 15)) >> 16);
}

Fine Faces::rightBearing(Face face, int size, std::size_t letter) const noexcept {
  const Measures& measures = of(face);
  return static_cast<Fine>(measures.rightBearings[letter] * scaleOf(size, measures.unitsPerEm) >>
                           16);
}

double Faces::ascent(Face face, int size) const noexcept {
  return scaled(of(face).ascent, size, of(face).unitsPerEm);
}

double Faces::descent(Face face, int size) const noexcept {
  return scaled(of(face).descent, size, of(face).unitsPerEm);
}

double Faces::lineHeight(Face face, int size) const noexcept {
  return std::max(ascent(face, size) + descent(face, size), size * LinePitch);
}

double Faces::averageWidth(Face face, int size) const noexcept {
  return scaled(of(face).averageWidth, size, of(face).unitsPerEm);
}

} // namespace talvora::web
