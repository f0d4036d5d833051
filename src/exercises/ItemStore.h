// The store of exercise items: how many each section has, and the two records of an item.
#pragma once

#include "formats/Limits.h"
#include "platform/EventLoop.h"
#include "stores/Stores.h"
#include "surface/State.h"

#include <array>
#include <cstdint>
#include <string>

namespace talvora {

class ItemStore {
 public:
  static constexpr int Banks = limit::Banks;
  static constexpr int Sections = limit::ItemSections;

  explicit ItemStore(const Stores& stores) : stores_(stores) {}

  /// Loads data.Muc, once; pending events run before each record.
  /// Throws FatalFailure when the file is missing.
  void DocSoCau(EventLoop& events);

  /// The count of a section as stored: 1 to 9 the banks, 9 + k lesson k; 0 outside.
  [[nodiscard]] int countOf(int section) const noexcept;
  /// How many items a section has: a stored count of 0 stands for one.
  [[nodiscard]] int itemsOf(int section) const noexcept;
  /// Items of all sections before one, where each stored count of 0 stands for one item.
  [[nodiscard]] int itemsBefore(int section) const noexcept;
  /// The sum of the stored counts of all banks before one.
  [[nodiscard]] int bankItemsBefore(int bank) const noexcept;

  /// The question record of item n, from 1.
  [[nodiscard]] std::string question(int n) const { return record(n); }
  /// The answer record of item n as stored.
  [[nodiscard]] std::string answer(int n) const { return record(std::int64_t{TongCau_} + n); }

  void declare(Variables& variables) const;

 private:
  [[nodiscard]] std::string record(std::int64_t number) const;

  const Stores& stores_;
  std::array<std::int16_t, Sections + 1> SoCau_{}; ///< element n: count of section n
  int TongCau_ = 0;                                ///< number of items in the store
};

} // namespace talvora
