// A form that takes note of what its controls tell it.
#pragma once

#include "surface/Control.h"

#include <vector>

namespace talvora {

/// Every control has the focus.
class NotingHost final : public ControlHost {
 public:
  void giveFocus(Control&) override {}
  [[nodiscard]] bool hasFocus(const Control&) const noexcept override { return true; }
  void focusNeighbour(Control&, int) override {}
  void controlChanged(Control&, ControlChange change) override { changes.push_back(change); }

  std::vector<ControlChange> changes;
};

} // namespace talvora
