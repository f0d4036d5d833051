// A document is text with its attributes: what a surface shows, without caret, size or events.
#pragma once

#include "surface/ParagraphTable.h"
#include "surface/RunTable.h"
#include "surface/StyleChange.h"
#include "surface/StyleTable.h"
#include "surface/StyledText.h"
#include "surface/TextBuffer.h"

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace talvora {

/// What an edit did: `added` characters took the place of those between `from` and `to`, and the
/// paragraphs from `first` to `last`, both included, became `paragraphsAdded` more (fewer below 0).
struct DocumentEdit {
  int from = 0;
  int to = 0;
  int added = 0;
  int first = 0;
  int last = 0;
  int paragraphsAdded = 0;

  /// Where a caret stands after the edit.
  [[nodiscard]] int moved(int caret) const noexcept {
    if (caret >= to) return caret + added - (to - from);
    return caret < from ? caret : from;
  }
};

/// Carets and ranges given to it lie inside the text and are in order.
class Document {
 public:
  Document();

  // -- Text.

  [[nodiscard]] int length() const noexcept { return text_.length(); }
  /// The character at a place, which must be inside.
  [[nodiscard]] char at(int place) const noexcept { return text_.at(place); }
  [[nodiscard]] std::string between(int from, int to) const { return text_.between(from, to); }
  [[nodiscard]] bool equals(std::string_view text) const noexcept { return text_.equals(text); }
  /// The nearest caret inside the text.
  [[nodiscard]] int clamped(long long caret) const noexcept;

  /// Makes the document new: one style, no paragraph attributes.
  void assign(std::string_view text);
  /// The same with a file's memory, which is kept until the first change, and with where its
  /// paragraphs start; none when that is still to be found out.
  void adopt(const std::shared_ptr<const MappedFile>& file, std::vector<int> starts);
  /// Gives a document that was just assigned the formatting of `text`.
  void format(const StyledText& text);
  DocumentEdit replace(int from, int to, std::string_view text, StyleId style);

  // -- Attributes of characters.

  [[nodiscard]] const CharStyle& defaultStyle() const noexcept { return defaultStyle_; }
  /// The font of later text, and of the margins and tabs of all.
  void defaultFont(FontSpec font);
  [[nodiscard]] StyleId idOf(const CharStyle& style) { return styles_.idOf(style); }
  [[nodiscard]] const CharStyle& style(StyleId id) const noexcept { return styles_[id]; }
  [[nodiscard]] std::size_t styleCount() const noexcept { return styles_.size(); }
  [[nodiscard]] StyleId styleIdAt(int place) const noexcept { return runs_.styleAt(place); }
  [[nodiscard]] const CharStyle& styleAt(int place) const noexcept {
    return styles_[runs_.styleAt(place)];
  }
  void style(TextRange range, const StyleChange& change);
  /// Whether a character of the range is protected.
  [[nodiscard]] bool holdsProtected(TextRange range) const;
  /// Where the run of a place ends.
  [[nodiscard]] int runEnd(int place) const noexcept { return runs_.start(runs_.runOf(place) + 1); }
  /// Runs that cover the text without gaps; neighbours differ.
  [[nodiscard]] std::vector<StyledRun> runs() const;

  // -- Paragraphs.

  [[nodiscard]] int paragraphCount() const noexcept { return paragraphs_.count(); }
  [[nodiscard]] int paragraphOf(int caret) const noexcept { return paragraphs_.paragraphOf(caret); }
  /// Caret at the start of a paragraph; the text's length for the paragraph behind the last.
  [[nodiscard]] int paragraphStart(int paragraph) const noexcept;
  [[nodiscard]] const ParagraphStyle& paragraphStyle(int paragraph) const noexcept {
    return paragraphStyles_[paragraphs_.style(paragraph)];
  }
  /// Changes the paragraphs that a range touches; one that begins where the range ends is not.
  void paragraphStyle(TextRange range, const ParagraphChange& change);
  /// Paragraphs that cover the text; each reaches behind its line end.
  [[nodiscard]] std::vector<StyledParagraph> paragraphs() const;

  /// Rises by one with every change of text or attributes.
  [[nodiscard]] std::uint64_t revision() const noexcept { return revision_; }
  /// Throws std::logic_error naming the first invariant that is broken.
  void Check() const;

 private:
  friend class ParagraphRef;

  [[nodiscard]] std::vector<int> paragraphStartsIn(std::string_view text) const;
  void resetAll(std::vector<int> paragraphStarts);

  TextBuffer text_;
  RunTable runs_;
  ParagraphTable paragraphs_;
  StyleTable<CharStyle> styles_;
  StyleTable<ParagraphStyle> paragraphStyles_;
  CharStyle defaultStyle_;
  std::uint64_t revision_ = 0;
};

} // namespace talvora
