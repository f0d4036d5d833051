// A kind of item, as the run sees it.
#pragma once

#include "surface/Surface.h"
#include "surface/Variables.h"

namespace talvora {

class ItemKindPage {
 public:
  ItemKindPage() = default;
  ItemKindPage(const ItemKindPage&) = delete;
  ItemKindPage& operator=(const ItemKindPage&) = delete;
  virtual ~ItemKindPage() = default;

  /// Where items of the kind are shown.
  [[nodiscard]] virtual Surface& surface() const noexcept = 0;
  /// Writes the item at hand: `CauHoi` holds its question behind heading and hints, `LoiGiai` its
  /// answer record.
  virtual void show() = 0;
  /// The item has come into view.
  virtual void entered() {}
  /// A new run begins.
  virtual void runBegins() {}
  /// Whether explanations of such items come up, over its surface.
  [[nodiscard]] virtual bool explains() const noexcept { return true; }
  /// Ends whatever is shown in the place of what the learner wrote or chose.
  virtual void takeAnswerBack() = 0;
  virtual void declare(Variables&) const {}
};

} // namespace talvora
