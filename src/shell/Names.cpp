#include "shell/Names.h"

#include <cstdint>
#include <limits>

namespace talvora {

int SoTrongTen(std::string_view name) {
  std::int64_t number = 0;
  std::int64_t power = 1;
  for (auto at = name.rbegin(); at != name.rend(); ++at) {
    if (*at < '0' || *at > '9') continue;
    const std::int64_t grown = number + (*at - '0') * power;
    if (grown > std::numeric_limits<int>::max()) break;
    number = grown;
    if (power < std::numeric_limits<int>::max()) power *= 10;
  }
  return static_cast<int>(number);
}

} // namespace talvora
