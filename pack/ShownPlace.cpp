// Reading of places, and their lines.
#include "pack/ShownPlace.h"

#include <charconv>

namespace talvora::pack {

ShownPlace shownPlaceOf(const std::string& text) {
  const std::size_t colon = text.rfind(':');
  int line = 0;
  if (colon != std::string::npos) {
    const char* const end = text.data() + text.size();
    const auto [behind, failure] = std::from_chars(text.data() + colon + 1, end, line);
    if (failure == std::errc() && behind == end && line > 0) return {text.substr(0, colon), line};
  }
  return {text, 0};
}

bool isWanted(const ShownPlace& place, int first, int next) {
  if (place.line == 0) return true;
  return first <= place.line && (next == 0 || place.line < next);
}

std::string placeShown(const Where& where) {
  return "-- " + where.file + ":" + std::to_string(where.line);
}

} // namespace talvora::pack
