// A run of items: how it is made from a unit of a bank or from marked lessons, and how it is walked
// item by item.
#pragma once

#include "exercises/ItemKinds.h"
#include "exercises/ItemPage.h"
#include "exercises/ItemStore.h"
#include "exercises/Scoring.h"
#include "exercises/UnitList.h"
#include "lessons/VanPham.h"
#include "platform/Random.h"
#include "surface/Form.h"

#include <array>
#include <cstdint>

namespace talvora {

class Run {
 public:
  static constexpr std::size_t MostItems = 2642;

  Run(Form& form, ItemServices& services, const ItemKinds& kinds, ItemStore& store,
      Scoring& scoring, UnitList& units, VanPham& lessons, Random& random);

  /// Opens bank k, 1 to 9, as a list of units.
  void MoMuc(int k);
  /// Starts the unit chosen in the list.
  void BatDauBai();
  /// Starts a run of all items of the marked lessons.
  void BatDauChon();
  /// Steps to an item, as `BuocLui` says, and shows it; behind the last one a bank's run is over.
  void CauKeTiep();
  /// Leaves the item on a surface.
  void ThoatBT(Surface& surface);
  /// Counts the item on show if it was answered right.
  void CongDung() { scoring_.CongDung(services_.item.KetQuaCau, ViTriCau_); }

  /// Number of items in the run.
  [[nodiscard]] int SoCauChay() const noexcept { return SoCauChay_; }

  void declare(Variables& variables) const;

 private:
  void BatDauChay();
  void TronCau();
  void append(int item);
  void hideItem();
  /// Makes room for a new item.
  void XoaTrangThai();
  /// Moves `ViTriCau`; false when the run is over.
  bool step();
  void endRun();
  /// Takes the plate off that `BatDauChay` has shown.
  void parkPlate();
  void DocCauHoi(int n);
  void DocLoiGiai(int n);
  void PhanTichCau();
  [[nodiscard]] ItemKindPage& page() const { return kinds_.of(item_.LoaiBT); }

  Form& form_;
  ItemServices& services_;
  SharedState& state_;
  ExerciseControls& controls_;
  ItemState& item_;
  const ItemKinds& kinds_;
  ItemStore& store_;
  Scoring& scoring_;
  UnitList& units_;
  VanPham& lessons_;
  Random& random_;

  std::array<std::int16_t, MostItems + 1> DanhSachCau_{}; ///< item numbers, from 1
  int SoCauChay_ = 0;
  int ViTriCau_ = 0; ///< place of the current item in the run; 0 before the first
  int BuocLui_ = 0;  ///< how often Back was pressed since Next
  int MucBT_ = 0;    ///< number of the open bank
  int SoCauBT_ = 0;  ///< its count of items
};

} // namespace talvora
