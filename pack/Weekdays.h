// The days of the week in both languages.
#pragma once

#include "text/Text.h"

#include <algorithm>
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

/// The day that a word in small letters names, alone or as one of many: "mondays". Null for another
/// word.
[[nodiscard]] inline const Weekday* weekdayNamed(std::string_view word) {
  if (word.ends_with("days")) word.remove_suffix(1);
  const auto* const day = std::ranges::find_if(
      Weekdays, [word](const Weekday& each) { return lower(each.english) == word; });
  return day == Weekdays.end() ? nullptr : day;
}

} // namespace talvora::pack
