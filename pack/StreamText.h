// The texts of the streams: from UTF-8 to the font's bytes, and from those to stored bytes.
#pragma once

#include "pack/Problems.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace talvora::pack {

/// The marks that cut a stream into texts and sentences; no source may hold them.
inline constexpr std::string_view StreamMarks = "_`@|";

/// The byte of a letter that a stream can hold; empty for a letter without a byte in the font, for
/// one whose byte the streams expand, for the sentence mark 160 and for control characters.
[[nodiscard]] std::optional<char> streamByte(char32_t letter);

/// The bytes of a UTF-8 text of which a stream can hold every letter; empty when one will not do.
[[nodiscard]] std::optional<std::string> streamText(std::string_view utf8);

/// The bytes of a text of the compiler's own; one that a stream cannot hold is a mistake in the
/// compiler and throws std::logic_error.
[[nodiscard]] std::string ownText(std::string_view utf8);

/// The bytes of a stretch of a source that starts at `where`. Letters that a stream cannot hold,
/// and the forbidden marks, are reported where they stand and left out.
[[nodiscard]] std::string sourceText(std::string_view utf8, Where where, std::string_view forbidden,
                                     Problems& problems);

/// The UTF-8 of bytes in the text font.
[[nodiscard]] std::string utf8Of(std::string_view bytes);

/// True for the byte of a letter that English lacks; typographic marks are none.
[[nodiscard]] bool isVietnameseLetter(char byte);

/// Appends a text to a stream: the longest expansion at each place, then the byte code.
void appendStored(std::string& stream, std::string_view text);

/// Reads stored bytes from an offset on, expanded, up to the text `end`, which is left out. Empty
/// when the stream ends first or the offset lies outside.
[[nodiscard]] std::optional<std::string> storedUntil(std::string_view stream, std::int64_t offset,
                                                     char end);

} // namespace talvora::pack
