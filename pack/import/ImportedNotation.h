// What a brought dictionary says of a word, in the notation of our entries.
#pragma once

#include "pack/LooseText.h"

#include <string>
#include <string_view>

namespace talvora::pack {

/// A text in the notation, and whether it was cut.
struct ImportedNotation {
  std::string text;
  bool cut = false;
};

/// Longer texts are cut, in letters; a popup is no page.
inline constexpr std::size_t LongestImportedText = 1500;

class NotationWriter {
 public:
  /// The name of the dictionary, in UTF-8, stands ahead of everything it says.
  explicit NotationWriter(const std::string& name);

  /// The lines of an entry, each on a line of its own; empty when nothing is left of them. The
  /// first line goes when it only repeats the head.
  [[nodiscard]] ImportedNotation notationOf(std::string_view head, std::string_view text);
  /// A head word in the text font's bytes.
  [[nodiscard]] std::string headOf(std::string_view head);
  [[nodiscard]] const std::map<char32_t, std::size_t>& lost() const noexcept {
    return letters_.lost();
  }

 private:
  LooseText letters_;
  std::string opener_;
};

} // namespace talvora::pack
