// Word ordering as an item of a run, on `Rxep`: the drill that texts and lessons use, too.
#pragma once

#include "exercises/ItemKindPage.h"
#include "exercises/ItemPage.h"
#include "exercises/XepTu.h"

namespace talvora {

class OrderingItem final : public ItemKindPage {
 public:
  explicit OrderingItem(ItemServices& services) : services_(services) {}

  [[nodiscard]] Surface& surface() const noexcept override { return services_.controls.Rxep; }
  void show() override { services_.ordering.VaoXepTu(services_.item.LoiGiai); }
  void runBegins() override { services_.ordering.startRun(); }
  [[nodiscard]] bool explains() const noexcept override { return false; }
  void takeAnswerBack() override { services_.answer.KhoiPhucChu(surface()); }
  void declare(Variables& variables) const override { services_.ordering.declare(variables); }

 private:
  ItemServices& services_;
};

} // namespace talvora
