// The names of keys in scripts, and what a key of a name is.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace talvora {

/// A key as a keyboard sends it.
struct ScriptedKey {
  int code = 0;       ///< what events and the key table carry
  char character = 0; ///< what KeyPress carries; 0 when the key has no character

  friend bool operator==(const ScriptedKey&, const ScriptedKey&) = default;
};

/// The key of a name: "Esc", "PgUp" and so on, or one character. A control character is the key
/// that produces it (13 is Enter); empty when there is no such key.
[[nodiscard]] std::optional<ScriptedKey> keyNamed(std::string_view name);

/// The name of a key code; "#" and the number for a key without a name.
[[nodiscard]] std::string keyName(int code);
/// The key of a code, with the character that it gives; a code without a name gives none.
[[nodiscard]] ScriptedKey keyOfCode(int code);

} // namespace talvora
