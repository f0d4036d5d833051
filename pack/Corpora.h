// The English that a course shows to a learner, by the kind of page on which it stands.
#pragma once

#include "pack/Compiler.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// Whether the pages of a kind also show wrong English, as the options of exercises do.
enum class CorpusLanguage : std::uint8_t { Right, WithMistakes };

/// The running words of one kind of page.
struct Corpus {
  std::string_view name;
  std::vector<std::string> words; ///< as a click takes them
  CorpusLanguage language = CorpusLanguage::Right;
};

/// All kinds, each bank of exercises by itself. What a lesson shows as wrong ("Sai: ...") is left
/// out: it may hold what is no word.
[[nodiscard]] std::vector<Corpus> corporaOf(const Content& content);

} // namespace talvora::pack
