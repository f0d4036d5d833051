// Text metrics answer how large a text is in a font.
#pragma once

#include "platform/TextStyle.h"

#include <string_view>

namespace talvora {

class TextMetrics {
 public:
  virtual ~TextMetrics() = default;

  /// Width of `text` set on one line, in twips.
  [[nodiscard]] virtual int TextWidth(std::string_view text, const FontSpec& font) const = 0;
  /// Height of a line of `text`, in twips.
  [[nodiscard]] virtual int TextHeight(std::string_view text, const FontSpec& font) const = 0;
};

} // namespace talvora
