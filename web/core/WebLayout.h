// Text measured and broken into lines by the tables of the faces.
#pragma once

#include "core/Paragraph.h"
#include "platform/LineLayout.h"
#include "platform/TextMetrics.h"

#include <cstdint>
#include <list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace talvora::web {

class WebTextMetrics final : public TextMetrics {
 public:
  explicit WebTextMetrics(const Faces& faces) : faces_(faces) {}

  [[nodiscard]] int TextWidth(std::string_view text, const FontSpec& font) const override;
  [[nodiscard]] int TextHeight(std::string_view text, const FontSpec& font) const override;

  /// The same, not rounded up.
  [[nodiscard]] double widthOf(std::string_view text, const FontSpec& font) const;

 private:
  const Faces& faces_;
};

/// Keeps the paragraphs that were asked for last.
class WebLineLayout final : public LineLayout {
 public:
  explicit WebLineLayout(const Faces& faces) : faces_(faces) {}

  [[nodiscard]] ParagraphShape layOut(const ParagraphView& paragraph) const override;
  [[nodiscard]] CaretPlace placeOf(const ParagraphView& paragraph, int offset) const override;
  [[nodiscard]] int offsetAt(const ParagraphView& paragraph, int x, int y) const override;

  /// The paragraph as it is painted; valid until the next call.
  [[nodiscard]] const Paragraph& shaped(const ParagraphView& paragraph) const;

 private:
  struct Entry {
    Entry(std::string itsKey, const Faces& faces, const ParagraphView& view, std::uint64_t serial)
        : key(std::move(itsKey)), paragraph(faces, view, serial) {}

    std::string key;
    Paragraph paragraph;
  };

  const Faces& faces_;
  mutable std::list<Entry> entries_; ///< the one asked for last is in front
  mutable std::unordered_map<std::string_view, std::list<Entry>::iterator> places_;
  mutable std::uint64_t lastSerial_ = 0;
};

} // namespace talvora::web
