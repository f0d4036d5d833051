// Text, selection and attributes of a surface.
#include "surface/Surface.h"

#include "platform/Files.h"
#include "surface/LineEnds.h"
#include "surface/RichText.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace talvora {

namespace {

/// Runs a handler unless it is at work already. It is held for the call, since it may replace
/// itself.
void runOnce(const std::function<void()>& handler, bool& running) {
  if (!handler || running) return;
  struct Mark {
    explicit Mark(bool& flag) : flag_(flag) { flag_ = true; }
    Mark(const Mark&) = delete;
    Mark& operator=(const Mark&) = delete;
    ~Mark() { flag_ = false; }
    bool& flag_;
  };
  const std::function<void()> held = handler;
  const Mark mark(running);
  held();
}

} // namespace

Surface::Surface(std::string name, ControlHost& host, const LineLayout& layout)
    : Control(std::move(name), host), layout_(layout) {
  text_.assign({});
  resetAll({});
}

// -- The text as a whole.

std::string Surface::Text() const {
  return text_.between(0, text_.length());
}

void Surface::Text(std::string_view text) {
  replaceAll(text, [&] {
    text_.assign(text);
    resetAll(text);
  });
}

int Surface::TextLength() const noexcept {
  return text_.length();
}

std::string Surface::TextBetween(int from, int to) const {
  const int first = clampCaret(from);
  return text_.between(first, std::max(first, clampCaret(to)));
}

char Surface::CharAt(int caret) const noexcept {
  return caret >= 0 && caret < text_.length() ? text_.at(caret) : '\0';
}

StyledText Surface::TextRTF() const {
  return {Text(), runs(), paragraphs()};
}

void Surface::TextRTF(const StyledText& text) {
  replaceAll(text.text, [&] {
    text_.assign(text.text);
    resetAll(text.text);
    format(text);
  });
}

void Surface::format(const StyledText& text) {
  for (const StyledRun& run : text.runs) {
    const int from = clampCaret(run.from);
    const int to = std::max(from, clampCaret(run.to));
    runs_.replace(from, to, to - from, styles_.idOf(run.style));
  }
  for (const StyledParagraph& each : text.paragraphs) {
    paragraphs_.style(paragraphOf(each.from), paragraphStyles_.idOf(each.style));
  }
}

void Surface::LoadFile(const std::shared_ptr<const MappedFile>& file) {
  if (looksLikeRichText(file->text())) {
    TextRTF(readRichText(file->text(), Font()));
  } else {
    replaceAll(file->text(), [&] {
      text_.adopt(file);
      resetAll(file->text());
    });
    // Of a long text only what is in view is read from now on.
    file->letMemoryGo();
  }
}

void Surface::replaceAll(std::string_view text, const std::function<void()>& fill) {
  const TextIs now = text_.equals(text) ? TextIs::Same : TextIs::Different;
  const Selection before = selection();
  fill();
  ++revision_;
  tellText(before, now);
}

// Makes everything beside the text new: one style, no selection, the first line in view.
void Surface::resetAll(std::string_view text) {
  styles_.clear();
  paragraphStyles_.clear();
  runs_.assign(text_.length(), styles_.idOf(defaultStyle_));
  paragraphs_.assign(text.substr(0, static_cast<std::size_t>(text_.length())),
                     paragraphStyles_.idOf({}));
  pendingStyle_.reset();
  columnX_.reset();
  unshownCarets_.clear();
  scroll_ = {};
  selStart_ = selLength_ = anchor_ = 0;
}

void Surface::tellText(Selection before, TextIs text) {
  const bool moved = before != selection();
  changed(ControlChange::Text);
  if (text == TextIs::Different) runOnce(Change, changeRuns_);
  if (moved) runOnce(SelChange, selChangeRuns_);
}

// Replaces characters of the text and leaves the caret behind the new ones.
void Surface::replaceText(int from, int to, std::string_view text, StyleId style) {
  const Selection before = selection();
  const int length = text_.length();
  // First out, then in: paragraphs that come are split from what is left.
  if (from < to) exchange(from, to, {}, style);
  if (!text.empty()) exchange(from, from, text, style);
  selStart_ = anchor_ = to + text_.length() - length;
  selLength_ = 0;
  columnX_.reset();
  ++revision_;
  tellText(before, TextIs::Different);
}

void Surface::exchange(int from, int to, std::string_view text, StyleId style) {
  const int added = text_.room(text.size(), to - from);
  const std::string_view fitting = text.substr(0, static_cast<std::size_t>(added));
  const int first = paragraphs_.paragraphOf(from);
  const int last = paragraphs_.paragraphOf(to);
  const int count = paragraphs_.count();
  text_.replace(from, to, fitting);
  runs_.replace(from, to, added, style);
  paragraphs_.replaced(from, to, fitting, text_);
  scrollWithEdit(first, last, paragraphs_.count() - count);
  for (int& caret : unshownCarets_) {
    if (caret >= to) {
      caret += added - (to - from);
    } else {
      caret = std::min(caret, from);
    }
  }
}

// -- Defaults for new text.

void Surface::FontName(std::string name) {
  defaultStyle_.font.name = std::move(name);
  tellLook();
}

void Surface::FontSize(double points) {
  defaultStyle_.font.size = points;
  tellLook();
}

void Surface::FontBold(bool bold) {
  defaultStyle_.font.bold = bold;
  tellLook();
}

void Surface::tellLook() {
  ++revision_;
  scrollMayBeOff_ = true;
  changed(ControlChange::Look);
}

// -- Caret and selection.

int Surface::clampCaret(long long caret) const noexcept {
  return static_cast<int>(std::clamp<long long>(caret, 0, text_.length()));
}

void Surface::SelStart(int caret) {
  const int place = clampCaret(caret);
  pendingStyle_.reset();
  columnX_.reset();
  anchor_ = place;
  bringIntoView(place);
  select({place, 0});
}

void Surface::SelLength(int length) {
  const int end = clampCaret(static_cast<long long>(selStart_) + std::max(length, 0));
  if (end - selStart_ != selLength_) pendingStyle_.reset();
  anchor_ = selStart_;
  select({selStart_, end - selStart_});
}

void Surface::select(Selection wanted) {
  if (wanted == selection()) {
    // The caret may still have to come back into view.
    if (!unshownCarets_.empty()) changed(ControlChange::Scroll);
    return;
  }
  selStart_ = wanted.start;
  selLength_ = wanted.length;
  changed(ControlChange::Selection);
  runOnce(SelChange, selChangeRuns_);
}

void Surface::SelText(std::string_view text) {
  if (text.empty() && selLength_ == 0) return;
  const std::optional<StyleId> style = selLength_ > 0 ? runs_.styleAt(selStart_) : insertionStyle();
  replaceText(selStart_, selStart_ + selLength_, text,
              style ? *style : styles_.idOf(defaultStyle_));
}

void Surface::Span(std::string_view characters, SpanDirection direction, SpanUntil until) {
  const auto stops = [&](char character) {
    const bool inSet = characters.find(character) != std::string_view::npos;
    return until == SpanUntil::InSet ? inSet : !inSet;
  };
  int start = selStart_;
  int end = selStart_ + selLength_;
  if (direction == SpanDirection::Forward) {
    while (end < text_.length() && !stops(text_.at(end)))
      ++end;
  } else {
    while (start > 0 && !stops(text_.at(start - 1)))
      --start;
  }
  if (start != selStart_ || end != selStart_ + selLength_) pendingStyle_.reset();
  columnX_.reset();
  anchor_ = start;
  select({start, end - start});
}

// -- Attributes of characters.

// The number of the style that new text at the caret will have; none stands for the default.
std::optional<StyleId> Surface::insertionStyle() const {
  if (pendingStyle_) return pendingStyle_;
  if (text_.length() == 0) return std::nullopt;
  const bool opensParagraph = paragraphStart(paragraphOf(selStart_)) == selStart_;
  const bool takesNext = opensParagraph && selStart_ < text_.length();
  return runs_.styleAt(takesNext ? selStart_ : selStart_ - 1);
}

const CharStyle& Surface::selStyle() const {
  if (selLength_ > 0) return styleAt(selStart_);
  const std::optional<StyleId> style = insertionStyle();
  return style ? styles_[*style] : defaultStyle_;
}

template <class Edit>
void Surface::changeStyle(Edit edit) {
  if (selLength_ == 0) {
    CharStyle style = selStyle();
    edit(style);
    pendingStyle_ = styles_.idOf(style);
    return;
  }
  const int end = selStart_ + selLength_;
  for (int from = selStart_; from < end;) {
    const int run = runs_.runOf(from);
    const int to = std::min(end, runs_.start(run + 1));
    CharStyle style = styles_[runs_.style(run)];
    edit(style);
    runs_.replace(from, to, to - from, styles_.idOf(style));
    from = to;
  }
  tellLook();
}

void Surface::SelColor(Colour colour) {
  changeStyle([colour](CharStyle& style) { style.color = colour; });
}

void Surface::SelFontName(const std::string& name) {
  changeStyle([&name](CharStyle& style) { style.font.name = name; });
}

void Surface::SelFontSize(double points) {
  changeStyle([points](CharStyle& style) { style.font.size = points; });
}

void Surface::SelBold(bool bold) {
  changeStyle([bold](CharStyle& style) { style.font.bold = bold; });
}

void Surface::SelItalic(bool italic) {
  changeStyle([italic](CharStyle& style) { style.italic = italic; });
}

void Surface::SelUnderline(bool underline) {
  changeStyle([underline](CharStyle& style) { style.underline = underline; });
}

void Surface::SelProtected(bool isProtected) {
  changeStyle([isProtected](CharStyle& style) { style.protectedText = isProtected; });
}

// -- Attributes of paragraphs.

ParagraphStyle Surface::selParagraphStyle() const {
  return paragraphStyles_[paragraphs_.style(paragraphOf(selStart_))];
}

template <class Edit>
void Surface::changeParagraphs(Edit edit) {
  const int first = paragraphOf(selStart_);
  // A selection that ends at a paragraph's start does not touch that paragraph.
  const int last = selLength_ == 0 ? first : paragraphOf(selStart_ + selLength_ - 1);
  for (int each = first; each <= last; ++each) {
    ParagraphStyle style = paragraphStyles_[paragraphs_.style(each)];
    edit(style);
    paragraphs_.style(each, paragraphStyles_.idOf(style));
  }
  tellLook();
}

void Surface::SelAlignment(Alignment alignment) {
  changeParagraphs([alignment](ParagraphStyle& style) { style.align = alignment; });
}

void Surface::SelIndent(double twips) {
  changeParagraphs([twips](ParagraphStyle& style) { style.indent = twips; });
}

void Surface::SelBullet(bool bullet) {
  changeParagraphs([bullet](ParagraphStyle& style) { style.bullet = bullet; });
}

// -- What a front paints and a test compares.

int Surface::paragraphCount() const noexcept {
  return paragraphs_.count();
}

int Surface::paragraphOf(int caret) const noexcept {
  return paragraphs_.paragraphOf(clampCaret(caret));
}

int Surface::paragraphStart(int paragraph) const noexcept {
  return paragraph <= 0 ? 0 : paragraphs_.start(std::min(paragraph, paragraphs_.count()));
}

ParagraphContent Surface::paragraph(int index) const {
  const int start = paragraphStart(index);
  const int end = paragraphStart(index + 1);
  ParagraphContent content;
  content.text = withoutLineEnd(text_.between(start, end));
  content.style = paragraphStyles_[paragraphs_.style(index)];
  const int textEnd = start + static_cast<int>(content.text.size());
  for (int from = start; from < textEnd;) {
    const int run = runs_.runOf(from);
    content.styles.push_back(styles_[runs_.style(run)]);
    content.runStarts.push_back(from - start);
    from = runs_.start(run + 1);
  }
  if (content.styles.empty()) {
    // An empty line is as high as its line end, or as what would be written there.
    const int like = start < text_.length() ? start : start - 1;
    content.styles.push_back(like >= 0 ? styleAt(like) : defaultStyle_);
    content.runStarts.push_back(0);
  }
  return content;
}

std::vector<StyledRun> Surface::runs() const {
  std::vector<StyledRun> all;
  all.reserve(static_cast<std::size_t>(runs_.count()));
  for (int run = 0; run < runs_.count(); ++run) {
    all.push_back({runs_.start(run), runs_.start(run + 1), styles_[runs_.style(run)]});
  }
  return all;
}

std::vector<StyledParagraph> Surface::paragraphs() const {
  std::vector<StyledParagraph> all;
  all.reserve(static_cast<std::size_t>(paragraphs_.count()));
  for (int each = 0; each < paragraphs_.count(); ++each) {
    all.push_back({paragraphStart(each), paragraphStart(each + 1),
                   paragraphStyles_[paragraphs_.style(each)]});
  }
  return all;
}

void Surface::Check() const {
  text_.Check();
  runs_.Check();
  paragraphs_.Check(text_);
  if (runs_.length() != text_.length()) throw std::logic_error("runs do not cover the text");
  for (int run = 0; run < runs_.count(); ++run) {
    if (runs_.style(run) >= styles_.size()) throw std::logic_error("a run has no style");
  }
  for (int each = 0; each < paragraphs_.count(); ++each) {
    if (paragraphs_.style(each) >= paragraphStyles_.size()) {
      throw std::logic_error("a paragraph has no style");
    }
  }
  if (pendingStyle_ && (*pendingStyle_ >= styles_.size() || selLength_ > 0)) {
    throw std::logic_error("a style is kept for a caret that is not there");
  }
  if (selStart_ < 0 || selLength_ < 0 || selStart_ + selLength_ > text_.length()) {
    throw std::logic_error("the selection lies outside the text");
  }
  if (anchor_ != selStart_ && anchor_ != selStart_ + selLength_) {
    throw std::logic_error("the selection is not held at one of its ends");
  }
  if (scroll_.paragraph < 0 || scroll_.paragraph >= paragraphs_.count() || scroll_.offset < 0) {
    throw std::logic_error("the surface is scrolled to no paragraph");
  }
}

} // namespace talvora
