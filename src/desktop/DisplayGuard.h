// Says in plain words that there is no display, where the toolkit would abort.
#pragma once

namespace talvora {

/// Lives while the application object is made. When that finds no display, the process ends with
/// one sentence in Vietnamese and English and the exit code 1; what else the toolkit has to say is
/// told once there is a display.
class DisplayGuard {
 public:
  DisplayGuard();
  DisplayGuard(const DisplayGuard&) = delete;
  DisplayGuard& operator=(const DisplayGuard&) = delete;
  ~DisplayGuard();
};

} // namespace talvora
