// The hint bar: what the mouse and the keys do on the surface that has the focus.
#pragma once

#include "shell/Controls.h"
#include "shell/Pages.h"
#include "shell/Steering.h"
#include "surface/Form.h"
#include "surface/State.h"

namespace talvora {

class HintBar {
 public:
  HintBar(Form& form, Controls& controls, Pages& pages, const Measures& measures,
          Steering& steering);

  /// Places the bar on the upper edge of the card, and the label `L1` with it.
  void DatRDOS();
  /// Hides the bar, places it anew, and gives the focus back to the surface if that is visible.
  void AnRDOS(Surface& surface);
  /// Writes the hint of a surface into the bar; a surface without one gets an empty bar.
  void NoiDungHD(Surface& surface);
  /// Shows the hint of a surface, if it has one.
  void HuongDan(Surface& surface);
  /// What F2 does: `HuongDan`, unless the bar is visible already.
  void showOnF2(int keyCode, Surface& surface);
  /// The reminder that F2 exists; at most three times in a run.
  void GoiYF2();
  /// The fixed hint for reading a page aloud.
  void GoiYNghe(Surface& page);
  /// The bar at double height, for two lines.
  void RDOSCao();

  void declare(Variables& variables) const;

  int DemGoiYF2 = 0; ///< times the reminder was shown in this run
  int DemChay = 0;   ///< run counter; start-up sets it to 2 and never reads the stored one

 private:
  void clear();

  Form& form_;
  Controls& controls_;
  Pages& pages_;
  const Measures& measures_;
  Steering& steering_;
};

} // namespace talvora
