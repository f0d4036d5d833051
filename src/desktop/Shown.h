// Unicode of the fronts' own texts as Qt has it.
#pragma once

#include <QString>

#include <string_view>

namespace talvora {

[[nodiscard]] inline QString shown(std::u16string_view text) {
  return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}

} // namespace talvora
