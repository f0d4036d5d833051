// Text measured and broken into lines by the tables of the faces.
#pragma once

#include "core/Paragraph.h"
#include "fronts/KeptLayout.h"
#include "platform/TextMetrics.h"

#include <cstdint>
#include <memory>
#include <string_view>

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

class WebLineLayout final : public KeptLayout<Paragraph> {
 public:
  explicit WebLineLayout(const Faces& faces) : faces_(faces) {}

 protected:
  [[nodiscard]] std::unique_ptr<Paragraph> make(const ParagraphView& view,
                                                std::uint64_t serial) const override {
    return std::make_unique<Paragraph>(faces_, view, serial);
  }

 private:
  const Faces& faces_;
};

} // namespace talvora::web
