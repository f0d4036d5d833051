// The records of an item taken apart: header, hints, body, tail, options, explanations.
#pragma once

#include "exercises/ItemState.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace talvora {

/// What stands ahead of an item's text.
struct ItemHeader {
  ItemKind kind = ItemKind::None;
  int code = 0;           ///< heading code
  std::size_t length = 0; ///< characters that the header takes
};

/// Reads the kind and the one or two digits of the heading code.
[[nodiscard]] ItemHeader readHeader(std::string_view record);

/// The hints of a hint list, trimmed; takes the list, from its "|" through its line end, off the
/// text. At most 1000 are kept.
[[nodiscard]] std::vector<std::string> TachGoiY(std::string& text);

/// The body of an item; takes it off the text, which keeps the tail: from the first "+" on that
/// stands directly behind a line end.
[[nodiscard]] std::string TachThan(std::string& text);

/// The four options of a tail, each with its line end; one that is missing is empty.
[[nodiscard]] std::vector<std::string> TachPhuongAn(std::string_view tail);

/// The number of the key letter, the last but one character of a tail: A is 1. Meaningless, but
/// never out of bounds, for a tail without a key.
[[nodiscard]] int keyOf(std::string_view tail);

/// An answer record taken apart.
struct AnswerSections {
  std::string general;               ///< the general explanation
  std::vector<std::string> sections; ///< element k-1: explanation of blank k, from its line end on
};

/// Cuts an answer record at its "^" marks; the first line of each section is left out.
[[nodiscard]] AnswerSections TachGiai(std::string_view record);

/// An answer record with its lesson references marked: a "?" at a line's start becomes "`". In an
/// ordering item it ends the record.
[[nodiscard]] std::string markReferences(std::string_view record, ItemKind kind);

/// Writes the lessons' titles in place of their numbers behind each "`", with a line that says so
/// ahead of the first. Element n of the titles belongs to lesson n.
[[nodiscard]] std::string ThayTenBai(std::string_view text, std::span<const std::string> titles);

} // namespace talvora
