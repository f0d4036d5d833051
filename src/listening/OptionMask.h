// Where the options stand on the listening page, and which wrong ones are still to be greyed.
#pragma once

#include <array>
#include <optional>
#include <string>

namespace talvora {

/// The options in the order in which they stand on the page, as long as they stand there, line ends
/// included.
using ShownOptions = std::array<std::string, 4>;

/// A stretch of the page, both ends included, in carets.
struct PageStretch {
  int from = 0;
  int to = 0;

  friend bool operator==(const PageStretch&, const PageStretch&) = default;
};

class OptionMask {
 public:
  OptionMask() = default;
  /// `rightSlot` is the place of the right option, from 1; `pageLength` the length of the page.
  OptionMask(const ShownOptions& options, int rightSlot, int pageLength);

  /// Where the right option stands.
  [[nodiscard]] PageStretch right() const noexcept { return right_; }
  /// The wrong option at a caret, which counts as greyed from then on; nothing elsewhere.
  std::optional<PageStretch> takeWrong(int caret);
  /// The last caret that may belong to a wrong option.
  [[nodiscard]] int lastCaret() const noexcept;
  /// A blank for each character of the page that belongs to a wrong option; "0" for all else.
  [[nodiscard]] const std::string& MatNaNghe() const noexcept { return mask_; }

 private:
  [[nodiscard]] bool isWrong(int position) const noexcept;
  void cover(int position);

  std::string mask_;
  PageStretch right_;
};

} // namespace talvora
