// A paragraph as it stands in its document, for a layout: what lies in one piece is not copied.
#pragma once

#include "platform/LineLayout.h"

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace talvora {

class Document;

/// Serves wherever a `ParagraphView` is wanted, and holds until the document changes.
class ParagraphRef {
 public:
  /// A paragraph, counted from 0, on a surface of a width in twips.
  ParagraphRef(const Document& document, int index, int width);
  ParagraphRef(const ParagraphRef&) = delete;
  ParagraphRef& operator=(const ParagraphRef&) = delete;

  [[nodiscard]] const ParagraphView& view() const noexcept { return view_; }

 private:
  void findRuns(const Document& document, int start);
  void add(StyleRun run);
  [[nodiscard]] std::span<const StyleRun> runs() const noexcept;

  /// Runs of a usual paragraph take no memory beside their own.
  static constexpr std::size_t UsualRuns = 24;

  std::array<StyleRun, UsualRuns> usual_;
  std::size_t count_ = 0;
  std::vector<StyleRun> many_; ///< all of them, when they are more than usual
  std::string joined_;         ///< the text, where the document holds it in two pieces
  ParagraphView view_;
};

} // namespace talvora
