// Numbers of words by their normal forms. A build asks mostly for words that are not there: that
// takes one look at memory, since a slot tells by itself whether it can be the one, and only then
// the word is compared.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <limits>
#include <optional>
#include <string_view>
#include <vector>

namespace talvora::pack {

class FormIndex {
 public:
  /// Has room for so many forms.
  explicit FormIndex(std::size_t most);

  /// The number that a form was added with. `formAt` gives the form of a number.
  template <class FormAt>
  [[nodiscard]] std::optional<std::size_t> find(std::string_view form, const FormAt& formAt) const {
    const std::uint64_t hash = hashOf(form);
    for (std::size_t place = placeOf(hash);; place = next(place)) {
      const Slot& slot = slots_[place];
      if (slot.number == Free) return std::nullopt;
      if (slot.tag == tagOf(hash) && formAt(slot.number) == form) return slot.number;
    }
  }
  /// Adds a form that is not there yet.
  void add(std::string_view form, std::size_t number);

 private:
  static constexpr std::uint32_t Free = std::numeric_limits<std::uint32_t>::max();

  struct Slot {
    std::uint32_t tag = 0; ///< a part of the hash that the place does not tell
    std::uint32_t number = Free;
  };

  static std::uint64_t hashOf(std::string_view form) noexcept {
    return std::hash<std::string_view>()(form);
  }
  static std::uint32_t tagOf(std::uint64_t hash) noexcept {
    return static_cast<std::uint32_t>(hash >> 32U);
  }
  [[nodiscard]] std::size_t placeOf(std::uint64_t hash) const noexcept {
    return static_cast<std::size_t>(hash) & (slots_.size() - 1);
  }
  [[nodiscard]] std::size_t next(std::size_t place) const noexcept {
    return (place + 1) & (slots_.size() - 1);
  }

  std::vector<Slot> slots_; ///< a power of two, at most half of them taken
};

} // namespace talvora::pack
