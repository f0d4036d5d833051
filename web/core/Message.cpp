#include "core/Message.h"

#include "core/Host.h"
#include "text/GlyphMap.h"

namespace talvora::web {

std::string utf8Of(std::u16string_view text) {
  std::string utf8;
  for (const char16_t unit : text) {
    const bool endsLine = unit == u'\n' || unit == u'\r';
    appendUtf8(utf8, unit >= u' ' ? unit : endsLine ? u'\n' : u' ');
  }
  return utf8;
}

void tellPage(const Json& message) {
  const std::string text = message.dump();
  talvoraTell(text.data(), text.size());
}

void tellText(const char* what, std::u16string_view text) {
  tellPage({{"do", what}, {"text", utf8Of(text)}});
}

} // namespace talvora::web
