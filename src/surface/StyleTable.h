// Each style of a surface is kept once and known by its number.
#pragma once

#include "platform/TextStyle.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <unordered_map>
#include <vector>

namespace talvora {

/// Number of a style in its table.
using StyleId = std::uint32_t;

/// Hashes styles for a `StyleTable`.
struct StyleHash {
  [[nodiscard]] std::size_t operator()(const CharStyle& style) const noexcept {
    const std::size_t flags = (style.font.bold ? 1U : 0U) | (style.italic ? 2U : 0U) |
                              (style.underline ? 4U : 0U) | (style.protectedText ? 8U : 0U);
    return mix(mix(std::hash<std::string>{}(style.font.name), style.font.size), style.color) ^
           flags;
  }
  [[nodiscard]] std::size_t operator()(const ParagraphStyle& style) const noexcept {
    const std::size_t flags =
        static_cast<std::size_t>(style.align) << 1U | (style.bullet ? 1U : 0U);
    return mix(flags, style.indent);
  }

 private:
  /// Odd, so that nothing is lost; where a size has 32 bits, its lower half serves.
  static constexpr auto Spread = static_cast<std::size_t>(0x9E3779B97F4A7C15U);

  template <class Value>
  static std::size_t mix(std::size_t hash, Value value) noexcept {
    return hash * Spread + std::hash<Value>{}(value);
  }
};

/// Equal styles have equal numbers; numbers hold until `clear`.
template <class Style>
class StyleTable {
 public:
  /// The number of a style, a new one when the table does not have it.
  StyleId idOf(const Style& style) {
    const auto [entry, isNew] = ids_.try_emplace(style, static_cast<StyleId>(styles_.size()));
    if (isNew) styles_.push_back(&entry->first);
    return entry->second;
  }
  /// The style of a number that `idOf` gave; the reference holds until `clear`.
  [[nodiscard]] const Style& operator[](StyleId id) const noexcept { return *styles_[id]; }
  [[nodiscard]] std::size_t size() const noexcept { return styles_.size(); }
  void clear() {
    styles_.clear();
    ids_.clear();
  }

 private:
  std::unordered_map<Style, StyleId, StyleHash> ids_;
  std::vector<const Style*> styles_; ///< the map's own keys, which stay where they are
};

} // namespace talvora
