// Voices as a front's speech engine uses them. What speaks is no part of the program
// (FliteVoices.h), so that there can be another synthesiser.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>

namespace talvora {

/// How many voices the speech engine answers to. The settings panel shuts the speed level whose
/// number follows that of the last voice: with ten all ten levels can be chosen.
inline constexpr int VoiceNumbers = 10;

/// Used by one thread at a time.
class Voices {
 public:
  /// Takes the next samples, of so many a second; false when no more are wanted.
  using Take = std::function<bool(std::span<const std::int16_t> samples, int rate)>;

  virtual ~Voices() = default;

  /// Says plain ASCII with the voice of a number, from 1 to `VoiceNumbers`; several numbers may
  /// have the same one. False when that voice is not there.
  virtual bool say(const std::string& text, int number, int wordsPerMinute, const Take& take) = 0;
};

} // namespace talvora
