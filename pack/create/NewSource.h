// Sources to begin with: a commented example of each kind, for a teacher to write over. They speak
// Vietnamese.
#pragma once

#include <array>
#include <string_view>

namespace talvora::pack {

enum class SourceKind { Text, Lesson, Item, Unit, AnalysedText };

struct SourceKindName {
  SourceKind kind;
  std::string_view name; ///< on the command line
};

inline constexpr std::array<SourceKindName, 5> SourceKindNames = {{
    {SourceKind::Text, "text"},
    {SourceKind::Lesson, "lesson"},
    {SourceKind::Item, "item"},
    {SourceKind::Unit, "unit"},
    {SourceKind::AnalysedText, "analysis"},
}};

/// The example of a kind, as a source that has no errors.
[[nodiscard]] std::string_view exampleOf(SourceKind kind);

} // namespace talvora::pack
