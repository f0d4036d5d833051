#include "fronts/KeyTable.h"

#include "platform/Input.h"

#include <algorithm>
#include <array>
#include <utility>

namespace talvora {

void KeyTable::press(int keyCode) {
  keys_[keyCode] = {true, true};
}

void KeyTable::release(int keyCode) {
  keys_[keyCode].down = false;
}

void KeyTable::releaseAll() {
  keys_.clear();
}

bool KeyTable::takePressed(int keyCode) {
  Key& key = keys_[keyCode];
  return std::exchange(key.pressedSinceAsked, false) || key.down;
}

bool KeyTable::isDown(int keyCode) const {
  const auto found = keys_.find(keyCode);
  return found != keys_.end() && found->second.down;
}

bool KeyTable::arrowDown() const {
  constexpr std::array arrows = {key::Left, key::Right, key::Up, key::Down};
  return std::any_of(arrows.begin(), arrows.end(), [this](int code) { return isDown(code); });
}

} // namespace talvora
