// The records of data.Kcu, the learner's settings: 4 bytes each, numbered from 1.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace talvora {

namespace setting {
inline constexpr int ReadingCaret = 1;
inline constexpr int SoundOn = 2;
inline constexpr int SpeedLevel = 4;
inline constexpr int RunCounter = 6;
inline constexpr int SpeakingCaret = 8;
inline constexpr int AnalysisCaret = 9;
inline constexpr std::size_t Count = 19;
} // namespace setting

static_assert(setting::AnalysisCaret <= static_cast<int>(setting::Count));

/// The records that a new learner begins with: sound on, middle speed, every list at its top.
[[nodiscard]] constexpr std::array<std::int32_t, setting::Count> firstSettings() {
  constexpr std::int32_t MiddleSpeed = 5;
  std::array<std::int32_t, setting::Count> records{};
  records[setting::SoundOn - 1] = 1;
  records[setting::SpeedLevel - 1] = MiddleSpeed;
  return records;
}

} // namespace talvora
