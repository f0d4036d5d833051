#include "dictionary/SyllableGate.h"

#include "text/CharClass.h"
#include "text/Text.h"

#include <algorithm>
#include <string>

namespace talvora {

namespace {

constexpr CharClass EnglishCharacters("[a-zA-Z,'. -]");

constexpr auto sortedSyllables = [] {
  auto sorted = VietnameseSyllables;
  std::sort(sorted.begin(), sorted.end());
  return sorted;
}();

} // namespace

bool LaTiengAnh(std::string_view s) {
  const std::string small = lower(s);
  if (std::binary_search(sortedSyllables.begin(), sortedSyllables.end(), small)) return false;
  return !small.empty() && EnglishCharacters.hasAll(small);
}

} // namespace talvora
