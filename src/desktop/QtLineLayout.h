// The line layout of the desktop: paragraphs set by Qt.
#pragma once

#include "desktop/LetterAtlas.h"
#include "desktop/LetterWidths.h"
#include "desktop/TextShaper.h"
#include "fronts/KeptLayout.h"

#include <cstdint>
#include <memory>

namespace talvora {

class QtLineLayout final : public KeptLayout<ShapedParagraph> {
 public:
  /// A short paragraph is not set for it.
  [[nodiscard]] int lineCount(const ParagraphView& paragraph) const override;

  /// The pictures of large letters, which all paragraphs are painted with.
  [[nodiscard]] LetterAtlas& letters() noexcept { return letters_; }

 protected:
  [[nodiscard]] std::unique_ptr<ShapedParagraph> make(const ParagraphView& view,
                                                      std::uint64_t serial) const override {
    return std::make_unique<ShapedParagraph>(view, serial);
  }

 private:
  mutable LetterWidths widths_;
  LetterAtlas letters_;
};

} // namespace talvora
