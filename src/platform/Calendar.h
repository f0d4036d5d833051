// A calendar tells the day and the time of day, for what people see: the names of copies.
#pragma once

#include <compare>
#include <string>

namespace talvora {

/// A moment of local time.
struct Moment {
  int year = 2000;
  int month = 1; ///< 1 to 12
  int day = 1;   ///< 1 to 31
  int hour = 0;
  int minute = 0;
  int second = 0;

  friend auto operator<=>(const Moment&, const Moment&) = default;
};

class Calendar {
 public:
  virtual ~Calendar() = default;

  [[nodiscard]] virtual Moment now() const = 0;
};

/// The calendar of the machine.
[[nodiscard]] const Calendar& systemCalendar();

} // namespace talvora
