// The ways of telling the user something and of asking.
#pragma once

#include "platform/Boxes.h"
#include "platform/Clock.h"
#include "platform/Desk.h"
#include "shell/Controls.h"
#include "shell/Pages.h"
#include "shell/UpwardCalls.h"
#include "surface/Form.h"
#include "surface/State.h"

#include <string>
#include <string_view>

namespace talvora {

class Messages {
 public:
  Messages(Form& form, Controls& controls, Pages& pages, const Measures& measures,
           const UpwardCalls& upward, Clock& clock, Boxes& boxes, Narrator& narrator);

  /// Shows a message on `RHD` for `ms` milliseconds, in which no events run; with 0 it stays until
  /// `TatThongBao`. A text longer than the screen still centres by arithmetic.
  void ThongBao(std::string_view text, int ms);
  void TatThongBao();
  /// What became of a word that the learner wanted to keep, for a front that shows it by a sign;
  /// the surfaces say nothing of it.
  void wordTaken(const std::string& word, WordTaken outcome, int count) {
    narrator_.wordTaken(word, outcome, count);
  }
  /// Tells those who do not see the colours of an item how its answer was judged.
  void answerJudged(Verdict verdict) { narrator_.answerJudged(verdict); }
  /// Fits the red plate behind the popup.
  void VeKhung();
  /// Tells something in a box of its own: the window lives on, and the learner closes the box.
  void tell(std::string_view text) { boxes_.tell(text); }
  /// A question box with Yes and No; `defaultAnswer` "yes", in any case of letters, makes Yes the
  /// default button. True when Yes was pressed.
  bool XacNhan(std::string_view question, std::string_view defaultAnswer);

 private:
  Form& form_;
  Controls& controls_;
  const Measures& measures_;
  const UpwardCalls& upward_;
  Clock& clock_;
  Boxes& boxes_;
  Narrator& narrator_;
};

} // namespace talvora
