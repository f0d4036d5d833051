#include "shell/FocusReturn.h"

#include <utility>

namespace talvora {

void FocusReturn::TraLaiBeMat() {
  const Row* const row =
      rows_.first([](const Row& each) { return each.surface->Visible() && each.holds(); });
  if (row != nullptr) row->action();
}

void FocusReturn::onReturnTo(FocusRank rank, Surface& surface, Condition holds) {
  onReturnTo(rank, surface, std::move(holds), [this, &surface] {
    surface.SelStart(word_.ViTriCaret);
    surface.SetFocus();
  });
}

void FocusReturn::onReturnTo(FocusRank rank, Surface& surface, Condition holds,
                             std::function<void()> action) {
  rows_.take(rank, {&surface, std::move(holds), std::move(action)}, surface.Name());
}

} // namespace talvora
