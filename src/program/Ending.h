// How a run of the program ends.
#pragma once

namespace talvora {

/// Why the program is no longer running.
enum class Ending { None, Quit, FirstRun, Failure };

} // namespace talvora
