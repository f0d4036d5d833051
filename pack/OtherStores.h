// The stores whose content is still to be written: every slot is there and says so.
#pragma once

#include "pack/PackFile.h"

#include <vector>

namespace talvora::pack {

/// Rule lessons: datavp.vt, datavp.n.
[[nodiscard]] std::vector<PackFile> compileLessons();
/// Speaking texts: datasp.vt, datasp.av.
[[nodiscard]] std::vector<PackFile> compileSpeaking();
/// Exercise items: data.vbt, data.bt, data.Muc.
[[nodiscard]] std::vector<PackFile> compileExercises();
/// Sentence analyses: dataPt.vt, dataPt.v.
[[nodiscard]] std::vector<PackFile> compileAnalyses();
/// Listening items with their timing marks and template: dataN.vt, dataN.av, DataS, dataABCD.rtf.
[[nodiscard]] std::vector<PackFile> compileListening();
/// The Vietnamese side of the dictionary: datatuD.txt, dataD.vt, dataD.av.
[[nodiscard]] std::vector<PackFile> compileVietnameseSide();
/// What a new learner starts with: data.Kcu, data.c.
[[nodiscard]] std::vector<PackFile> firstSettings();

} // namespace talvora::pack
