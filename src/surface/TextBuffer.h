// The characters of a surface: a gap buffer, or a mapped file until it is first changed.
#pragma once

#include "platform/Files.h"

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

namespace talvora {

/// Single-byte text that is cheap to change where it was changed last.
class TextBuffer {
 public:
  [[nodiscard]] int length() const noexcept { return length_; }
  /// The character at a place, which must be inside.
  [[nodiscard]] char at(int place) const noexcept {
    return data_[place < gapAt_ ? place : place + gapSize_];
  }
  /// The characters between two places, which must be inside and in order.
  [[nodiscard]] std::string between(int from, int to) const;
  /// The same as it lies in memory, which holds until the next change; what the gap cuts in two is
  /// put together in `joined`.
  [[nodiscard]] std::string_view view(int from, int to, std::string& joined) const;
  [[nodiscard]] bool equals(std::string_view text) const noexcept;
  /// How many of `wanted` characters still fit in, when `dropped` of those here go.
  [[nodiscard]] int room(std::size_t wanted, int dropped) const noexcept;

  void assign(std::string_view text);
  /// Shows a mapped file's text, and keeps the file, until the first change.
  void adopt(std::shared_ptr<const MappedFile> file);
  /// True while the text is the mapped file's own memory.
  [[nodiscard]] bool sharesFile() const noexcept { return file_ != nullptr; }
  /// Replaces the characters between two places.
  void replace(int from, int to, std::string_view text);

  /// Throws std::logic_error naming the first invariant that is broken.
  void Check() const;

 private:
  [[nodiscard]] std::array<std::string_view, 2> pieces(int from, int to) const noexcept;
  void reallocate(int capacity);
  void moveGap(int place);

  std::unique_ptr<char[]> own_;
  std::shared_ptr<const MappedFile> file_;
  const char* data_ = nullptr; ///< of `own_` or of `file_`
  int capacity_ = 0;           ///< of `own_`
  int length_ = 0;
  int gapAt_ = 0;
  int gapSize_ = 0;
};

} // namespace talvora
