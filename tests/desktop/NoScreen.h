// A screen that nobody looks at.
#pragma once

#include "platform/Desk.h"

namespace talvora {

class NoScreen final : public Screen {
 public:
  [[nodiscard]] int pixelWidth() const override { return 1024; }
  [[nodiscard]] int pixelHeight() const override { return 768; }
  void Refresh() override {}
};

} // namespace talvora
