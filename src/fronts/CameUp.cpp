#include "fronts/CameUp.h"

#include <utility>

namespace talvora {

std::vector<const Surface*> CameUp::sinceLast() {
  std::vector<const Surface*> news;
  for (const char* name : {"RHD", "RHDBT", "RDOS"}) {
    const auto* const surface = as<Surface>(form_.find(name));
    if (surface == nullptr) continue;
    if (!surface->Visible()) {
      told_.erase(surface);
      continue;
    }
    const auto [told, isNew] = told_.try_emplace(surface, surface->revision());
    if (!isNew && std::exchange(told->second, surface->revision()) == surface->revision()) continue;
    news.push_back(surface);
  }
  return news;
}

} // namespace talvora
