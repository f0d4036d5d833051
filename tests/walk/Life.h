// A learner's life with the program: it is started on a pack, given one step after the other,
// started again when it has ended, and looked at after every step.
#pragma once

#include "Promises.h"

#include "driver/Driver.h"

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

namespace talvora::walk {

/// What a life is lived with.
struct Setting {
  std::string screen = "1024x768";
  int voices = 3;
  int speechMsPerChar = 60;
  std::uint64_t seed = 1; ///< of the program's own chance

  [[nodiscard]] ScriptedOptions options() const;
  [[nodiscard]] Json asJson() const;
  /// What the line does not tell stays as it is by default.
  [[nodiscard]] static Setting from(const Json& line);
};

/// What is seen of the program between two steps.
struct View {
  std::string focus;
  std::vector<std::string> visible; ///< surfaces and frames
  std::int64_t clockMs = 0;

  [[nodiscard]] bool onMenu() const { return visible.empty(); }

  friend bool operator==(const View&, const View&) = default;
};

/// What a pointer needs to know of a control; places in twips.
struct Aim {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  int length = 0; ///< of its text, in characters
  bool isSurface = false;
};

class Life {
 public:
  /// The learner's folder is there; it gets the marker of a finished first run.
  Life(Folders folders, Setting setting);

  /// Starts the program; a life begins with this.
  std::optional<Breach> begin();
  /// Does a step: a command of the driver, a line that is none as {"line":TEXT}, {"restart":true},
  /// or {"menu":true}, which presses Esc until the menu stands. Returns the promise that it broke.
  std::optional<Breach> perform(const Json& step);

  [[nodiscard]] const Setting& setting() const noexcept { return setting_; }
  [[nodiscard]] const View& view() const noexcept { return view_; }
  /// A control as it stands now, or a long page as it stood when it was looked at last.
  [[nodiscard]] Aim aim(const std::string& name);

 private:
  [[nodiscard]] Json control(const std::string& name);
  [[nodiscard]] Json ask(const Json& command);
  std::optional<Breach> give(const std::string& line);
  std::optional<Breach> restart();
  std::optional<Breach> goToMenu();
  std::optional<Breach> look();
  std::optional<Breach> lookAtVisible();
  /// Whether a page is looked at in this step: one that was long the last time only now and then.
  [[nodiscard]] bool isDue(const std::string& name) const;
  std::optional<Breach> lookAtMenu();
  std::optional<Breach> lookAtWords();
  std::optional<Breach> lookAtLog();
  /// Words in the learner's files, sorted.
  [[nodiscard]] std::vector<std::string> storedWords() const;

  Folders folders_;
  Setting setting_;
  std::optional<Driver> driver_;
  View view_;
  std::map<std::string, Aim> longPages_;
  long steps_ = 0;
};

} // namespace talvora::walk
