#include "dictionary/KeyComparison.h"

#include "text/Bytes.h"
#include "text/CharClass.h"
#include "text/Text.h"

#include <array>
#include <compare>
#include <cstddef>

namespace talvora {

namespace {

using namespace literals;

constexpr CharClass Kept("[a-z,A-Z,'. àáéèóõêâ]"_bytes);
constexpr CharClass DroppedAhead("['-(/]");
constexpr unsigned char NotKept = 0;

/// What a character becomes in a normal form; `NotKept` for one that becomes a blank at most.
constexpr std::array<unsigned char, 256> formCharacters = [] {
  std::array<unsigned char, 256> table{};
  for (int code = 0; code < 256; ++code) {
    const char small = lower(chr(code));
    table[static_cast<std::size_t>(code)] =
        Kept.has(small) ? static_cast<unsigned char>(small) : NotKept;
  }
  return table;
}();

/// Walks along a key while the characters of a normal form come in.
class KeyWalker {
 public:
  explicit KeyWalker(std::string_view key) noexcept : rest_(key) {}

  /// How the key's next character stands to the form's; a key at its end comes first.
  std::strong_ordering step(unsigned char character) noexcept {
    if (rest_.empty()) return std::strong_ordering::less;
    const auto own = static_cast<unsigned char>(rest_.front());
    rest_.remove_prefix(1);
    return own <=> character;
  }
  /// How the key stands to a form that ends here.
  [[nodiscard]] std::strong_ordering atEnd() const noexcept {
    return rest_.empty() ? std::strong_ordering::equal : std::strong_ordering::greater;
  }

 private:
  std::string_view rest_;
};

} // namespace

std::strong_ordering compareWithForm(std::string_view key, std::string_view line) noexcept {
  if (line.size() <= 1) return key.compare(trim(line)) <=> 0;
  KeyWalker walker(key);
  bool started = false;
  int blanks = 0; // waiting for a character that follows, since blanks at the ends are trimmed
  char previous = '\0';
  for (const char source : line.substr(DroppedAhead.has(line[0]) ? 1 : 0)) {
    const unsigned char character = formCharacters[static_cast<unsigned char>(source)];
    const bool becomesBlank = character == ' ' || (character == NotKept && previous != ' ');
    previous = source;
    if (becomesBlank && started) ++blanks;
    if (character == ' ' || character == NotKept) continue;
    for (; blanks > 0; --blanks) {
      if (const auto order = walker.step(' '); order != std::strong_ordering::equal) return order;
    }
    if (const auto order = walker.step(character); order != std::strong_ordering::equal)
      return order;
    started = true;
  }
  return walker.atEnd();
}

} // namespace talvora
