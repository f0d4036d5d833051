#include "platform/scripted/ScriptedInput.h"

#include "platform/scripted/KeyNames.h"

#include <algorithm>
#include <utility>

namespace talvora {

bool ScriptedInput::GetAsyncKeyState(int keyCode) {
  Key& key = keys_[keyCode];
  const bool pressed = std::exchange(key.pressedSinceAsked, false);
  forgetPastHolds();
  if (hasGivenUp()) return keyCode == key::Esc;
  return key.down || pressed || isHeld(keyCode);
}

void ScriptedInput::forgetPastHolds() {
  std::erase_if(holds_, [&](const Hold& hold) { return hold.to <= time_.nowMs(); });
}

bool ScriptedInput::isHeld(int keyCode) const {
  return std::any_of(holds_.begin(), holds_.end(), [&](const Hold& hold) {
    return hold.keyCode == keyCode && hold.from <= time_.nowMs();
  });
}

bool ScriptedInput::hasGivenUp() const noexcept {
  return holds_.empty() && time_.nowMs() >= giveUpAt_;
}

void ScriptedInput::SetCursorPos(PixelPoint point) {
  log_.add("pointer", {{"x", logNumber(point.x)}, {"y", logNumber(point.y)}});
  pointer_ = point;
  pointerMoved_ = true;
}

void ScriptedInput::sendClick(MouseButton button) {
  sendClickAside(button);
  synthetic_.emplace_back(SyntheticClick{button, pointer_});
}

void ScriptedInput::sendClickAside(MouseButton button) {
  log_.add("synthetic", {{"button", logText(button == MouseButton::Left ? "left" : "right")}});
}

void ScriptedInput::sendKey(int keyCode, KeyMotion motion) {
  // A stroke has two halves and is logged once.
  if (motion == KeyMotion::Down) log_.add("synthetic", {{"key", logText(keyName(keyCode))}});
  synthetic_.emplace_back(SyntheticKey{keyCode, motion});
}

void ScriptedInput::keyDown(int keyCode) {
  keys_[keyCode] = {true, true};
}

void ScriptedInput::keyUp(int keyCode) {
  keys_[keyCode].down = false;
}

bool ScriptedInput::isDown(int keyCode) const {
  const auto found = keys_.find(keyCode);
  return found != keys_.end() && found->second.down;
}

int ScriptedInput::shiftState() const {
  return (isDown(key::Shift) ? shift::Shift : shift::None) |
         (isDown(key::Ctrl) ? shift::Ctrl : shift::None) |
         (isDown(key::Alt) ? shift::Alt : shift::None);
}

void ScriptedInput::hold(int keyCode, std::int64_t after, std::int64_t length) {
  const std::int64_t from = time_.nowMs() + after;
  holds_.push_back({keyCode, from, from + length});
}

bool ScriptedInput::takePointerMoved() noexcept {
  return std::exchange(pointerMoved_, false);
}

std::optional<SyntheticEvent> ScriptedInput::takeSynthetic() {
  if (synthetic_.empty()) return std::nullopt;
  const SyntheticEvent oldest = synthetic_.front();
  synthetic_.pop_front();
  return oldest;
}

} // namespace talvora
