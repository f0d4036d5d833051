#include "surface/ParagraphRef.h"

#include "surface/Document.h"
#include "surface/LineEnds.h"

namespace talvora {

ParagraphRef::ParagraphRef(const Document& document, int index, int width) {
  const int start = document.paragraphStart(index);
  view_.text =
      withoutLineEnd(document.text_.view(start, document.paragraphStart(index + 1), joined_));
  findRuns(document, start);
  view_.runs = runs_;
  view_.style = document.paragraphStyle(index);
  view_.defaultFont = document.defaultStyle().font;
  view_.width = width;
}

void ParagraphRef::findRuns(const Document& document, int start) {
  runs_.reserve(UsualRuns);
  const int end = start + static_cast<int>(view_.text.size());
  for (int from = start; from < end; from = document.runEnd(from))
    runs_.push_back({from - start, &document.styleAt(from)});
  if (!runs_.empty()) return;
  // An empty line is as high as its line end, or as what would be written there.
  const int like = start < document.length() ? start : start - 1;
  runs_.push_back({0, like >= 0 ? &document.styleAt(like) : &document.defaultStyle()});
}

} // namespace talvora
