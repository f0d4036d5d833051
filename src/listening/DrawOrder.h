// The order in which the items of a unit are drawn, and the steps back and forward through it.
#pragma once

#include "formats/Limits.h"
#include "platform/Random.h"
#include "surface/Variables.h"

#include <array>
#include <cstdint>

namespace talvora {

class DrawOrder {
 public:
  static constexpr int MostItems = limit::ListeningItems;

  explicit DrawOrder(Random& random) : random_(random) {}

  /// Begins a unit of so many items, at most `MostItems`.
  void start(int items);
  /// Takes the next step: `SoRut` becomes the item of the step, from 1. Only with items.
  void step();
  /// Finds the step before the current item's; 0 when it is the first.
  void TimBuoc();
  /// Whether a new step is left.
  [[nodiscard]] bool goesOn() const noexcept { return BuocHien < SoCauUnit; }

  void declare(Variables& variables) const;

  int SoCauUnit = 0;  ///< items of the unit
  int SoRut = 0;      ///< item drawn for the current step, from 1
  int BuocHien = 0;   ///< the newest step, from 1
  int BuocTruoc = 0;  ///< step before the current item's
  bool CoLui = false; ///< the next step goes back

 private:
  void drawNew();
  [[nodiscard]] bool isDrawn(int number) const noexcept;
  [[nodiscard]] std::int16_t& at(int step) { return ThuTuRut_.at(static_cast<std::size_t>(step)); }

  Random& random_;
  /// Element k: the item drawn at step k; one element more than there are steps.
  std::array<std::int16_t, MostItems + 2> ThuTuRut_{};
};

} // namespace talvora
