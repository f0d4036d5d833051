#include "desktop/QtLineLayout.h"

namespace talvora {

int QtLineLayout::lineCount(const ParagraphView& paragraph) const {
  return widths_.fitsOneLine(paragraph) ? 1 : KeptLayout::lineCount(paragraph);
}

} // namespace talvora
