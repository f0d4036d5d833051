// Texts and values of the program as JSON, and back. A text's byte is the code point of the same
// number, in both directions.
#pragma once

#include "platform/scripted/ScriptedLog.h"
#include "surface/Form.h"
#include "surface/Variables.h"

#include <nlohmann/json.hpp>

#include <optional>
#include <string>
#include <string_view>

namespace talvora {

/// The fields of an object stay in the order in which they were written.
using Json = nlohmann::ordered_json;

[[nodiscard]] Json jsonText(std::string_view bytes);
/// The bytes of a JSON string; empty when a character has no byte.
[[nodiscard]] std::optional<std::string> bytesOfJson(const Json& text);
[[nodiscard]] Json jsonValue(const VariableValue& value);
/// A JSON text, number or flag as a value; empty for anything else.
[[nodiscard]] std::optional<VariableValue> valueOfJson(const Json& json);
[[nodiscard]] Json jsonEntry(const LogEntry& entry);
/// Everything that the protocol tells of a control.
[[nodiscard]] Json jsonControl(const Control& control);

} // namespace talvora
