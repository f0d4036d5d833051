// What the core asks of the worker that it runs in.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>

extern "C" {
/// Returns when the page has told something or the time is over; less than 0 waits for ever.
void talvoraWait(double ms);
int talvoraTake(int* into);
/// Sends the page a message, which is JSON in UTF-8.
void talvoraTell(const char* text, std::size_t length);
/// Whether the page still speaks what it was given, or plays a recording.
int talvoraSpeaks();
int talvoraPlays();
}

namespace talvora::web {

/// What the page tells the core.
enum class EventKind {
  Move = 1, ///< x, y in twips of the virtual screen, buttons held, shift
  Press,    ///< x, y, button, shift, 1 for the second press of a double click
  Release,  ///< x, y, button, shift
  Wheel,    ///< x, y, twips
  KeyDown,  ///< code, character, shift, 1 when it repeats
  KeyUp,    ///< code, 0, shift
  Answer,   ///< 1 when a box was agreed to
  Close,    ///< the learner wants the program closed
  Hidden,   ///< the page may be gone soon
  Blur,     ///< another window gets the keys
  Carry,    ///< what the learner owns is wanted, written down to the last word
};

struct Event {
  EventKind kind = EventKind::Blur;
  int x = 0;
  int y = 0;
  int which = 0;
  int shift = 0;
  int extra = 0;
};

/// What the page has told next.
[[nodiscard]] inline std::optional<Event> takeEvent() {
  std::array<int, 6> told{};
  if (talvoraTake(told.data()) == 0) return std::nullopt;
  return Event{static_cast<EventKind>(told[0]), told[1], told[2], told[3], told[4], told[5]};
}

} // namespace talvora::web
