#include "pack/FormIndex.h"

#include <bit>

namespace talvora::pack {

FormIndex::FormIndex(std::size_t most) : slots_(std::bit_ceil(2 * most + 2)) {}

void FormIndex::add(std::string_view form, std::size_t number) {
  const std::uint64_t hash = hashOf(form);
  std::size_t place = placeOf(hash);
  while (slots_[place].number != Free)
    place = next(place);
  slots_[place] = {tagOf(hash), static_cast<std::uint32_t>(number)};
}

} // namespace talvora::pack
