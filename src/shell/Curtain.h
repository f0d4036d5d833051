// The curtain: two translucent dark panels part over a surface, which appears from the middle.
#pragma once

#include "platform/Clock.h"
#include "platform/Desk.h"
#include "shell/Controls.h"
#include "shell/Steering.h"
#include "surface/Form.h"
#include "surface/State.h"

namespace talvora {

class Curtain {
 public:
  Curtain(Form& form, Controls& controls, const Measures& measures, Steering& steering,
          Clock& clock, Narrator& narrator)
      : form_(form), controls_(controls), measures_(measures), steering_(steering), clock_(clock),
        narrator_(narrator) {}

  /// Opens the curtain over a surface that stands at its place.
  void KeoMan(Surface& surface) { KeoManNgang(surface); }
  void KeoManNgang(Surface& surface);

 private:
  void hang(const Surface& surface);
  /// Parts the panels by a distance; false when less than that is left.
  bool part(int distance);
  void open(int firstStep);

  Form& form_;
  Controls& controls_;
  const Measures& measures_;
  Steering& steering_;
  Clock& clock_;
  Narrator& narrator_;
};

} // namespace talvora
