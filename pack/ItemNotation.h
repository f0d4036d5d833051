// The words and signs by which the source of an item is built up.
#pragma once

#include "pack/Item.h"
#include "pack/ItemText.h"

#include <array>
#include <string_view>

namespace talvora::pack {

inline constexpr std::string_view itemOpener = "item: ";
inline constexpr std::string_view idOpener = "id: ";
inline constexpr std::string_view aboutOpener = "about: ";
inline constexpr std::string_view hintsOpener = "hints: ";
inline constexpr std::string_view explainOpener = "explain";
inline constexpr std::string_view referenceOpener = "see: ";
inline constexpr std::string_view rightOpener = "+ ";
inline constexpr std::string_view wrongOpener = "- ";
inline constexpr std::string_view translationOpener = "= ";

struct FormName {
  ItemForm form;
  std::string_view name;
};

inline constexpr std::array<FormName, 4> formNames = {{{ItemForm::Fill, "fill"},
                                                       {ItemForm::Choice, "choice"},
                                                       {ItemForm::Mistake, "mistake"},
                                                       {ItemForm::Order, "order"}}};

/// What braces mean in an item of a form.
[[nodiscard]] constexpr BraceUse braceUseOf(ItemForm form) {
  switch (form) {
  case ItemForm::Fill:
    return BraceUse::Answer;
  case ItemForm::Mistake:
    return BraceUse::Candidate;
  default:
    return BraceUse::Phrase;
  }
}

} // namespace talvora::pack
