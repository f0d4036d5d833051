// How wide letters are by themselves: enough to tell that a short paragraph takes one line, without
// setting it.
#pragma once

#include "platform/LineLayout.h"
#include "platform/TextStyle.h"

#include <array>
#include <cstddef>
#include <vector>

namespace talvora {

class LetterWidths {
 public:
  /// True when the paragraph takes one line for certain; a long one may, too, when this is false.
  [[nodiscard]] bool fitsOneLine(const ParagraphView& paragraph);

 private:
  struct Face {
    FontSpec font;
    bool italic = false;
    double tab = 0;                 ///< distance of tab stops, where it is the default font
    std::array<double, 256> widths; ///< of each byte, in twips; below 0 until it is asked for
  };

  [[nodiscard]] Face& faceOf(const FontSpec& font, bool italic);
  [[nodiscard]] static double widthOf(Face& face, char letter);

  std::vector<Face> faces_;
};

} // namespace talvora
