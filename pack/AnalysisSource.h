// The sources of the sentence analyses: a block of fields for each stretch of a reading text, in
// the order of the text.
#pragma once

#include "formats/Limits.h"
#include "pack/Problems.h"
#include "pack/ReadingSource.h"

#include <array>
#include <filesystem>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

inline constexpr int AnalysisSlots = limit::Analyses;
/// Analysis n explains this reading text plus n.
inline constexpr int AnalysedTextsAhead = limit::AnalysedTexts - limit::Analyses;

/// The fields of a stretch, in their order.
enum class AnalysisField { Word, Class, Position, Function, Idea, Needed, Because };
inline constexpr std::size_t AnalysisFieldCount = 7;

/// What is said about one stretch; texts in the text font's bytes.
struct AnalysisEntry {
  std::array<std::string, AnalysisFieldCount> fields;
  std::vector<int> lessons; ///< numbers of rule lessons
  Where where;              ///< of the stretch in its source

  [[nodiscard]] const std::string& field(AnalysisField which) const {
    return fields[static_cast<std::size_t>(which)];
  }
};

using Analysis = std::vector<AnalysisEntry>;

struct AnalysisSource {
  std::map<int, Analysis> analyses;
};

/// Parses one analysis; what is wrong is reported.
[[nodiscard]] Analysis parseAnalysis(std::string_view text, const std::string& file,
                                     Problems& problems);

/// Reads a folder of analyses "NN.txt"; none when there is no such folder.
[[nodiscard]] AnalysisSource readAnalyses(const std::filesystem::path& folder, Problems& problems);

/// Cuts the analysed texts into their stretches: the blank between two becomes "|". A stretch that
/// is not in its text is reported.
void markStretches(const AnalysisSource& source, ReadingSource& readings, Problems& problems);
/// Takes the cuts out again.
void unmarkStretches(ReadingSource& readings);

/// The source of an analysis, as `parseAnalysis` reads it.
[[nodiscard]] std::string writeAnalysis(const Analysis& analysis);

} // namespace talvora::pack
