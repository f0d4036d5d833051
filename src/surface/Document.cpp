#include "surface/Document.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace talvora {

Document::Document() {
  assign({});
}

// -- Text.

int Document::clamped(long long caret) const noexcept {
  return static_cast<int>(std::clamp<long long>(caret, 0, text_.length()));
}

void Document::assign(std::string_view text) {
  text_.assign(text);
  resetAll(paragraphStartsIn(text));
}

void Document::adopt(const std::shared_ptr<const MappedFile>& file, std::vector<int> starts) {
  text_.adopt(file);
  const std::string_view text = file->text();
  const bool known = !starts.empty() && text.size() == static_cast<std::size_t>(text_.length());
  resetAll(known ? std::move(starts) : paragraphStartsIn(text));
}

// Of a text that is too long only what the buffer took counts.
std::vector<int> Document::paragraphStartsIn(std::string_view text) const {
  return ParagraphTable::startsIn(text.substr(0, static_cast<std::size_t>(text_.length())));
}

void Document::resetAll(std::vector<int> paragraphStarts) {
  styles_.clear();
  paragraphStyles_.clear();
  runs_.assign(text_.length(), styles_.idOf(defaultStyle_));
  paragraphs_.assign(std::move(paragraphStarts), text_.length(), paragraphStyles_.idOf({}));
  ++revision_;
}

void Document::format(const StyledText& text) {
  for (const StyledRun& run : text.runs) {
    const int from = clamped(run.from);
    const int to = std::max(from, clamped(run.to));
    runs_.replace(from, to, to - from, styles_.idOf(run.style));
  }
  for (const StyledParagraph& each : text.paragraphs) {
    paragraphs_.style(paragraphOf(clamped(each.from)), paragraphStyles_.idOf(each.style));
  }
}

DocumentEdit Document::replace(int from, int to, std::string_view text, StyleId style) {
  DocumentEdit edit{from,
                    to,
                    text_.room(text.size(), to - from),
                    paragraphOf(from),
                    paragraphOf(to),
                    -paragraphCount()};
  const std::string_view fitting = text.substr(0, static_cast<std::size_t>(edit.added));
  text_.replace(from, to, fitting);
  runs_.replace(from, to, edit.added, style);
  paragraphs_.replaced(from, to, fitting, text_);
  edit.paragraphsAdded += paragraphCount();
  ++revision_;
  return edit;
}

// -- Attributes of characters.

void Document::defaultFont(FontSpec font) {
  defaultStyle_.font = std::move(font);
  ++revision_;
}

void Document::style(TextRange range, const StyleChange& change) {
  for (int from = range.from; from < range.to;) {
    const int run = runs_.runOf(from);
    const int to = std::min(range.to, runs_.start(run + 1));
    CharStyle style = styles_[runs_.style(run)];
    change.applyTo(style);
    runs_.replace(from, to, to - from, styles_.idOf(style));
    from = to;
  }
  ++revision_;
}

bool Document::holdsProtected(TextRange range) const {
  for (int place = range.from; place < range.to; place = runEnd(place)) {
    if (styleAt(place).protectedText) return true;
  }
  return false;
}

std::vector<StyledRun> Document::runs() const {
  std::vector<StyledRun> all;
  all.reserve(static_cast<std::size_t>(runs_.count()));
  for (int run = 0; run < runs_.count(); ++run) {
    all.push_back({runs_.start(run), runs_.start(run + 1), styles_[runs_.style(run)]});
  }
  return all;
}

// -- Paragraphs.

int Document::paragraphStart(int paragraph) const noexcept {
  return paragraph <= 0 ? 0 : paragraphs_.start(std::min(paragraph, paragraphs_.count()));
}

void Document::paragraphStyle(TextRange range, const ParagraphChange& change) {
  const int first = paragraphOf(range.from);
  const int last = range.from == range.to ? first : paragraphOf(range.to - 1);
  for (int each = first; each <= last; ++each) {
    ParagraphStyle style = paragraphStyle(each);
    change.applyTo(style);
    paragraphs_.style(each, paragraphStyles_.idOf(style));
  }
  ++revision_;
}

std::vector<StyledParagraph> Document::paragraphs() const {
  std::vector<StyledParagraph> all;
  all.reserve(static_cast<std::size_t>(paragraphs_.count()));
  for (int each = 0; each < paragraphs_.count(); ++each) {
    all.push_back({paragraphStart(each), paragraphStart(each + 1), paragraphStyle(each)});
  }
  return all;
}

void Document::Check() const {
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
}

} // namespace talvora
