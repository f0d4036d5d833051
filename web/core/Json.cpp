#include "core/Json.h"

#include "text/GlyphMap.h"

#include <array>
#include <charconv>
#include <cmath>

namespace talvora::web {

void JsonWriter::separate() {
  if (text_.empty()) return;
  const char last = text_.back();
  if (last != '{' && last != '[' && last != ':') text_ += ',';
}

JsonWriter& JsonWriter::open(char bracket) {
  separate();
  text_ += bracket;
  return *this;
}

JsonWriter& JsonWriter::close(char bracket) {
  text_ += bracket;
  return *this;
}

JsonWriter& JsonWriter::key(std::string_view name) {
  separate();
  text_.append(1, '"').append(name).append("\":");
  return *this;
}

JsonWriter& JsonWriter::value(double number) {
  separate();
  // Twips to a hundredth are as exact as any screen.
  const long long hundredths = std::llround(number * 100);
  std::array<char, 24> digits{};
  const auto whole = std::to_chars(digits.data(), digits.data() + digits.size(), hundredths);
  text_.append(digits.data(), whole.ptr);
  if (hundredths != 0) text_ += "e-2";
  return *this;
}

JsonWriter& JsonWriter::value(bool flag) {
  separate();
  text_ += flag ? "true" : "false";
  return *this;
}

JsonWriter& JsonWriter::value(std::u16string_view text) {
  separate();
  text_ += '"';
  for (const char16_t unit : text) {
    if (unit == u'"' || unit == u'\\') text_ += '\\';
    if (unit >= u' ') {
      appendUtf8(text_, unit);
    } else {
      text_ += unit == u'\n' || unit == u'\r' ? "\\n" : " ";
    }
  }
  text_ += '"';
  return *this;
}

JsonWriter& JsonWriter::value(std::string_view ascii) {
  return value(std::u16string_view(std::u16string(ascii.begin(), ascii.end())));
}

} // namespace talvora::web
