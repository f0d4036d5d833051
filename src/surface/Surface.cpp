#include "surface/Surface.h"

#include "platform/Files.h"
#include "surface/RichText.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace talvora {

Surface::Surface(std::string name, ControlHost& host, const LineLayout& layout)
    : Control(std::move(name), host), view_(document_, *this, layout) {}

// -- The text as a whole.

std::string Surface::Text() const {
  return document_.between(0, document_.length());
}

void Surface::Text(std::string_view text) {
  replaceAll(text, [&] { document_.assign(text); });
}

std::string Surface::TextBetween(int from, int to) const {
  const TextRange range = clamped({from, to});
  return document_.between(range.from, range.to);
}

char Surface::CharAt(int caret) const noexcept {
  return caret >= 0 && caret < document_.length() ? document_.at(caret) : '\0';
}

StyledText Surface::TextRTF() const {
  return {Text(), runs(), paragraphs()};
}

void Surface::TextRTF(const StyledText& text) {
  replaceAll(text.text, [&] {
    document_.assign(text.text);
    document_.format(text);
  });
}

void Surface::LoadFile(const std::shared_ptr<const MappedFile>& file,
                       std::vector<int> paragraphStarts) {
  if (looksLikeRichText(file->text())) {
    TextRTF(readRichText(file->text(), Font()));
  } else {
    replaceAll(file->text(), [&] { document_.adopt(file, std::move(paragraphStarts)); });
    // Of a long text only what is in view is read from now on.
    file->letMemoryGo();
  }
}

void Surface::replaceAll(std::string_view text, const std::function<void()>& fill) {
  const TextIs now = document_.equals(text) ? TextIs::Same : TextIs::Different;
  const Caret::Selection before = caret_.selection();
  fill();
  caret_ = {};
  view_.reset();
  tellText(before, now);
}

void Surface::tellText(Caret::Selection before, TextIs text) {
  const bool moved = before != caret_.selection();
  changed(ControlChange::Text);
  if (text == TextIs::Different) Change.tell();
  if (moved) SelChange.tell();
}

// First out, then in: paragraphs that come are split from what is left.
int Surface::exchange(TextRange range, std::string_view text, StyleId style) {
  const int length = document_.length();
  if (range.from < range.to) view_.edited(document_.replace(range.from, range.to, {}, style));
  if (!text.empty()) view_.edited(document_.replace(range.from, range.from, text, style));
  return document_.length() - length;
}

// Replaces characters of the text and leaves the caret behind the new ones.
void Surface::write(TextRange range, std::string_view text, StyleId style) {
  const Caret::Selection before = caret_.selection();
  caret_.stepBehind(range.to + exchange(range, text, style));
  tellText(before, TextIs::Different);
}

// -- Defaults for new text.

void Surface::defaultFont(FontSpec font) {
  document_.defaultFont(std::move(font));
  view_.refonted();
  changed(ControlChange::Look);
}

void Surface::FontName(std::string name) {
  FontSpec font = Font();
  font.name = std::move(name);
  defaultFont(std::move(font));
}

void Surface::FontSize(double points) {
  FontSpec font = Font();
  font.size = points;
  defaultFont(std::move(font));
}

void Surface::FontBold(bool bold) {
  FontSpec font = Font();
  font.bold = bold;
  defaultFont(std::move(font));
}

// -- Caret and selection.

void Surface::SelStart(int caret) {
  moveCaret(caret, Selecting::No);
}

void Surface::moveCaret(int caret, Selecting selecting) {
  const Caret::Selection before = caret_.selection();
  const int place = document_.clamped(caret);
  view_.bringIntoView(place);
  if (selecting == Selecting::Yes) {
    caret_.extendTo(place);
  } else {
    caret_.placeAt(place);
  }
  tellSelection(before);
}

void Surface::SelLength(int length) {
  const Caret::Selection before = caret_.selection();
  const int end = document_.clamped(static_cast<long long>(caret_.start()) + std::max(length, 0));
  caret_.length(end - caret_.start());
  tellSelection(before);
}

void Surface::tellSelection(Caret::Selection before) {
  if (before != caret_.selection()) {
    changed(ControlChange::Selection);
    SelChange.tell();
  } else if (view_.carriesCarets()) {
    // The caret may still have to come back into view.
    changed(ControlChange::Scroll);
  }
}

void Surface::SelText(std::string_view text) {
  if (text.empty() && caret_.length() == 0) return;
  const std::optional<StyleId> style =
      caret_.length() > 0 ? document_.styleIdAt(caret_.start()) : insertionStyle();
  write(caret_.range(), text, style ? *style : document_.idOf(document_.defaultStyle()));
}

void Surface::select(TextRange range) {
  const Caret::Selection before = caret_.selection();
  const TextRange inside = clamped(range);
  caret_.select(inside.from, inside.to);
  tellSelection(before);
}

TextRange Surface::spanned(TextRange range, std::string_view characters, SpanDirection direction,
                           SpanUntil until) const {
  const auto stops = [&](char character) {
    const bool inSet = characters.find(character) != std::string_view::npos;
    return until == SpanUntil::InSet ? inSet : !inSet;
  };
  if (direction == SpanDirection::Forward) {
    while (range.to < document_.length() && !stops(document_.at(range.to)))
      ++range.to;
  } else {
    while (range.from > 0 && !stops(document_.at(range.from - 1)))
      --range.from;
  }
  return range;
}

void Surface::Span(std::string_view characters, SpanDirection direction, SpanUntil until) {
  select(spanned(caret_.range(), characters, direction, until));
}

// -- Ranges.

TextRange Surface::clamped(TextRange range) const noexcept {
  const int from = document_.clamped(range.from);
  return {from, std::max(from, document_.clamped(range.to))};
}

void Surface::format(TextRange range, const StyleChange& change) {
  const TextRange inside = clamped(range);
  if (inside.from == inside.to) return;
  document_.style(inside, change);
  view_.restyled(inside);
  changed(ControlChange::Look);
}

void Surface::formatParagraphs(TextRange range, const ParagraphChange& change) {
  const TextRange inside = clamped(range);
  document_.paragraphStyle(inside, change);
  view_.restyled(inside);
  changed(ControlChange::Look);
}

const CharStyle& Surface::styleAt(int caret) const {
  const bool inside = caret >= 0 && caret < document_.length();
  return inside ? document_.styleAt(caret) : document_.defaultStyle();
}

void Surface::write(TextRange range, std::string_view text, const StyleChange& change) {
  const TextRange inside = clamped(range);
  if (text.empty() && inside.from == inside.to) return;
  CharStyle style = styleAt(inside.from);
  change.applyTo(style);
  const Caret::Selection before = caret_.selection();
  caret_.follow(inside, exchange(inside, text, document_.idOf(style)));
  tellText(before, TextIs::Different);
}

void Surface::type(char character) {
  view_.bringIntoView(caret_.end());
  SelText(character);
}

void Surface::erase(TextRange range) {
  const TextRange inside = clamped(range);
  if (inside.from == inside.to) return;
  caret_.forgetStyle();
  view_.bringIntoView(inside.from);
  write(inside, {}, document_.styleIdAt(inside.from));
}

// -- Attributes of characters.

// The number of the style that new text at the caret will have; none stands for the default.
std::optional<StyleId> Surface::insertionStyle() const {
  if (caret_.style()) return caret_.style();
  if (document_.length() == 0) return std::nullopt;
  const int caret = caret_.start();
  const bool opensParagraph = paragraphStart(paragraphOf(caret)) == caret;
  const bool takesNext = opensParagraph && caret < document_.length();
  return document_.styleIdAt(takesNext ? caret : caret - 1);
}

const CharStyle& Surface::selStyle() const {
  if (caret_.length() > 0) return document_.styleAt(caret_.start());
  const std::optional<StyleId> style = insertionStyle();
  return style ? document_.style(*style) : document_.defaultStyle();
}

void Surface::changeStyle(const StyleChange& change) {
  if (caret_.length() > 0) {
    format(caret_.range(), change);
    return;
  }
  CharStyle style = selStyle();
  change.applyTo(style);
  caret_.style(document_.idOf(style));
}

void Surface::SelColor(Colour colour) {
  changeStyle({.color = colour});
}

void Surface::SelFontName(const std::string& name) {
  changeStyle({.fontName = name});
}

void Surface::SelFontSize(double points) {
  changeStyle({.fontSize = points});
}

void Surface::SelBold(bool bold) {
  changeStyle({.bold = bold});
}

void Surface::SelItalic(bool italic) {
  changeStyle({.italic = italic});
}

void Surface::SelUnderline(bool underline) {
  changeStyle({.underline = underline});
}

void Surface::SelProtected(bool isProtected) {
  changeStyle({.protectedText = isProtected});
}

// -- Attributes of paragraphs.

void Surface::SelAlignment(Alignment alignment) {
  formatParagraphs(caret_.range(), {.align = alignment});
}

void Surface::SelIndent(double twips) {
  formatParagraphs(caret_.range(), {.indent = twips});
}

void Surface::SelBullet(bool bullet) {
  formatParagraphs(caret_.range(), {.bullet = bullet});
}

// -- Scrolling.

void Surface::scroll(ScrollPlace place) {
  if (view_.scrollTo(place)) changed(ControlChange::Scroll);
}

void Surface::scrollBy(int twips) {
  if (view_.scrollBy(twips)) changed(ControlChange::Scroll);
}

void Surface::Check() const {
  document_.Check();
  view_.Check();
  const bool keepsStyle = caret_.style().has_value();
  if (keepsStyle && (*caret_.style() >= document_.styleCount() || caret_.length() > 0)) {
    throw std::logic_error("a style is kept for a caret that is not there");
  }
  if (caret_.start() < 0 || caret_.length() < 0 || caret_.end() > document_.length()) {
    throw std::logic_error("the selection lies outside the text");
  }
  if (caret_.anchor() != caret_.start() && caret_.anchor() != caret_.end()) {
    throw std::logic_error("the selection is not held at one of its ends");
  }
}

} // namespace talvora
