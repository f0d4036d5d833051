#include "shell/Pages.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace talvora {

void Pages::add(Page page) {
  if (find(page.surface) != nullptr) {
    throw std::logic_error(page.surface.Name() + " is added twice");
  }
  if (page.caret != SharedCaret::None && withCaret(page.caret) != nullptr) {
    throw std::logic_error(page.surface.Name() + " takes the caret of another page");
  }
  pages_.push_back(std::move(page));
}

void Pages::check() const {
  form_.check();
  for (const Control* control : form_.controls()) {
    const auto* const surface = as<Surface>(control);
    if (surface != nullptr && find(*surface) == nullptr) {
      throw std::logic_error(surface->Name() + " is no section's page");
    }
  }
}

const Page* Pages::find(const Surface& surface) const noexcept {
  const auto found = std::find_if(pages_.begin(), pages_.end(), [&surface](const Page& each) {
    return &each.surface == &surface;
  });
  return found == pages_.end() ? nullptr : &*found;
}

Surface* Pages::withCaret(SharedCaret caret) const noexcept {
  const auto found = std::find_if(pages_.begin(), pages_.end(),
                                  [caret](const Page& each) { return each.caret == caret; });
  return found == pages_.end() ? nullptr : &found->surface;
}

bool Pages::pageOverPage() const noexcept {
  return std::any_of(pages_.begin(), pages_.end(), [](const Page& each) {
    return each.cardOverPage != nullptr && each.surface.Visible() && each.cardOverPage->Visible();
  });
}

void Pages::focusForemost() {
  std::vector<const Control*> explanations;
  for (const Page& each : pages_) {
    if (each.explains) explanations.push_back(&each.surface);
  }
  Control* const page = form_.foremostSurface(explanations);
  if (page != nullptr) page->SetFocus();
}

void Pages::focusExplanationBehind(const Surface& popup) {
  if (pageOverPage()) return;
  for (const Page& each : pages_) {
    if (each.explains && &each.surface != &popup) each.surface.SetFocus();
  }
}

} // namespace talvora
