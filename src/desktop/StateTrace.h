// A trace of what the program shows, for tests of the real window and for people who report a
// fault. A line for each change: the state behind "focus=", with the caret and the word at it, or
// where the words of a surface stand, behind "words".
#pragma once

#include "platform/Input.h"
#include "program/Program.h"
#include "surface/Surface.h"

#include <cstdint>
#include <fstream>
#include <functional>
#include <map>
#include <string>
#include <tuple>

namespace talvora {

class StateTrace {
 public:
  /// Writes to a new file of that path.
  StateTrace(const std::string& path, Program& program) : file_(path), program_(program) {}

  /// Writes a line for everything that has changed since the last call.
  void note();

  /// The pixel of the program's screen that shows a point of the form; set by the front.
  std::function<PixelPoint(SurfacePoint)> onScreen = [](SurfacePoint point) {
    return PixelPoint{point.x, point.y};
  };

 private:
  /// What the places of a surface's words depend on.
  using Picture = std::tuple<std::uint64_t, ScrollPlace, int, int, int, int>;

  [[nodiscard]] std::string present();
  void noteWords(const Surface& surface);
  /// Writes the words in view: the name, and for each word "x,y,word" in pixels and UTF-8.
  void writeWords(const Surface& surface);
  void writeWord(const Surface& surface, int from, const std::string& word);

  std::ofstream file_;
  Program& program_;
  std::string last_;
  std::map<const Surface*, Picture> shown_; ///< whose words were written, and for which picture
};

} // namespace talvora
