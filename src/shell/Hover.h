// The hover animation: the menu button under the pointer takes the focus and is animated, and a
// button that gets the focus from the keyboard pulls the pointer to itself.
#pragma once

#include "platform/Desk.h"
#include "platform/EventLoop.h"
#include "shell/Controls.h"
#include "shell/Steering.h"
#include "surface/Form.h"
#include "surface/State.h"

#include <string>

namespace talvora {

class Hover {
 public:
  Hover(Form& form, Controls& controls, const Places& places, Steering& steering, EventLoop& events,
        Narrator& narrator)
      : form_(form), controls_(controls), places_(places), steering_(steering), events_(events),
        narrator_(narrator) {}

  /// Animates a button until the focus leaves it, an arrow is pressed, or the front interrupts.
  void NutSang(Button& button);
  /// The pointer follows a focus that came from the keyboard. The places are made for three sizes
  /// of the screen: on another one it may stand beside the button or over a neighbour, and means
  /// this one all the same.
  void buttonGotFocus(int number);

  /// The button shows a frame from 1 to 14.
  void KhungNut(Button& button, int frame);
  /// Every button but the one of that number goes back to its rest face; 0 means all.
  void TraHinhNut(int except);

  void declare(Variables& variables) const;

  int HoverDem = 0;     ///< frames shown since the button was entered
  std::string HoverTen; ///< caption of the animated button
  int HoverSo = 0;      ///< number of the animated button

 private:
  void animate(Button& button);
  /// Lets events run, then shows frames from one to another; false when the animation must stop.
  bool playFrames(Button& button, int first, int last);
  /// Lets events run; false when the animation must stop.
  bool mayGoOn();
  bool DungSang();

  Form& form_;
  Controls& controls_;
  const Places& places_;
  Steering& steering_;
  EventLoop& events_;
  Narrator& narrator_;
};

} // namespace talvora
