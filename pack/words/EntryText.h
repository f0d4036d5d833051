// What a dictionary entry says, as plain text: for cards and tables, which have no marks of ours.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// All texts are in UTF-8.
struct EntryText {
  std::string pronunciation;       ///< "/gou/"; empty without one
  std::string base;                ///< of which the word is a form; empty when it is none
  std::vector<std::string> senses; ///< a line each: the class, and the sense
};

/// Reads an entry in its notation, given in the text font's bytes. Examples and phrases are left
/// out; of the senses the first `mostSenses` stay.
[[nodiscard]] EntryText entryTextOf(std::string_view entry, std::size_t mostSenses);

} // namespace talvora::pack
