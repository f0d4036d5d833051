// Text that comes from outside, in the text font's bytes: what the font lacks is written with what
// it has, and what cannot be written so is left out and counted.
#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>

namespace talvora::pack {

class LooseText {
 public:
  /// `forbidden` are the marks that have another use where the text goes; brackets and dashes among
  /// them are written as their likes, other marks are left out without a word.
  explicit LooseText(std::string_view forbidden) : forbidden_(forbidden) {}

  /// The bytes of a text in UTF-8; control characters become blanks.
  [[nodiscard]] std::string bytesOf(std::string_view utf8);

  /// How often each letter was left out; U+FFFD stands for bytes that are no UTF-8.
  [[nodiscard]] const std::map<char32_t, std::size_t>& lost() const noexcept { return lost_; }

 private:
  void append(std::string& bytes, char32_t letter);
  /// Appends what stands for a letter; false when nothing does.
  [[nodiscard]] bool appendLike(std::string& bytes, char32_t letter);

  std::string_view forbidden_;
  std::map<char32_t, std::size_t> lost_;
};

/// The letters that were left out most, each with its number: "ü 12, ß 3".
[[nodiscard]] std::string lostLetters(const std::map<char32_t, std::size_t>& lost,
                                      std::size_t most);

} // namespace talvora::pack
