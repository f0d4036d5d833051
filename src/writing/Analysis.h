// The analysis of a text as plain data: the stretches into which the text is cut, and what is said
// about each.
#pragma once

#include "formats/Limits.h"

#include <string>
#include <string_view>
#include <vector>

namespace talvora {

/// A stretch of an analysed text, between two positions from 1, and its explanation.
struct AnalysedStretch {
  int Dau = 0;
  int Cuoi = 0;
  std::string Chu;

  friend bool operator==(const AnalysedStretch&, const AnalysedStretch&) = default;
};

/// The most stretches that an analysis can have.
inline constexpr std::size_t MostStretches = limit::Stretches;

/// Cuts a marked text into stretches: each "|" from the body on ends one. `titleEnd` is the
/// position at which the body begins. Throws FatalFailure naming `where` when there are too many.
[[nodiscard]] std::vector<AnalysedStretch> LapOTuPT(std::string_view VanBanGoc, int titleEnd,
                                                    const std::string& where);

/// Splits an analysis at "^" and writes the labels of the fields into it. Element k is the text of
/// stretch k + 1. Throws FatalFailure naming `where` when there are too many.
[[nodiscard]] std::vector<std::string> GanGiaiPT(std::string_view PhanTich,
                                                 const std::string& where);

/// A stretch of a surface, in characters.
struct WordMark {
  int SelStart = 0;
  int SelLength = 0;

  friend bool operator==(const WordMark&, const WordMark&) = default;
};

/// The stretch of a marked text at a position, from 1, without blanks and the points behind it; of
/// length 0 where nothing stands.
[[nodiscard]] WordMark markAt(std::string_view VanBanGoc, int position);

} // namespace talvora
