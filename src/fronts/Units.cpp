#include "fronts/Units.h"

#include "fronts/TextMeasures.h"
#include "text/GlyphMap.h"

#include <algorithm>

namespace talvora {

namespace {

constexpr int LongestAnnounced = 600;

/// In the VNI rule two bytes may show one letter.
std::u16string vniUnits(std::string_view bytes) {
  std::u16string units;
  for (std::size_t at = 0; at < bytes.size();) {
    const std::u16string letter = toUnicode(bytes.substr(at, 2), Encoding::Vni);
    const bool pair = letter.size() == 1 && at + 1 < bytes.size();
    units += letter[0];
    if (pair) units += JoinsWords;
    at += pair ? 2 : 1;
  }
  return units;
}

bool isGap(const std::u16string& units, std::size_t at) {
  return at >= units.size() || units[at] == u' ' || units[at] == u'\t' || units[at] == NoWidth ||
         units[at] == NothingToSee;
}

} // namespace

std::u16string unitsOf(std::string_view bytes, std::string_view fontName) {
  const Encoding encoding = encodingOf(fontName);
  std::u16string units = encoding == Encoding::Vni ? vniUnits(bytes) : toUnicode(bytes, encoding);
  for (char16_t& unit : units) {
    if (unit < u' ' && unit != u'\t') unit = NoWidth;
  }
  return units;
}

void hideSentenceMarks(std::u16string& units) {
  constexpr char16_t Mark = u'\u00A0';
  for (std::size_t at = units.find(Mark); at < units.size(); at = units.find(Mark, at + 1)) {
    if (at == 0 || isGap(units, at - 1) || isGap(units, at + 1)) units[at] = NothingToSee;
  }
}

std::u16string captionOf(const Button& button) {
  std::u16string caption = toUnicode(button.Caption(), encodingOf(button.Font().name));
  // In a caption "&&" stands for one "&".
  for (std::size_t at = caption.find(u"&&"); at < caption.size(); at = caption.find(u"&&", at + 1))
    caption.erase(at, 1);
  return caption;
}

std::u16string lettersOf(const Surface& surface, int from, int to) {
  const std::string bytes = surface.TextBetween(from, to);
  std::u16string letters = unitsOf(bytes, surface.Font().name);
  for (std::size_t at = bytes.find('\r'); at < bytes.size(); at = bytes.find('\r', at + 1))
    letters[at] = u'\n';
  return letters;
}

std::u16string announcementOf(const Surface& surface) {
  return lettersOf(surface, 0, std::min(surface.TextLength(), LongestAnnounced));
}

} // namespace talvora
