// Rules for the options of listening items and for the cutting of analyses.
#pragma once

#include "pack/AnalysisSource.h"
#include "pack/ListeningSource.h"
#include "pack/Problems.h"

#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// The first unit whose options keep the rules of a unit; the ones ahead of it are only counted.
inline constexpr int FirstStrictUnit = 3;

/// Tells why a learner cannot hear which of two sentences was said: the words in which they differ
/// sound alike, or nearly so, in the voice's own phones. Empty when he can.
[[nodiscard]] std::string notHeardApart(std::string_view heard, std::string_view other);

/// Checks the options of all units: in a wrong option the voice must make a difference; from the
/// strict units on the four options are about as long as each other, the heard sentence itself is
/// the key of a third at most, and the key is the longest in 15 to 35 per cent of the others. Of
/// the units ahead of these the result tells, a line each.
[[nodiscard]] std::vector<std::string> checkOptions(const ListeningSource& source,
                                                    const std::filesystem::path& folder,
                                                    Problems& problems);

/// Checks that a stretch is one phrase, a conjunction or a subject never together with a verb, and
/// that nine of ten stretches lead to a lesson.
void checkCutting(const AnalysisSource& source, const std::filesystem::path& folder,
                  Problems& problems);

} // namespace talvora::pack
