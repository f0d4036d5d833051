#include "surface/ParagraphRef.h"

#include "surface/Document.h"
#include "surface/LineEnds.h"

namespace talvora {

ParagraphRef::ParagraphRef(const Document& document, int index, int width) {
  const int start = document.paragraphStart(index);
  view_.text =
      withoutLineEnd(document.text_.view(start, document.paragraphStart(index + 1), joined_));
  findRuns(document, start);
  view_.runs = runs();
  view_.style = document.paragraphStyle(index);
  view_.defaultFont = document.defaultStyle().font;
  view_.width = width;
}

void ParagraphRef::findRuns(const Document& document, int start) {
  const int end = start + static_cast<int>(view_.text.size());
  for (int from = start; from < end; from = document.runEnd(from))
    add({from - start, &document.styleAt(from)});
  if (count_ > 0) return;
  // An empty line is as high as its line end, or as what would be written there.
  const int like = start < document.length() ? start : start - 1;
  add({0, like >= 0 ? &document.styleAt(like) : &document.defaultStyle()});
}

void ParagraphRef::add(StyleRun run) {
  if (count_ < UsualRuns) {
    usual_[count_] = run;
  } else {
    if (many_.empty()) many_.assign(usual_.begin(), usual_.end());
    many_.push_back(run);
  }
  ++count_;
}

std::span<const StyleRun> ParagraphRef::runs() const noexcept {
  return many_.empty() ? std::span(usual_).first(count_) : std::span<const StyleRun>(many_);
}

} // namespace talvora
