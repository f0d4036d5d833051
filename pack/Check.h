// The checks of a content tree, in front of all that is looked at: what cannot be read, the rules
// of the course (CourseRules.h), the dictionary (DictionaryFindings.h), texts and drills
// (CourseChecks.h). Of all of the tree, or of a few kinds for a quick answer while writing.
#pragma once

#include "pack/Compiler.h"

#include <array>
#include <set>
#include <string>
#include <string_view>
#include <vector>

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

/// What a check tells beside what is wrong.
struct CheckReport {
  std::string counted;            ///< "104 lessons, 1154 items"
  std::string warnings;           ///< lines about what passes and is an exception
  std::vector<std::string> notes; ///< on texts and drills: what is counted and breaks nothing
};

/// Whether warnings name their places.
enum class Warnings { Counted, Listed };

/// Checks some kinds, or everything for none, with what these refer to. Each further check is only
/// made when the ones before found nothing wrong; texts and drills are looked at together with
/// everything.
[[nodiscard]] CheckReport checkContent(const Options& options, const std::set<ContentKind>& only,
                                       Warnings warnings, Problems& problems,
                                       const Progress& progress);

} // namespace talvora::pack
