// The part of a source that is to be shown.
#pragma once

#include "pack/Problems.h"

#include <filesystem>
#include <iterator>
#include <string>

namespace talvora::pack {

/// What of a file is shown.
struct ShownPlace {
  std::filesystem::path file;
  int line = 0; ///< a line of the part wanted; 0 for all of the file
};

/// Reads "FILE" or "FILE:LINE".
[[nodiscard]] ShownPlace shownPlaceOf(const std::string& text);

/// "-- FILE:LINE": the heading of a part.
[[nodiscard]] std::string placeShown(const Where& where);

/// True when a line of the part that begins at `first` is wanted; `next` is the line of the part
/// behind it, 0 for the last one.
[[nodiscard]] bool isWanted(const ShownPlace& place, int first, int next);

/// Those of a source's parts that stand in a wanted line, as `show` has each.
template <class Parts, class Show>
[[nodiscard]] std::string partsShown(const ShownPlace& place, const Parts& parts, Show show) {
  std::string text;
  for (auto each = parts.begin(); each != parts.end(); ++each) {
    const auto next = std::next(each);
    if (isWanted(place, each->where.line, next == parts.end() ? 0 : next->where.line))
      text += (text.empty() ? "" : "\n") + show(*each);
  }
  return text;
}

} // namespace talvora::pack
