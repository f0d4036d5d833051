// One way of writing all over the content: what the list says, numbers with their hyphen, days and
// months with their capital, and the words of one region in a text.
#pragma once

#include "pack/Problems.h"
#include "pack/WordingList.h"

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

namespace talvora::pack {

/// What a source is, which says how much it is held to.
enum class WordingUse : std::uint8_t {
  Lessons,    ///< Vietnamese alone: lessons also teach how Americans write
  Dictionary, ///< English spelling too, but for an entry of that very spelling
  Texts       ///< all of it
};

/// Reports what the lines of a source write otherwise. A day of the week is held to its Vietnamese
/// capital where the line or the one above names it in English: "thứ Năm" is Thursday, and "thứ
/// năm" the fifth.
void checkWording(std::string_view text, const std::string& file, const WordingList& list,
                  WordingUse use, Problems& problems);

/// All sources of a content tree, held to its list.
void checkWordings(const std::filesystem::path& source, Problems& problems);

} // namespace talvora::pack
