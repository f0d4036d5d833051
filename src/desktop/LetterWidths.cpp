#include "desktop/LetterWidths.h"

#include "desktop/Fonts.h"
#include "desktop/Shown.h"
#include "desktop/TextShaper.h"
#include "fronts/Units.h"
#include "text/Bytes.h"

#include <QFontMetricsF>

#include <algorithm>
#include <string_view>

namespace talvora {

namespace {

/// Letters that stand together may be a little wider than each by itself.
constexpr double Slack = 1.05;

double measured(const FontSpec& font, bool italic, char letter) {
  CharStyle style;
  style.font = font;
  style.italic = italic;
  const QFontMetricsF metrics(fontFor(style));
  return metrics.horizontalAdvance(shown(unitsOf(std::string_view(&letter, 1), font.name)));
}

} // namespace

LetterWidths::Face& LetterWidths::faceOf(const FontSpec& font, bool italic) {
  const auto found = std::find_if(faces_.begin(), faces_.end(), [&](const Face& each) {
    return each.italic == italic && each.font == font;
  });
  if (found != faces_.end()) return *found;
  Face face;
  face.font = font;
  face.italic = italic;
  face.tab = ShapedParagraph::tabDistance(font);
  face.widths.fill(-1);
  return faces_.emplace_back(std::move(face));
}

double LetterWidths::widthOf(Face& face, char letter) {
  double& width = face.widths[static_cast<std::size_t>(asc(letter))];
  if (width < 0) width = measured(face.font, face.italic, letter);
  return width;
}

bool LetterWidths::fitsOneLine(const ParagraphView& paragraph) {
  // A tab goes to its next stop, or to the one behind.
  const double tab = 2 * faceOf(paragraph.defaultFont, false).tab;
  const double room = ShapedParagraph::roomOf(paragraph);
  double width = 0;
  for (std::size_t run = 0; run < paragraph.runs.size(); ++run) {
    const auto from = static_cast<std::size_t>(paragraph.runs[run].from);
    const bool last = run + 1 == paragraph.runs.size();
    const auto to =
        last ? paragraph.text.size() : static_cast<std::size_t>(paragraph.runs[run + 1].from);
    const CharStyle& style = *paragraph.runs[run].style;
    Face& face = faceOf(style.font, style.italic);
    for (const char letter : paragraph.text.substr(from, to - from))
      width += letter == '\t' ? tab : widthOf(face, letter);
    if (width * Slack > room) return false;
  }
  return true;
}

} // namespace talvora
