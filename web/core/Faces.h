// The measures of the program's faces: how far each letter takes the pen, what pairs of letters are
// moved together, where a line may break. They are the desktop program's own, written down when the
// front was built.
#pragma once

#include "platform/TextStyle.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace talvora::web {

/// Twips in 64ths, in which letters are measured.
using Fine = std::int32_t;
inline constexpr Fine FinePerTwip = 64;

enum class Face : std::uint8_t { Sans, Semibold, Bold, Italic, SemiboldItalic, Schola, ScholaBold };
inline constexpr std::size_t FaceCount = 7;

/// The face that stands for a font.
[[nodiscard]] Face faceOf(const FontSpec& font, bool italic);
/// Size of a font's letters, in twips.
[[nodiscard]] int sizeOf(const FontSpec& font);

/// A value for each pair of letters; letters are numbers.
class PairTable {
 public:
  [[nodiscard]] std::int16_t at(std::size_t left, std::size_t right) const {
    return values_[rows_[left] * columnCount_ + columns_[right]];
  }

 private:
  friend class MeasureReader;

  std::vector<std::uint16_t> rows_;
  std::vector<std::uint16_t> columns_;
  std::size_t columnCount_ = 0;
  std::vector<std::int16_t> values_;
};

class Faces {
 public:
  /// Reads what the desktop program has written down.
  /// Throws FatalFailure when the bytes are no such thing.
  explicit Faces(std::span<const unsigned char> bytes);

  /// The number of a letter; one that no face has counts as a blank.
  [[nodiscard]] std::size_t numberOf(char16_t letter) const noexcept { return numbers_[letter]; }
  /// How far a letter takes the pen, without the gap between letters.
  [[nodiscard]] Fine advance(Face face, int size, std::size_t letter) const noexcept;
  /// By how much the next letter stands further off; less than 0 when it is nearer.
  [[nodiscard]] Fine kerning(Face face, int size, std::size_t letter,
                             std::size_t next) const noexcept;
  /// How far a letter's ink ends ahead of the pen; less than 0 when it reaches beyond.
  [[nodiscard]] Fine rightBearing(Face face, int size, std::size_t letter) const noexcept;
  /// Height of a line, with room for the marks of its letters.
  [[nodiscard]] double lineHeight(Face face, int size) const noexcept;
  /// From a line's letters to the pen's level.
  [[nodiscard]] double ascent(Face face, int size) const noexcept;
  [[nodiscard]] double descent(Face face, int size) const noexcept;
  [[nodiscard]] double averageWidth(Face face, int size) const noexcept;

  /// Whether a line may break between two letters that stand together, or between which there are
  /// blanks only.
  [[nodiscard]] bool mayBreak(std::size_t left, std::size_t right, bool blanksBetween) const {
    return (breaks_.at(left, right) & (blanksBetween ? 2 : 1)) != 0;
  }

 private:
  struct Measures {
    int unitsPerEm = 0;
    int ascent = 0;
    int descent = 0;
    int averageWidth = 0;
    std::vector<std::int16_t> advances;
    std::vector<std::int16_t> rightBearings;
    PairTable kerning;
  };

  [[nodiscard]] const Measures& of(Face face) const noexcept {
    return measures_[static_cast<std::size_t>(face)];
  }

  std::vector<std::uint16_t> numbers_; ///< by letter
  PairTable breaks_;
  std::array<Measures, FaceCount> measures_;
};

} // namespace talvora::web
