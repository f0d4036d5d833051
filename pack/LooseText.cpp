#include "pack/LooseText.h"

#include "pack/StreamText.h"
#include "text/GlyphMap.h"

#include <utf8proc.h>

#include <algorithm>
#include <array>
#include <vector>

namespace talvora::pack {

namespace {

struct Likeness {
  char32_t letter;
  std::string_view like; ///< in ASCII and the font's letters, as UTF-8
};

// Marks that the notations use themselves, letters of pronunciations that the font lacks, and
// signs.
constexpr std::array likenesses = {
    Likeness{U'[', "("},          Likeness{U']', ")"},        Likeness{U'{', "("},
    Likeness{U'}', ")"},          Likeness{U'<', "("},        Likeness{U'>', ")"},
    Likeness{U'_', " "},          Likeness{U'|', "/"},        Likeness{U'\\', "/"},
    Likeness{U'`', "'"},          Likeness{U'~', "-"},        Likeness{U'@', "a"},
    Likeness{U'#', ""},           Likeness{U'*', ""},         Likeness{U'^', ""},
    Likeness{U'\u00A0', " "},     Likeness{U'\u00AD', ""},    Likeness{U'\u200B', ""},
    Likeness{U'\uFEFF', ""},      Likeness{U'\u2010', "-"},   Likeness{U'\u2011', "-"},
    Likeness{U'\u2012', "–"},     Likeness{U'\u2015', "—"},   Likeness{U'\u2212', "-"},
    Likeness{U'\u201A', ","},     Likeness{U'\u201E', "“"},   Likeness{U'\u00AB', "“"},
    Likeness{U'\u00BB', "”"},     Likeness{U'\u2039', "‘"},   Likeness{U'\u203A', "’"},
    Likeness{U'\u2026', "..."},   Likeness{U'\u2022', "-"},   Likeness{U'\u00B7', "."},
    Likeness{U'\u2192', "->"},    Likeness{U'\u00D7', "x"},   Likeness{U'\u00B0', " degrees"},
    Likeness{U'\u00A9', "(c)"},   Likeness{U'\u00B1', "+/-"}, Likeness{U'\u20AC', "euro"},
    Likeness{U'\u00A3', "pound"}, Likeness{U'\u00DF', "ss"},  Likeness{U'\u00C6', "Ae"},
    Likeness{U'\u0153', "oe"},    Likeness{U'\u0152', "Oe"},  Likeness{U'\u00F8', "o"},
    Likeness{U'\u00D8', "O"},     Likeness{U'\u0142', "l"},   Likeness{U'\u02C8', "'"},
    Likeness{U'\u02CC', ","},     Likeness{U'\u02D0', ":"},   Likeness{U'\u0251', "a"},
    Likeness{U'\u0252', "o"},     Likeness{U'\u0254', "o"},   Likeness{U'\u025B', "e"},
    Likeness{U'\u025C', "ə"},     Likeness{U'\u025A', "ə"},   Likeness{U'\u025D', "ə"},
    Likeness{U'\u0261', "g"},     Likeness{U'\u026A', "i"},   Likeness{U'\u0268', "i"},
    Likeness{U'\u028A', "u"},     Likeness{U'\u0279', "r"},   Likeness{U'\u027E', "r"},
    Likeness{U'\u026B', "l"},     Likeness{U'\u0294', ""},    Likeness{U'\u0303', ""},
    Likeness{U'\u0329', ""},      Likeness{U'\u0361', ""},
};

std::vector<char32_t> decomposed(char32_t letter) {
  std::array<utf8proc_int32_t, 32> parts{};
  int lastClass = 0;
  const auto count = utf8proc_decompose_char(
      static_cast<utf8proc_int32_t>(letter), parts.data(), parts.size(),
      static_cast<utf8proc_option_t>(UTF8PROC_DECOMPOSE | UTF8PROC_COMPAT), &lastClass);
  if (count <= 0 || count > static_cast<utf8proc_ssize_t>(parts.size())) return {};
  return {parts.begin(), parts.begin() + count};
}

bool isMark(char32_t letter) {
  const auto category = utf8proc_category(static_cast<utf8proc_int32_t>(letter));
  return category == UTF8PROC_CATEGORY_MN || category == UTF8PROC_CATEGORY_ME;
}

bool isControl(char32_t letter) {
  constexpr char32_t firstPrinted = 0x20;
  constexpr char32_t deleted = 0x7F;
  constexpr char32_t lastControl = 0x9F;
  return letter < firstPrinted || (letter >= deleted && letter <= lastControl);
}

} // namespace

std::string LooseText::bytesOf(std::string_view utf8) {
  std::string bytes;
  for (std::size_t at = 0; at < utf8.size();) {
    const auto letter = nextCodePoint(utf8, at);
    if (letter) {
      append(bytes, *letter);
    } else {
      ++lost_[U'\uFFFD'];
      ++at;
    }
  }
  return bytes;
}

void LooseText::append(std::string& bytes, char32_t letter) {
  if (isControl(letter)) {
    bytes += ' ';
    return;
  }
  const auto byte = streamByte(letter);
  if (byte && forbidden_.find(*byte) == std::string_view::npos) {
    bytes += *byte;
  } else if (!appendLike(bytes, letter)) {
    ++lost_[letter];
  }
}

bool LooseText::appendLike(std::string& bytes, char32_t letter) {
  const auto* const known =
      std::find_if(likenesses.begin(), likenesses.end(),
                   [&](const Likeness& each) { return each.letter == letter; });
  if (known != likenesses.end()) {
    bytes += ownText(known->like);
    return true;
  }
  // A letter with marks that the font lacks is written without them.
  std::string parts;
  for (const char32_t part : decomposed(letter)) {
    if (isMark(part)) continue;
    const auto byte = streamByte(part);
    if (!byte || forbidden_.find(*byte) != std::string_view::npos) return false;
    parts += *byte;
  }
  bytes += parts;
  return !parts.empty() || isMark(letter);
}

std::string lostLetters(const std::map<char32_t, std::size_t>& lost, std::size_t most) {
  std::vector<std::pair<char32_t, std::size_t>> letters(lost.begin(), lost.end());
  std::stable_sort(letters.begin(), letters.end(),
                   [](const auto& one, const auto& other) { return one.second > other.second; });
  std::string text;
  for (std::size_t at = 0; at < std::min(most, letters.size()); ++at) {
    if (at > 0) text += ", ";
    appendUtf8(text, letters[at].first);
    text += " " + std::to_string(letters[at].second);
  }
  return letters.size() > most ? text + ", ..." : text;
}

} // namespace talvora::pack
