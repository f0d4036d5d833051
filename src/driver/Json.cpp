#include "driver/Json.h"

#include "surface/Button.h"
#include "surface/Surface.h"
#include "text/Bytes.h"
#include "text/GlyphMap.h"

#include <cmath>

namespace talvora {

namespace {

Json jsonNumber(double number) {
  constexpr double LargestWhole = 9007199254740992.0;
  if (number == std::floor(number) && std::abs(number) <= LargestWhole) {
    return static_cast<std::int64_t>(number);
  }
  return number;
}

Json jsonRuns(const Surface& surface) {
  Json runs = Json::array();
  for (const StyledRun& run : surface.runs()) {
    const CharStyle& style = run.style;
    runs.push_back({{"from", run.from},
                    {"to", run.to},
                    {"color", style.color},
                    {"bold", style.font.bold},
                    {"italic", style.italic},
                    {"underline", style.underline},
                    {"size", jsonNumber(style.font.size)},
                    {"font", jsonText(style.font.name)},
                    {"protected", style.protectedText}});
  }
  return runs;
}

Json jsonParagraphs(const Surface& surface) {
  Json paragraphs = Json::array();
  for (const StyledParagraph& paragraph : surface.paragraphs()) {
    paragraphs.push_back({{"from", paragraph.from},
                          {"to", paragraph.to},
                          {"align", static_cast<int>(paragraph.style.align)},
                          {"indent", jsonNumber(paragraph.style.indent)},
                          {"bullet", paragraph.style.bullet}});
  }
  return paragraphs;
}

void addSurface(Json& reply, const Surface& surface) {
  reply["locked"] = surface.Locked();
  reply["text"] = jsonText(surface.Text());
  reply["selStart"] = surface.SelStart();
  reply["selLength"] = surface.SelLength();
  reply["selText"] = jsonText(surface.SelText());
  reply["back"] = surface.BackColor();
  reply["runs"] = jsonRuns(surface);
  reply["paragraphs"] = jsonParagraphs(surface);
}

void addButton(Json& reply, const Button& button) {
  reply["caption"] = jsonText(button.Caption());
  reply["tabIndex"] = button.TabIndex();
  reply["picture"] = "bitmap " + std::to_string(button.Picture());
}

} // namespace

Json jsonText(std::string_view bytes) {
  std::string utf8;
  for (const char byte : bytes)
    appendUtf8(utf8, static_cast<char32_t>(asc(byte)));
  return utf8;
}

std::optional<std::string> bytesOfJson(const Json& text) {
  if (!text.is_string()) return std::nullopt;
  const std::string& utf8 = text.get_ref<const std::string&>();
  std::string bytes;
  for (std::size_t at = 0; at < utf8.size();) {
    const auto codePoint = nextCodePoint(utf8, at);
    if (!codePoint || *codePoint > 0xFF) return std::nullopt;
    bytes += chr(static_cast<int>(*codePoint));
  }
  return bytes;
}

Json jsonValue(const VariableValue& value) {
  if (const auto* flag = std::get_if<bool>(&value.value)) return *flag;
  if (const auto* number = std::get_if<double>(&value.value)) return jsonNumber(*number);
  if (const auto* text = std::get_if<std::string>(&value.value)) return jsonText(*text);
  if (const auto* table = std::get_if<VariableValue::Table>(&value.value)) {
    Json array = Json::array();
    for (const VariableValue& each : *table)
      array.push_back(jsonValue(each));
    return array;
  }
  Json object = Json::object();
  for (const auto& [name, field] : std::get<VariableValue::Record>(value.value)) {
    object[name] = jsonValue(field);
  }
  return object;
}

std::optional<VariableValue> valueOfJson(const Json& json) {
  std::optional<VariableValue> value;
  if (json.is_boolean()) {
    value.emplace(json.get<bool>());
  } else if (json.is_number()) {
    value.emplace(json.get<double>());
  } else if (auto text = bytesOfJson(json)) {
    value.emplace(std::move(*text));
  }
  return value;
}

Json jsonEntry(const LogEntry& entry) {
  Json json = {{"t", entry.t}, {"what", entry.what}};
  for (const auto& [name, value] : entry.fields) {
    if (const auto* text = std::get_if<std::string>(&value)) {
      json[name] = jsonText(*text);
    } else if (const auto* number = std::get_if<std::int64_t>(&value)) {
      json[name] = *number;
    } else {
      json[name] = std::get<bool>(value);
    }
  }
  return json;
}

Json jsonControl(const Control& control) {
  Json reply = {{"name", control.Name()},      {"visible", control.Visible()},
                {"left", control.Left()},      {"top", control.Top()},
                {"width", control.Width()},    {"height", control.Height()},
                {"enabled", control.Enabled()}};
  if (const auto* surface = as<Surface>(&control)) {
    addSurface(reply, *surface);
  } else if (const auto* button = as<Button>(&control)) {
    addButton(reply, *button);
  } else {
    if (const auto* label = as<Label>(&control)) {
      reply["text"] = jsonText(label->Caption());
    }
    reply["back"] = control.BackColor();
  }
  return reply;
}

} // namespace talvora
