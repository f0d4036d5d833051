// The words and signs by which the source of an item is built up.
#pragma once

#include "pack/ItemSource.h"

#include <array>
#include <string_view>

namespace talvora::pack {

inline constexpr std::string_view itemOpener = "item: ";
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

} // namespace talvora::pack
