// The fields of a card, as flash-card programs and tables know them.
#pragma once

#include "pack/words/Table.h"
#include "pack/words/WordCards.h"

#include <array>
#include <string>
#include <string_view>

namespace talvora::pack {

/// A card with the names of its sound files; they are empty when it has none.
struct SpokenCard {
  WordCard card;
  std::string wordSound;
  std::string sentenceSound;
};

/// The fields by the names that the learner sees, in the order of `fieldsOf`.
inline constexpr std::array<std::string_view, 9> CardFieldNames = {
    "Từ", "Dạng gốc", "Phiên âm", "Nghĩa", "Câu", "Dịch", "Bài", "Tiếng của từ", "Tiếng của câu"};
inline constexpr std::size_t WordField = 0;
inline constexpr std::size_t SentenceField = 4;
inline constexpr std::size_t TitleField = 6;

/// The name under which decks and tables are put down.
inline constexpr std::string_view DeckName = "Talvora";

/// The fields as HTML: the word in its sentence is marked, sounds are named as flash-card programs
/// want it.
[[nodiscard]] Fields htmlFieldsOf(const SpokenCard& card);
/// The fields as plain text.
[[nodiscard]] Fields plainFieldsOf(const SpokenCard& card);

} // namespace talvora::pack
