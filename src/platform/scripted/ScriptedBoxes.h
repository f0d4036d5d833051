// Boxes that a script answers.
#pragma once

#include "platform/Boxes.h"
#include "platform/scripted/ScriptedLog.h"

#include <deque>

namespace talvora {

class ScriptedBoxes final : public Boxes {
 public:
  explicit ScriptedBoxes(ScriptedLog& log) : log_(log) {}

  /// Takes the oldest queued answer, or the default when none is queued.
  BoxAnswer ask(std::string_view text, std::string_view title, BoxAnswer byDefault) override;
  void tell(std::string_view text) override;

  /// Queues the answer for the next question box.
  void answer(BoxAnswer with) { answers_.push_back(with); }

 private:
  ScriptedLog& log_;
  std::deque<BoxAnswer> answers_;
};

} // namespace talvora
