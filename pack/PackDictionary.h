// The dictionary of a compiled pack: its words in their order, and what is said of each.
#pragma once

#include "pack/Problems.h"
#include "platform/Files.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

class PackDictionary {
 public:
  /// Reads datatu.txt, data.mtd and data.avt of a folder; what is missing is reported.
  PackDictionary(const std::filesystem::path& folder, Problems& problems);

  [[nodiscard]] std::size_t size() const noexcept { return heads_.size(); }
  /// The word of a number below `size`, as the list spells it. It lives as long as this.
  [[nodiscard]] std::string_view headAt(std::size_t number) const { return heads_.at(number); }
  /// Its entry, without the character that ends it; empty when it cannot be read.
  [[nodiscard]] std::string entryAt(std::size_t number) const;

  /// The record number of its first byte.
  [[nodiscard]] std::size_t placeOf(std::size_t number) const;
  /// The bytes of all entries, as they are stored.
  [[nodiscard]] std::string_view entries() const noexcept { return entries_->text(); }

  /// The number of a word, whatever its case.
  [[nodiscard]] std::optional<std::size_t> find(std::string_view word) const;
  /// The same for a word that may have to be shortened as the program shortens it: first by its
  /// ending, then letter by letter.
  [[nodiscard]] std::optional<std::size_t> findReduced(std::string_view word) const;

 private:
  std::shared_ptr<const MappedFile> words_;
  std::shared_ptr<const MappedFile> records_;
  std::shared_ptr<const MappedFile> entries_;
  std::vector<std::string_view> heads_;
};

} // namespace talvora::pack
