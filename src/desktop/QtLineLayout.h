// The line layout of the desktop: paragraphs set by Qt, the ones that were asked for last kept.
#pragma once

#include "desktop/LetterAtlas.h"
#include "desktop/LetterWidths.h"
#include "desktop/TextShaper.h"
#include "platform/LineLayout.h"

#include <cstddef>
#include <cstdint>
#include <list>
#include <string>
#include <unordered_map>
#include <vector>

namespace talvora {

/// Paragraphs are known by all that their look depends on, and looked up without a copy of it. So a
/// page that is written anew, as most are each time that they are opened, finds its paragraphs.
class QtLineLayout final : public LineLayout {
 public:
  [[nodiscard]] ParagraphShape layOut(const ParagraphView& paragraph) const override;
  [[nodiscard]] int heightOf(const ParagraphView& paragraph) const override;
  /// A short paragraph is not set for it.
  [[nodiscard]] int lineCount(const ParagraphView& paragraph) const override;
  [[nodiscard]] CaretPlace placeOf(const ParagraphView& paragraph, int offset) const override;
  [[nodiscard]] int offsetAt(const ParagraphView& paragraph, int x, int y) const override;

  /// The paragraph as it is painted; valid until the next call.
  [[nodiscard]] const ShapedParagraph& shaped(const ParagraphView& paragraph) const;
  /// The pictures of large letters, which all paragraphs are painted with.
  [[nodiscard]] LetterAtlas& letters() noexcept { return letters_; }

 private:
  /// A paragraph with a copy of what it was made from.
  struct Entry {
    Entry(const ParagraphView& view, std::size_t itsHash, std::uint64_t serial);
    [[nodiscard]] bool isOf(const ParagraphView& view) const;

    std::size_t hash;
    std::string text;
    std::vector<int> runStarts;
    std::vector<CharStyle> styles;
    ParagraphStyle style;
    FontSpec defaultFont;
    int width;
    ShapedParagraph paragraph;
  };
  using Entries = std::list<Entry>;
  using Places = std::unordered_multimap<std::size_t, Entries::iterator>;

  [[nodiscard]] Places::iterator found(const ParagraphView& paragraph, std::size_t hash) const;
  void dropOldest() const;

  mutable Entries entries_; ///< the one asked for last is in front
  mutable Places places_;   ///< by hash
  mutable std::uint64_t lastSerial_ = 0;
  mutable LetterWidths widths_;
  LetterAtlas letters_;
};

} // namespace talvora
