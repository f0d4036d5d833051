// Where paragraphs start and how each looks.
#pragma once

#include "surface/Partitioning.h"
#include "surface/RunTable.h"
#include "surface/TextBuffer.h"

#include <string_view>
#include <vector>

namespace talvora {

/// There is at least one paragraph; the last one is empty when the text ends in a line end.
class ParagraphTable {
 public:
  ParagraphTable() { assign({0}, 0, 0); }

  [[nodiscard]] int count() const noexcept { return starts_.count(); }
  /// Where a paragraph starts; the text's length for the paragraph behind the last.
  [[nodiscard]] int start(int paragraph) const noexcept { return starts_.start(paragraph); }
  /// The paragraph that holds a caret.
  [[nodiscard]] int paragraphOf(int caret) const noexcept { return starts_.partOf(caret); }
  [[nodiscard]] StyleId style(int paragraph) const noexcept { return styles_.styleAt(paragraph); }
  void style(int paragraph, StyleId style) { styles_.replace(paragraph, paragraph + 1, 1, style); }

  /// Where the paragraphs of a whole text start.
  [[nodiscard]] static std::vector<int> startsIn(std::string_view text);
  /// Takes where the paragraphs of a text of `length` characters start; all are of one style.
  void assign(std::vector<int> starts, int length, StyleId style);
  /// Follows an edit that `text` has had already: `added` took the place of the characters between
  /// `from` and `to`. Paragraphs that it makes look like the one that they were split from.
  void replaced(int from, int to, std::string_view added, const TextBuffer& text);

  /// Throws std::logic_error naming the first invariant that is broken.
  void Check(const TextBuffer& text) const;

 private:
  void insert(int paragraph, int start, StyleId style);
  void erase(int first, int last);

  Partitioning starts_;
  RunTable styles_; ///< its positions are paragraphs
};

} // namespace talvora
