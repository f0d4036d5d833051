// Any bytes as rich text: runs and paragraphs cover the text, and a surface takes it whole.
#include "platform/scripted/FixedLayout.h"
#include "surface/RichText.h"
#include "surface/Surface.h"

#include <cstdint>
#include <cstdlib>
#include <string_view>

namespace {

using namespace talvora;

/// Nobody looks at what is fuzzed.
class NoHost final : public ControlHost {
 public:
  void giveFocus(Control&) override {}
  [[nodiscard]] bool hasFocus(const Control&) const noexcept override { return false; }
  void focusNeighbour(Control&, int) override {}
  void controlChanged(Control&, ControlChange) override {}
};

template <class Parts>
void requireCover(const Parts& parts, std::size_t length) {
  std::size_t at = 0;
  for (const auto& part : parts) {
    if (static_cast<std::size_t>(part.from) != at || part.to < part.from) std::abort();
    at = static_cast<std::size_t>(part.to);
  }
  if (at != length) std::abort();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const StyledText text = readRichText({reinterpret_cast<const char*>(data), size}, FontSpec());
  if (text.text.size() > size) std::abort();
  requireCover(text.runs, text.text.size());
  requireCover(text.paragraphs, text.text.size());
  NoHost host;
  const FixedLayout layout;
  Surface surface("R", host, layout);
  surface.TextRTF(text);
  surface.Check();
  if (surface.Text() != text.text) std::abort();
  return 0;
}
