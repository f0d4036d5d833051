// Messages to the page.
#pragma once

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>

namespace talvora::web {

using Json = nlohmann::json;

/// A text as a message has it: UTF-8, with '\n' where a line ends.
[[nodiscard]] std::string utf8Of(std::u16string_view text);

/// Sends the page an object with what is to be done and with what.
void tellPage(const Json& message);
/// The same of a text.
void tellText(const char* what, std::u16string_view text);

} // namespace talvora::web
