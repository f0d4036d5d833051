#include "Seat.h"

#include <X11/extensions/XTest.h>
#include <X11/extensions/Xdamage.h>

#include <algorithm>
#include <poll.h>
#include <stdexcept>

namespace talvora::bench {

namespace {

constexpr int CaretPixels = 100; ///< a caret covers fewer

int pixelsOf(const Region& region) {
  return (region.right - region.left) * (region.bottom - region.top);
}

} // namespace

bool Region::holds(const Region& other) const noexcept {
  return left <= other.left && top <= other.top && other.right <= right && other.bottom <= bottom;
}

void Region::join(const Region& other) noexcept {
  if (empty()) {
    *this = other;
    return;
  }
  left = std::min(left, other.left);
  top = std::min(top, other.top);
  right = std::max(right, other.right);
  bottom = std::max(bottom, other.bottom);
}

Seat::Seat() : display_(::XOpenDisplay(nullptr)) {
  if (!display_) throw std::runtime_error("no X display");
  Display* const display = display_.get();
  int firstEvent = 0;
  int firstError = 0;
  int major = 0;
  int minor = 0;
  if (::XTestQueryExtension(display, &firstEvent, &firstError, &major, &minor) == 0) {
    throw std::runtime_error("the display has no XTest");
  }
  if (::XDamageQueryExtension(display, &damageEvent_, &firstError) == 0) {
    throw std::runtime_error("the display has no Damage");
  }
  ::XDamageCreate(display, DefaultRootWindow(display), XDamageReportRawRectangles);
  ::XSync(display, False);
}

void Seat::press(const std::string& key) {
  Display* const display = display_.get();
  const KeySym symbol = ::XStringToKeysym(key.c_str());
  const KeyCode code = symbol == NoSymbol ? 0 : ::XKeysymToKeycode(display, symbol);
  if (code == 0) throw std::runtime_error("no key " + key);
  ::XTestFakeKeyEvent(display, code, True, CurrentTime);
  ::XTestFakeKeyEvent(display, code, False, CurrentTime);
  ::XFlush(display);
}

void Seat::movePointer(int x, int y) {
  ::XTestFakeMotionEvent(display_.get(), -1, x, y, CurrentTime);
  ::XFlush(display_.get());
}

void Seat::click(unsigned button) {
  ::XTestFakeButtonEvent(display_.get(), button, True, CurrentTime);
  ::XTestFakeButtonEvent(display_.get(), button, False, CurrentTime);
  ::XFlush(display_.get());
}

std::vector<Change> Seat::watch(milliseconds patience, milliseconds gap, milliseconds longest) {
  std::vector<Change> changes;
  const Clock::time_point end = Clock::now() + longest;
  Clock::time_point until = Clock::now() + patience;
  while (Clock::now() < std::min(until, end)) {
    take(std::min(until, end), changes);
    if (!changes.empty()) until = changes.back().when + gap;
  }
  return changes;
}

std::vector<Change> Seat::watchFor(milliseconds time) {
  std::vector<Change> changes;
  const Clock::time_point end = Clock::now() + time;
  while (Clock::now() < end)
    take(end, changes);
  return changes;
}

void Seat::forget() {
  std::vector<Change> old;
  ::XSync(display_.get(), False);
  take(Clock::now(), old);
}

void Seat::take(Clock::time_point until, std::vector<Change>& changes) {
  Display* const display = display_.get();
  if (::XPending(display) == 0) {
    const auto left =
        std::chrono::duration_cast<std::chrono::microseconds>(until - Clock::now()).count();
    const timespec wait{left > 0 ? left / 1'000'000 : 0, left > 0 ? left % 1'000'000 * 1000 : 0};
    pollfd connection{ConnectionNumber(display), POLLIN, 0};
    if (::ppoll(&connection, 1, &wait, nullptr) <= 0) return;
  }
  const Clock::time_point now = Clock::now();
  while (::XPending(display) > 0) {
    XEvent event;
    ::XNextEvent(display, &event);
    if (event.type != damageEvent_ + XDamageNotify) continue;
    const XRectangle& area = reinterpret_cast<const XDamageNotifyEvent&>(event).area;
    const Region where{area.x, area.y, area.x + area.width, area.y + area.height};
    if (pixelsOf(where) >= CaretPixels) changes.push_back({now, where});
  }
}

} // namespace talvora::bench
