#include "platform/Calendar.h"

#include <ctime>

namespace talvora {

namespace {

class SystemCalendar final : public Calendar {
 public:
  [[nodiscard]] Moment now() const override {
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    if (::localtime_r(&seconds, &local) == nullptr) return {};
    return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday,
            local.tm_hour,        local.tm_min,     local.tm_sec};
  }
};

} // namespace

const Calendar& systemCalendar() {
  static const SystemCalendar calendar;
  return calendar;
}

} // namespace talvora
