// The page of the listening quiz, dataABCD.rtf: where its instruction and its labels stand, as
// carets from 0.
#pragma once

#include <cstddef>

namespace talvora::listeningpage {

inline constexpr int InstructionFrom = 2;
inline constexpr int InstructionLength = 36;
inline constexpr int Options = 4;
/// A label with its line end: "A." CR and a tab.
inline constexpr int LabelLength = 4;
inline constexpr int LabelsFrom = 40;
/// All labels, as they are coloured.
inline constexpr int LabelsLength = 17;
/// The options are written from the last to the first, each behind its label: the last at
/// `OptionsEnd` less one label, the one before less two.
inline constexpr int OptionsEnd = LabelsFrom + Options * LabelLength + 3;

static_assert(OptionsEnd == 59);
static_assert(LabelsFrom >= InstructionFrom + InstructionLength);

} // namespace talvora::listeningpage
