// The days of the week in both languages.
#pragma once

#include <array>
#include <string_view>

namespace talvora::pack {

struct Weekday {
  std::string_view english;
  std::string_view vietnamese; ///< UTF-8, with its capital
  std::string_view ordinal;    ///< in English: what the Vietnamese is with a small letter
};

inline constexpr std::array<Weekday, 7> Weekdays = {{{"Monday", "thứ Hai", "second"},
                                                     {"Tuesday", "thứ Ba", "third"},
                                                     {"Wednesday", "thứ Tư", "fourth"},
                                                     {"Thursday", "thứ Năm", "fifth"},
                                                     {"Friday", "thứ Sáu", "sixth"},
                                                     {"Saturday", "thứ Bảy", "seventh"},
                                                     {"Sunday", "Chủ nhật", ""}}};

} // namespace talvora::pack
