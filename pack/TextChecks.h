// What a program can tell of the sentences of a text: one a line, closed, and fit to be clicked and
// spoken.
#pragma once

#include "pack/Problems.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <unordered_set>

namespace talvora::pack {

/// What a text is for: texts to speak have rules of their own.
enum class TextUse { Reading, Speaking };

/// The most words of a line that a learner says after the voice.
inline constexpr int MostWordsToSpeak = 12;

/// Checks the source of a text: two sentences on a line, a sentence or a translation without its
/// closing point, a translation that does not match, a word with a hyphen that no entry explains;
/// in a text to speak also marks that are not spoken, a line that is too long, and a conversation
/// in one paragraph. `heads` are the head words in small letters.
void checkText(std::string_view source, const std::string& file, TextUse use,
               const std::unordered_set<std::string>& heads, Problems& problems);

/// Checks every text of a folder but the guide text, which is Vietnamese.
void checkTexts(const std::filesystem::path& folder, TextUse use,
                const std::unordered_set<std::string>& heads, Problems& problems);

} // namespace talvora::pack
