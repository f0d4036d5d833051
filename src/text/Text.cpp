#include "text/Text.h"

#include <algorithm>

namespace talvora {

std::string lower(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(),
                 [](char character) { return lower(character); });
  return result;
}

std::string_view trim(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string Str(long long number) {
  const std::string digits = std::to_string(number);
  return number < 0 ? digits : " " + digits;
}

std::string pathBelow(const std::string& directory, std::string_view storedName) {
  std::string path = directory;
  path += storedName;
  std::replace(path.begin() + static_cast<std::ptrdiff_t>(directory.size()), path.end(), '\\', '/');
  return path;
}

} // namespace talvora
