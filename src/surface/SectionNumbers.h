// The sections by number, as the menu's buttons are counted.
#pragma once

namespace talvora::section {

inline constexpr int Reading = 1;
inline constexpr int Vocabulary = 2;
inline constexpr int Lessons = 3;
inline constexpr int Listening = 4;
inline constexpr int Analysis = 5;
inline constexpr int Writing = 6; ///< the closed one
inline constexpr int Speaking = 7;
inline constexpr int Settings = 8;
inline constexpr int Guide = 9;
inline constexpr int FirstBank = 10; ///< of nine
inline constexpr int LastBank = 18;

} // namespace talvora::section
