// Why a program is over.
#pragma once

namespace talvora {

/// Why the program is no longer running.
enum class Ending { None, Quit, FirstRun, Failure };

} // namespace talvora
