// The one-time check before anything is drawn.
#pragma once

#include "platform/Boxes.h"
#include "platform/Desk.h"

#include <string>

namespace talvora {

/// What the check found.
enum class FirstRun { AlreadyDone, DoneNow };

/// Does the first-run work when its marker file is absent: fonts, the marker, the speech engine's
/// installers where it or its voice is missing. After `DoneNow` the process ends, in every case:
/// the user starts the program a second time.
/// Throws FatalFailure when the marker cannot be written.
FirstRun KiemTraCaiDat(const std::string& ThuMuc, Installation& installation, Boxes& boxes);

} // namespace talvora
