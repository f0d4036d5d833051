#include "shell/FocusReturn.h"

#include <algorithm>
#include <utility>

namespace talvora {

FocusReturn::FocusReturn(Controls& c, const CurrentWord& word) {
  const auto always = [] { return true; };
  const auto row = [&](Surface& surface, std::function<bool()> holds) {
    rows_.push_back({&surface, std::move(holds),
                     [this, &surface, &word] { takeCaret(surface, word.ViTriCaret); }});
  };
  const auto list = [&](Surface& surface, const Surface& page) {
    rows_.push_back({&surface, [&page] { return !page.Visible(); },
                     [this, &surface, &word] { takeCaret(surface, word.ViTriCaretR1); }});
  };
  const auto withoutSelection = [](const Surface& surface) {
    return [&surface] { return surface.SelLength() == 0; };
  };
  // A lesson over an item or a text covers all of the page that has opened it.
  row(c.RVP2, [&c] { return c.linkedLessonOpen(); });
  row(c.Rviet, always);
  row(c.Rxep, always);
  row(c.RHDBT, always);
  row(c.RDT, always);
  // Items that nothing is typed into get back what a look-up has taken from them.
  row(c.RABCD, always);
  row(c.Rsai, always);
  row(c.Rchon, always);
  list(c.RVP1, c.RVP2);
  row(c.RVP2, always);
  row(c.RN2, withoutSelection(c.RN2));
  list(c.RW1, c.RW2);
  list(c.R1, c.R2);
  row(c.R2, withoutSelection(c.R2));
}

void FocusReturn::takeCaret(Surface& surface, int caret) {
  surface.SelStart(caret);
  surface.SetFocus();
}

void FocusReturn::TraLaiBeMat() {
  const auto row = std::find_if(rows_.begin(), rows_.end(), [](const Row& each) {
    return each.surface->Visible() && each.holds();
  });
  if (row != rows_.end()) row->action();
}

void FocusReturn::onReturnTo(const Surface& surface, std::function<void()> action) {
  const auto row = std::find_if(rows_.begin(), rows_.end(),
                                [&](const Row& each) { return each.surface == &surface; });
  if (row != rows_.end()) row->action = std::move(action);
}

} // namespace talvora
