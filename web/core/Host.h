// What the core asks of the worker that it runs in.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

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

/// Milliseconds since some fixed moment.
[[nodiscard]] double hostNow();
/// Returns when the page has told something or the time is over; less than 0 waits for ever.
void hostWait(double ms);
/// What the page has told next.
[[nodiscard]] std::optional<Event> takeEvent();
/// Sends a message, which is JSON in UTF-8, to the page.
void tellPage(std::string_view json);
[[nodiscard]] std::uint32_t hostSeed();
/// Year, month, day, hour, minute and second of local time.
[[nodiscard]] std::array<int, 6> hostMoment();
/// Whether the page still speaks what it was given.
[[nodiscard]] bool hostIsSpeaking();
[[nodiscard]] bool hostIsPlaying();

} // namespace talvora::web
