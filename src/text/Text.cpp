#include "text/Text.h"

#include "text/Bytes.h"
#include "text/CharClass.h"

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

bool fits(std::string_view text, std::string_view pattern) {
  static constexpr CharClass digits("[0-9]");
  return std::equal(
      text.begin(), text.end(), pattern.begin(), pattern.end(),
      [](char letter, char asked) { return asked == '#' ? digits.has(letter) : letter == asked; });
}

std::vector<std::string> split(std::string_view text, char separator) {
  std::vector<std::string> pieces(1);
  for (const char character : text) {
    if (character == separator) {
      pieces.emplace_back();
    } else {
      pieces.back() += character;
    }
  }
  return pieces;
}

std::string Str(long long number) {
  const std::string digits = std::to_string(number);
  return number < 0 ? digits : " " + digits;
}

std::string plainAscii(std::string_view text) {
  constexpr char apostrophe = chr(0x92);
  std::string plain(text);
  for (char& character : plain) {
    if (character == apostrophe) character = '\'';
    if (asc(character) < ' ' || asc(character) > '~') character = ' ';
  }
  return plain;
}

std::string pathBelow(const std::string& directory, std::string_view storedName) {
  std::string path = directory;
  if (!storedName.starts_with('\\')) path += '/';
  path += storedName;
  std::replace(path.begin() + static_cast<std::ptrdiff_t>(directory.size()), path.end(), '\\', '/');
  return path;
}

} // namespace talvora
