// Who speaks in the recordings.
#pragma once

#include <array>
#include <optional>
#include <string_view>

namespace talvora::pack {

/// A man, and the woman who speaks live as well.
enum class Speaker { Rms, Slt };
/// Who is heard where no recording is.
inline constexpr Speaker LiveSpeaker = Speaker::Slt;

/// The names that scripts call the speakers by.
inline constexpr std::array<std::string_view, 2> SpeakerNames = {"rms", "slt"};
[[nodiscard]] std::optional<Speaker> speakerNamed(std::string_view name);

} // namespace talvora::pack
