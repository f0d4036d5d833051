#include "exercises/ItemMask.h"

#include <algorithm>

namespace talvora {

void TaoMatNa(std::string& mask) {
  bool inside = false;
  char previous = '\0';
  for (char& character : mask) {
    const char read = character;
    if (read == '*') inside = true;
    if (inside && previous == '_' && read != '_') inside = false;
    if (!inside) character = PlainText;
    previous = read;
  }
}

std::string hideAnswers(std::string_view body) {
  std::string shown(body);
  bool hiding = false;
  for (char& character : shown) {
    if (character == '*') hiding = true;
    if (character == '_') hiding = false;
    if (hiding) character = '_';
  }
  return shown;
}

int stretchEnd(std::string_view mask, int position) {
  const std::size_t from =
      std::min(static_cast<std::size_t>(std::max(position, 1)) - 1, mask.size());
  return static_cast<int>(std::min(mask.find(PlainText, from), mask.size()));
}

} // namespace talvora
