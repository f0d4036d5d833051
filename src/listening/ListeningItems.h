// The items of the listening store: where each begins, its unit and its segment, and its texts.
#pragma once

#include "formats/Limits.h"
#include "stores/Stores.h"
#include "surface/Variables.h"

#include <array>
#include <cstdint>
#include <string>

namespace talvora {

/// What is known of an item before it is opened.
struct ListeningItem {
  std::uint8_t Unit = 0;  ///< its unit, from 1
  std::int32_t ViTri = 0; ///< record in the stream right behind its head line
  std::int16_t Doan = 0;  ///< its segment in the unit's recording, from 1
};

/// The texts of an item. What a damaged item lacks is empty.
struct ListeningTexts {
  static constexpr std::size_t OptionCount = 4;

  std::string sentence;
  std::array<std::string, OptionCount> options; ///< the first is the right one
};

class ListeningItems {
 public:
  static constexpr int Count = limit::ListeningItems;

  explicit ListeningItems(Stores& stores) : stores_(stores) {}

  /// Opens the store and reads where its items begin.
  /// Throws FatalFailure when a file is missing.
  void LapBangNghe();
  /// Closes the stream; harmless when it is closed.
  void close() { stream_ = RecordFile(); }
  [[nodiscard]] bool isOpen() const noexcept { return stream_.isOpen(); }

  /// Item i; outside 1 to `Count` an item of unit 0.
  [[nodiscard]] ListeningItem item(int i) const noexcept;
  /// Reads the texts that begin at a record of the stream.
  [[nodiscard]] ListeningTexts textsAt(std::int32_t record) const;

  void declare(Variables& variables) const;

 private:
  /// Reads the head line of item i and moves its record behind it.
  void DocDauNghe(int i);

  Stores& stores_;
  RecordFile stream_;
  std::array<ListeningItem, Count + 1> CauNghe_{}; ///< from 1
};

} // namespace talvora
