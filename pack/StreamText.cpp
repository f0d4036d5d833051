// Encoding and decoding of the streams.
#include "pack/StreamText.h"

#include "pack/Message.h"

#include "stores/ByteCode.h"
#include "text/Bytes.h"
#include "text/GlyphMap.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <vector>

namespace talvora::pack {

namespace {

constexpr char sentenceMark = chr(160);

bool isExpanded(char byte) {
  return MoRongByte(static_cast<unsigned char>(byte)).size() > 1;
}

using ExpansionsByFirst = std::array<std::vector<Expansion>, 256>;

/// The expansions by their first character, the longest first. "__" is left out: it would join two
/// sentence marks in one record, and each needs a record of its own.
const ExpansionsByFirst& expansions() {
  static const ExpansionsByFirst table = [] {
    ExpansionsByFirst rows;
    for (const Expansion& each : ExpansionTable) {
      if (each.text == "__") continue;
      rows[static_cast<std::size_t>(asc(each.text.front()))].push_back(each);
    }
    for (auto& row : rows) {
      std::stable_sort(row.begin(), row.end(), [](const Expansion& left, const Expansion& right) {
        return left.text.size() > right.text.size();
      });
    }
    return rows;
  }();
  return table;
}

const Expansion* expansionAt(std::string_view text) {
  for (const Expansion& each : expansions()[static_cast<std::size_t>(asc(text.front()))]) {
    if (text.starts_with(each.text)) return &each;
  }
  return nullptr;
}

std::string quoted(char32_t letter) {
  std::string text = "\"";
  appendUtf8(text, letter);
  return text + "\"";
}

/// A letter by its look, or by its number and name where it has no look.
std::string named(char32_t letter) {
  switch (letter) {
  case U'\t':
    return said("U+0009, a tab; type blanks");
  case U'\u00A0':
    return said("U+00A0, the no-break space; type a plain blank");
  case U'\u00AD':
    return said("U+00AD, the soft hyphen, which cannot be seen; delete it");
  case U'\u200B':
    return said("U+200B, a blank without width, which cannot be seen; delete it");
  default:
    return quoted(letter);
  }
}

} // namespace

std::optional<char> streamByte(char32_t letter) {
  const auto byte = x1Byte(letter);
  if (!byte || asc(*byte) < 32 || *byte == sentenceMark || isExpanded(*byte)) return std::nullopt;
  return byte;
}

std::optional<std::string> streamText(std::string_view utf8) {
  std::string text;
  for (std::size_t at = 0; at < utf8.size();) {
    const auto letter = nextCodePoint(utf8, at);
    const auto byte = letter ? streamByte(*letter) : std::nullopt;
    if (!byte) return std::nullopt;
    text += *byte;
  }
  return text;
}

std::string ownText(std::string_view utf8) {
  auto text = streamText(utf8);
  if (!text) throw std::logic_error("no stream can hold: " + std::string(utf8));
  return *text;
}

std::string sourceText(std::string_view utf8, Where where, std::string_view forbidden,
                       Problems& problems) {
  std::string text;
  for (std::size_t at = 0; at < utf8.size(); ++where.column) {
    const auto letter = nextCodePoint(utf8, at);
    if (!letter) {
      problems.add(where, said("not valid UTF-8"));
      ++at;
      continue;
    }
    const auto byte = streamByte(*letter);
    if (!byte) {
      problems.add(where, said("the text font has no byte for {}", named(*letter)));
    } else if (x1Letter(*byte) != *letter) {
      problems.add(where,
                   said("the text font has no capital {} and shows it small", quoted(*letter)));
    } else if (forbidden.find(*byte) != std::string_view::npos) {
      problems.add(where, said("{} is a mark and cannot stand in this text", quoted(*letter)));
    } else {
      text += *byte;
    }
  }
  return text;
}

std::string utf8Of(std::string_view bytes) {
  std::string utf8;
  for (const char byte : bytes)
    appendUtf8(utf8, x1Letter(byte));
  return utf8;
}

bool isVietnameseLetter(char byte) {
  constexpr char16_t firstAccented = 0xC0;
  constexpr char16_t firstMark = 0x2000;
  const char16_t letter = x1Letter(byte);
  return letter >= firstAccented && letter < firstMark;
}

void appendStored(std::string& stream, std::string_view text) {
  while (!text.empty()) {
    const Expansion* expansion = expansionAt(text);
    const auto plain =
        expansion != nullptr ? expansion->plain : static_cast<unsigned char>(text.front());
    stream += static_cast<char>(GiaiMaByte(plain));
    text.remove_prefix(expansion != nullptr ? expansion->text.size() : 1);
  }
}

std::optional<std::string> storedUntil(std::string_view stream, std::int64_t offset, char end) {
  std::string text;
  if (offset < 0) return std::nullopt;
  for (auto at = static_cast<std::size_t>(offset); at < stream.size(); ++at) {
    const auto piece = MoRongByte(GiaiMaByte(static_cast<unsigned char>(stream[at])));
    if (piece.size() == 1 && piece.front() == end) return text;
    text += piece;
  }
  return std::nullopt;
}

} // namespace talvora::pack
