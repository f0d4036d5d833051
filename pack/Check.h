// The checks of a content tree: of all of it, or of a few kinds for a quick answer while writing.
#pragma once

#include "pack/Compiler.h"

#include <array>
#include <set>
#include <string>
#include <string_view>

namespace talvora::pack {

/// The kinds of content, by the names of their folders.
enum class ContentKind {
  ReadingTexts,
  SpeakingTexts,
  Listening,
  Analyses,
  Lessons,
  Exercises,
  Guide,
  Dictionary
};

struct ContentKindName {
  ContentKind kind;
  std::string_view name;
};

inline constexpr std::array<ContentKindName, 8> ContentKindNames = {
    {{ContentKind::ReadingTexts, "reading"},
     {ContentKind::SpeakingTexts, "speaking"},
     {ContentKind::Listening, "listening"},
     {ContentKind::Analyses, "analysis"},
     {ContentKind::Lessons, "lessons"},
     {ContentKind::Exercises, "exercises"},
     {ContentKind::Guide, "guide"},
     {ContentKind::Dictionary, "dictionary"}}};

/// What a check tells when all is well.
struct CheckReport {
  std::string counted;  ///< "104 lessons, 1154 items"
  std::string warnings; ///< lines about rules with exceptions that pass
};

/// Whether warnings name their places.
enum class Warnings { Counted, Listed };

/// Checks some kinds, or everything for none, with what these refer to; the rules of the course are
/// looked at when the sources can be read.
[[nodiscard]] CheckReport checkContent(const Options& options, const std::set<ContentKind>& only,
                                       Warnings warnings, Problems& problems,
                                       const Progress& progress);

} // namespace talvora::pack
