// The key words at the beginning of an item's lines: which one a line has, and which one was meant
// by a line that has none.
#pragma once

#include <optional>
#include <string_view>

namespace talvora::pack {

enum class ItemKey { None, Item, Id, About, Hints, Explain, See };

/// The word of a key as it is written, without its colon.
[[nodiscard]] std::string_view wordOf(ItemKey key);

/// A line that begins like a key.
struct KeyLine {
  ItemKey key = ItemKey::None; ///< the key that it has or that was meant
  bool exact = false;          ///< the key is written as it must be, with its blank or number
  std::string_view written;    ///< the words ahead of the colon
};

/// Reads the beginning of a line. One with a near miss ("Hints:", "explian 2:", "see:x") has the
/// key that was meant, one "word:" or "word 2:" alone that is near to none has `None`; empty for a
/// line that is text.
[[nodiscard]] std::optional<KeyLine> keyLineOf(std::string_view line);

} // namespace talvora::pack
