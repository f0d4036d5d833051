#include "pack/PlainMarkup.h"

#include "text/Contains.h"
#include "text/GlyphMap.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

namespace talvora::pack {

namespace {

/// Tags that begin a line.
constexpr std::array<std::string_view, 14> lineTags = {"br", "p",  "div", "li", "tr", "ul", "ol",
                                                       "dt", "dd", "def", "h1", "h2", "h3", "ex"};
/// A tag or a letter's name is shorter than this.
constexpr std::size_t longestTag = 1000;
constexpr std::size_t longestName = 12;
constexpr char32_t lastLetter = 0x10FFFF;

struct NamedLetter {
  std::string_view name;
  char32_t letter;
};
constexpr std::array<NamedLetter, 16> namedLetters = {{{"amp", U'&'},
                                                       {"lt", U'<'},
                                                       {"gt", U'>'},
                                                       {"quot", U'"'},
                                                       {"apos", U'\''},
                                                       {"nbsp", U' '},
                                                       {"ndash", U'–'},
                                                       {"mdash", U'—'},
                                                       {"lsquo", U'‘'},
                                                       {"rsquo", U'’'},
                                                       {"ldquo", U'“'},
                                                       {"rdquo", U'”'},
                                                       {"hellip", U'…'},
                                                       {"eacute", U'é'},
                                                       {"egrave", U'è'},
                                                       {"middot", U'·'}}};

/// "/br class=x" as "br".
std::string tagName(std::string_view tag) {
  if (tag.starts_with('/')) tag.remove_prefix(1);
  return lower(tag.substr(0, tag.find_first_of(" \t\r\n/")));
}

std::optional<char32_t> letterOfNumber(std::string_view digits) {
  int base = 10;
  if (digits.starts_with('x') || digits.starts_with('X')) {
    digits.remove_prefix(1);
    base = 16;
  }
  unsigned long number = 0;
  const char* const end = digits.data() + digits.size();
  const auto [behind, error] = std::from_chars(digits.data(), end, number, base);
  const bool isSurrogate = number >= 0xD800 && number <= 0xDFFF;
  if (error != std::errc() || behind != end || number == 0 || number > lastLetter || isSurrogate)
    return std::nullopt;
  return static_cast<char32_t>(number);
}

std::optional<char32_t> letterOf(std::string_view name) {
  if (name.starts_with('#')) return letterOfNumber(name.substr(1));
  const auto* const known =
      std::find_if(namedLetters.begin(), namedLetters.end(),
                   [&](const NamedLetter& each) { return each.name == name; });
  return known == namedLetters.end() ? std::nullopt : std::optional(known->letter);
}

/// Reads a tag or a letter's name at the front; gives how many characters it takes, or 0.
std::size_t readMark(std::string_view markup, std::string& text) {
  if (markup.front() == '<') {
    const std::size_t end = markup.substr(0, longestTag).find('>');
    if (end == std::string_view::npos) return 0;
    const std::string name = tagName(markup.substr(1, end - 1));
    if (contains(lineTags, name)) text += '\n';
    return end + 1;
  }
  const std::size_t end = markup.substr(0, longestName).find(';');
  const auto letter =
      end == std::string_view::npos ? std::nullopt : letterOf(markup.substr(1, end - 1));
  if (!letter) return 0;
  appendUtf8(text, *letter);
  return end + 1;
}

} // namespace

std::string withoutMarkup(std::string_view markup) {
  std::string text;
  while (!markup.empty()) {
    const std::size_t plain = std::min(markup.find_first_of("<&"), markup.size());
    text += markup.substr(0, plain);
    markup.remove_prefix(plain);
    if (markup.empty()) break;
    const std::size_t taken = readMark(markup, text);
    if (taken == 0) text += markup.front();
    markup.remove_prefix(std::max<std::size_t>(taken, 1));
  }
  return text;
}

} // namespace talvora::pack
