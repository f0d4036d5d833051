// Messages to the page: objects and lists of JSON, written in one go.
#pragma once

#include <string>
#include <string_view>

namespace talvora::web {

class JsonWriter {
 public:
  JsonWriter& open(char bracket);
  JsonWriter& close(char bracket);
  JsonWriter& key(std::string_view name);
  JsonWriter& value(double number);
  JsonWriter& value(bool flag);
  JsonWriter& value(std::u16string_view text);
  JsonWriter& value(std::string_view ascii);
  JsonWriter& value(const char* ascii) { return value(std::string_view(ascii)); }
  JsonWriter& value(int number) { return value(static_cast<double>(number)); }

  template <class Value>
  JsonWriter& field(std::string_view name, const Value& its) {
    return key(name).value(its);
  }

  [[nodiscard]] const std::string& text() const noexcept { return text_; }

 private:
  void separate();

  std::string text_;
};

} // namespace talvora::web
