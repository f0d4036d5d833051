#include "core/Signs.h"

#include "core/Host.h"
#include "core/Json.h"
#include "core/Paragraph.h"
#include "fronts/KeyHelp.h"
#include "fronts/Links.h"
#include "surface/Button.h"

#include <algorithm>
#include <utility>

namespace talvora::web {

namespace {

constexpr int LongestSaid = 600;

/// The pointer's shape, as a style sheet has it.
const char* shapeOf(const FormInput& input) {
  const Control* const under = input.hovered();
  if (as<Button>(under) != nullptr) return "pointer";
  const auto* const surface = as<Surface>(under);
  if (surface == nullptr) return "default";
  const SurfacePoint at = input.pointer();
  if (isLink(*surface, {at.x - surface->Left(), at.y - surface->Top()})) return "pointer";
  return surface->Locked() ? "default" : "text";
}

std::u16string lettersOf(const Surface& surface) {
  std::u16string letters = unitsOf(
      surface.TextBetween(0, std::min(surface.TextLength(), LongestSaid)), surface.Font().name);
  std::replace(letters.begin(), letters.end(), NoWidth, u'\n');
  return letters;
}

void sendText(const char* what, std::u16string_view text) {
  JsonWriter json;
  json.open('{').field("do", what).field("text", text).close('}');
  tellPage(json.text());
}

} // namespace

void Signs::send() {
  if (!form_.Visible()) return;
  sendPointer();
  sendHelp();
  for (const Surface* surface : cameUp_.sinceLast())
    sendText("say", lettersOf(*surface));
}

void Signs::sendPointer() {
  const std::string shape = shapeOf(input_);
  if (std::exchange(pointer_, shape) == shape) return;
  JsonWriter json;
  json.open('{').field("do", "pointer").field("shape", std::string_view(shape)).close('}');
  tellPage(json.text());
}

void Signs::sendHelp() {
  const std::u16string help(keyHelp(form_));
  if (std::exchange(help_, help) != help) sendText("help", help);
}

} // namespace talvora::web
