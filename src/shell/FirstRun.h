// The one-time check before anything is drawn.
#pragma once

#include "platform/Boxes.h"
#include "platform/Desk.h"
#include "platform/FileSystem.h"
#include "surface/State.h"

namespace talvora {

/// What the check found.
enum class FirstRun { AlreadyDone, DoneNow };

/// Does the first-run work when its marker file is absent: fonts, the marker, the speech engine's
/// installers where it or its voice is missing. After `DoneNow` the process ends, in every case:
/// the user starts the program a second time. The marker lies with what the learner owns; where it
/// cannot be written there would be no second time, and nothing is done.
FirstRun KiemTraCaiDat(const Places& places, FileSystem& files, Installation& installation,
                       Boxes& boxes);

} // namespace talvora
