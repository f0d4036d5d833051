// Rules for the options of listening items and for the cutting of analyses.
#pragma once

#include "pack/AnalysisSource.h"
#include "pack/ListeningSource.h"
#include "pack/Problems.h"
#include "pack/Speakers.h"

#include <filesystem>
#include <map>
#include <string>
#include <vector>

namespace talvora::pack {

/// The first unit whose options keep the rules of a unit; the ones ahead of it are only counted.
inline constexpr int FirstStrictUnit = 3;

/// Who says the sentences of a unit, in their order; the live voice says those behind the last. A
/// unit that is not there is read by a person, who keeps everything apart.
using UnitVoices = std::map<int, std::vector<Speaker>>;

/// Checks the options of all units: in a wrong option the voice must make a difference; from the
/// strict units on the four options are about as long as each other, the heard sentence itself is
/// the key of a third at most, and the key is the longest in 15 to 35 per cent of the others. Of
/// the units ahead of these the result tells, a line each.
[[nodiscard]] std::vector<std::string> checkOptions(const ListeningSource& source,
                                                    const UnitVoices& voices,
                                                    const std::filesystem::path& folder,
                                                    Problems& problems);

/// Checks that a stretch is one phrase, a conjunction, a subject or an adverb never together with a
/// verb, and that nine of ten stretches lead to a lesson.
void checkCutting(const AnalysisSource& source, const std::filesystem::path& folder,
                  Problems& problems);

} // namespace talvora::pack
