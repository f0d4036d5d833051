#include "core/Signs.h"

#include "core/Message.h"
#include "fronts/KeyHelp.h"
#include "fronts/Units.h"

#include <utility>

namespace talvora::web {

void Signs::send() {
  if (!form_.Visible()) return;
  sendPointer();
  sendHelp();
  for (const Surface* surface : cameUp_.sinceLast())
    tellText("say", announcementOf(*surface));
}

void Signs::sendPointer() {
  const PointerShape shape = pointerShape(input_);
  if (std::exchange(pointer_, shape) == shape) return;
  const bool isHand = shape == PointerShape::Hand;
  tellText("pointer", isHand ? u"pointer" : shape == PointerShape::Text ? u"text" : u"default");
}

void Signs::sendHelp() {
  const std::u16string help(keyHelp(form_));
  if (std::exchange(help_, help) != help) tellText("help", help);
}

} // namespace talvora::web
