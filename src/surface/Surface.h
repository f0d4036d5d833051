// A surface is a rich-text buffer with a caret: the one truth of what the learner reads and types.
// A front paints it and sends it events; everything a section does goes through the operations
// below. Carets count from 0, in characters of the text; measures are twips.
#pragma once

#include "platform/Input.h"
#include "platform/LineLayout.h"
#include "surface/Control.h"
#include "surface/ParagraphTable.h"
#include "surface/RunTable.h"
#include "surface/StyleTable.h"
#include "surface/StyledText.h"
#include "surface/TextBuffer.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora {

/// Which way `Span` extends the selection.
enum class SpanDirection { Backward, Forward };
/// Whether `Span` runs while characters are in the set, or up to the first one that is.
enum class SpanUntil { NotInSet, InSet };

/// A point on a surface, in twips from its upper left corner.
struct SurfacePoint {
  int x = 0;
  int y = 0;

  friend bool operator==(const SurfacePoint&, const SurfacePoint&) = default;
};

/// First paragraph in view and how far it is scrolled off the upper edge, in twips.
struct ScrollPlace {
  int paragraph = 0;
  int offset = 0;

  friend bool operator==(const ScrollPlace&, const ScrollPlace&) = default;
};

class Surface final : public Control {
 public:
  Surface(std::string name, ControlHost& host, const LineLayout& layout);

  // -- The text as a whole.

  [[nodiscard]] std::string Text() const;
  /// Sets the whole text and clears all formatting; the caret goes to 0.
  void Text(std::string_view text);
  [[nodiscard]] int TextLength() const noexcept;
  /// The characters between two carets; carets outside the text count as its nearest end.
  [[nodiscard]] std::string TextBetween(int from, int to) const;
  /// The character behind a caret; 0 outside the text.
  [[nodiscard]] char CharAt(int caret) const noexcept;

  /// The text with its formatting, to be given to another surface.
  [[nodiscard]] StyledText TextRTF() const;
  void TextRTF(const StyledText& text);
  /// Loads a rich-text or a plain-text file whole; the caret goes to 0. A plain text is kept as it
  /// stands, line ends included, and shares the file's memory until it is first changed.
  void LoadFile(const std::shared_ptr<const MappedFile>& file);

  // -- Defaults for new text.

  [[nodiscard]] const FontSpec& Font() const noexcept { return defaultStyle_.font; }
  void FontName(std::string name);
  void FontSize(double points);
  void FontBold(bool bold);

  // -- Caret and selection.

  [[nodiscard]] int SelStart() const noexcept { return selStart_; }
  /// Places the caret and ends the selection; a caret outside the text goes to its nearest end. The
  /// surface scrolls so that the caret is in view.
  void SelStart(int caret);
  [[nodiscard]] int SelLength() const noexcept { return selLength_; }
  /// Sets the selection's length from the caret on, at most to the text's end; below 0 counts as 0.
  void SelLength(int length);
  [[nodiscard]] std::string SelText() const {
    return TextBetween(selStart_, selStart_ + selLength_);
  }
  /// Replaces the selection and leaves the caret behind the new text.
  void SelText(std::string_view text);
  void SelText(char character) { SelText(std::string_view(&character, 1)); }
  /// Extends the selection forward from its end, or backward from its start, as far as `until`
  /// says; the character that stops it stays outside.
  void Span(std::string_view characters, SpanDirection direction, SpanUntil until);

  // -- Attributes of the selection. Read: those of its first character; with nothing selected,
  //    those that new text at the caret will have. Written with nothing selected: they hold for
  //    text written at the caret until it moves.

  [[nodiscard]] Colour SelColor() const { return selStyle().color; }
  void SelColor(Colour colour);
  [[nodiscard]] std::string SelFontName() const { return selStyle().font.name; }
  void SelFontName(const std::string& name);
  [[nodiscard]] double SelFontSize() const { return selStyle().font.size; }
  void SelFontSize(double points);
  [[nodiscard]] bool SelBold() const { return selStyle().font.bold; }
  void SelBold(bool bold);
  [[nodiscard]] bool SelItalic() const { return selStyle().italic; }
  void SelItalic(bool italic);
  [[nodiscard]] bool SelUnderline() const { return selStyle().underline; }
  void SelUnderline(bool underline);
  [[nodiscard]] bool SelProtected() const { return selStyle().protectedText; }
  void SelProtected(bool isProtected);

  // -- Attributes of the paragraphs that the selection touches.

  [[nodiscard]] Alignment SelAlignment() const { return selParagraphStyle().align; }
  void SelAlignment(Alignment alignment);
  [[nodiscard]] double SelIndent() const { return selParagraphStyle().indent; }
  void SelIndent(double twips);
  [[nodiscard]] bool SelBullet() const { return selParagraphStyle().bullet; }
  void SelBullet(bool bullet);

  // -- Lines and places, as the layout breaks the text.

  /// Number of the line, from 0, that holds a caret.
  [[nodiscard]] int GetLineFromChar(int caret) const;
  /// The caret nearest to a point of the surface.
  [[nodiscard]] int caretAt(SurfacePoint point) const;
  /// The middle of the character behind a caret (of the caret itself at a line's end), with the
  /// present scrolling.
  [[nodiscard]] SurfacePoint pointOf(int caret) const;
  /// Which paragraph is first in view. Whatever the host is told of may have moved it.
  [[nodiscard]] ScrollPlace scroll() const {
    settleScroll();
    return scroll_;
  }
  /// Scrolls to where the surface was scrolled before; a place outside the text counts as its
  /// nearest end.
  void scroll(ScrollPlace place);
  /// Scrolls by a distance in twips, down when positive, not past the first or the last line.
  void scrollBy(int twips);

  // -- What a front needs to paint and a test to compare.

  [[nodiscard]] int paragraphCount() const noexcept;
  /// The paragraph, from 0, that holds a caret.
  [[nodiscard]] int paragraphOf(int caret) const noexcept;
  /// Caret at the start of a paragraph; the text's length for the paragraph behind the last.
  [[nodiscard]] int paragraphStart(int paragraph) const noexcept;
  /// A paragraph's text without its line end, and its runs.
  [[nodiscard]] ParagraphContent paragraph(int index) const;
  /// Runs that cover the text without gaps; neighbours differ.
  [[nodiscard]] std::vector<StyledRun> runs() const;
  /// Paragraphs that cover the text; each reaches behind its line end.
  [[nodiscard]] std::vector<StyledParagraph> paragraphs() const;
  /// Rises by one with every change of text or attributes.
  [[nodiscard]] std::uint64_t revision() const noexcept { return revision_; }

  // -- Flags.

  /// The learner's keys do not change a locked text.
  [[nodiscard]] bool Locked() const noexcept { return locked_; }
  void Locked(bool locked) noexcept { locked_ = locked; }

  // -- Events. A handler that sets the code to 0 swallows the key.

  std::function<void(int& KeyCode, int Shift)> KeyDown;
  std::function<void(int& KeyCode, int Shift)> KeyUp;
  std::function<void(int& KeyAscii)> KeyPress;
  std::function<void(MouseButton button, int Shift, SurfacePoint at)> MouseDown;
  std::function<void(MouseButton button, int Shift, SurfacePoint at)> MouseUp;
  std::function<void(int Shift, SurfacePoint at)> MouseMove;
  std::function<void()> Click;
  std::function<void()> DblClick;
  /// Caret or selection have changed. What a handler of this or of `Change` does to the surface
  /// itself does not run that handler again.
  std::function<void()> SelChange;
  /// The text has changed, by the program or by a key.
  std::function<void()> Change;

  // -- What a front delivers: each runs the handlers and then the surface's own action.

  /// A key goes down: KeyDown, then KeyPress when the key has a character (0 means none), then the
  /// default action: caret moves, selecting with Shift, typing, deleting, unless the text there is
  /// locked or protected.
  void pressKey(int keyCode, int shift, char character);
  void releaseKey(int keyCode, int shift);
  void moveMouse(int shift, SurfacePoint at);
  /// MouseDown; for the left button the caret then goes to the point.
  void pressMouse(MouseButton button, int shift, SurfacePoint at);
  /// The pointer is dragged with the left button down: the selection runs from where it was
  /// pressed.
  void dragMouse(int shift, SurfacePoint at);
  /// MouseUp, then Click.
  void releaseMouse(MouseButton button, int shift, SurfacePoint at);
  /// The second press of a double click: the word under the pointer is selected, then DblClick. The
  /// release that follows is a `releaseMouse` of its own, without a Click.
  void doubleClick(int shift, SurfacePoint at);

  /// Throws std::logic_error naming the first invariant that is broken. For tests.
  void Check() const;

 private:
  /// A line of the text as the layout breaks it.
  struct LinePlace {
    int paragraph;
    int from;    ///< offset of its first character in the paragraph
    int to;      ///< offset behind its last one
    int top;     ///< twips below the paragraph's top
    int height;  ///< twips
    int number;  ///< in the paragraph, from 0
    bool goesOn; ///< the paragraph has another line below
  };
  /// A height in a paragraph, in twips below its top.
  struct ParagraphSpot {
    int paragraph;
    long long y;
  };
  struct Selection {
    int start = 0;
    int length = 0;

    friend bool operator==(const Selection&, const Selection&) = default;
  };
  enum class Selecting { No, Yes };
  enum class TextIs { Same, Different };

  // Text and attributes.
  [[nodiscard]] const CharStyle& selStyle() const;
  [[nodiscard]] ParagraphStyle selParagraphStyle() const;
  [[nodiscard]] std::optional<StyleId> insertionStyle() const;
  [[nodiscard]] const CharStyle& styleAt(int caret) const { return styles_[runs_.styleAt(caret)]; }
  void replaceText(int from, int to, std::string_view text, StyleId style);
  void exchange(int from, int to, std::string_view text, StyleId style);
  void replaceAll(std::string_view text, const std::function<void()>& fill);
  void format(const StyledText& text);
  void resetAll(std::string_view text);
  template <class Edit>
  void changeStyle(Edit edit);
  template <class Edit>
  void changeParagraphs(Edit edit);
  void select(Selection selection);
  [[nodiscard]] Selection selection() const noexcept { return {selStart_, selLength_}; }
  void tellText(Selection before, TextIs text);
  void tellLook();
  [[nodiscard]] int clampCaret(long long caret) const noexcept;

  // Lines and scrolling.
  template <class Use>
  [[nodiscard]] auto withView(int paragraph, Use use) const;
  [[nodiscard]] ParagraphShape shapeOf(int paragraph) const;
  [[nodiscard]] int heightOf(int paragraph) const { return shapeOf(paragraph).height; }
  [[nodiscard]] LinePlace lineAt(int caret) const;
  [[nodiscard]] std::optional<LinePlace> neighbourLine(const LinePlace& line, int step) const;
  [[nodiscard]] ParagraphSpot spotAt(int paragraph, long long y) const;
  [[nodiscard]] int caretInLine(const LinePlace& line, int x) const;
  [[nodiscard]] int columnOf(int caret) const;
  void resized() override { scrollMayBeOff_ = true; }
  void scrollWithEdit(int first, int last, int added);
  void bringIntoView(int caret);
  void settleScroll() const;
  void showCaret(int caret) const;
  void showAsLastLine(const LinePlace& line) const;

  // Keys and mouse.
  void actOnKey(int keyCode, int shift);
  void typeCharacter(char character);
  void moveCaret(int caret, Selecting selecting);
  [[nodiscard]] int activeEnd() const noexcept;
  void moveHorizontally(int keyCode, int shift);
  void moveInLine(int keyCode, int shift);
  void moveToLine(const LinePlace& line, Selecting selecting);
  /// The line from which a move up or down, or to an end of the line, starts.
  [[nodiscard]] LinePlace lineOfMove(Selecting selecting) const;
  void moveByLine(int step, Selecting selecting);
  void moveByPage(int direction, Selecting selecting);
  [[nodiscard]] int caretBefore(int caret) const;
  [[nodiscard]] int caretBehind(int caret) const;
  [[nodiscard]] int wordStartBefore(int caret) const;
  [[nodiscard]] int wordStartBehind(int caret) const;
  void erase(int from, int to);
  [[nodiscard]] bool mayChange(int from, int to) const;

  const LineLayout& layout_;
  TextBuffer text_;
  RunTable runs_;
  ParagraphTable paragraphs_;
  StyleTable<CharStyle> styles_;
  StyleTable<ParagraphStyle> paragraphStyles_;
  CharStyle defaultStyle_;
  /// Style of what is written next at the caret, until the caret moves.
  std::optional<StyleId> pendingStyle_;
  int selStart_ = 0;
  int selLength_ = 0;
  int anchor_ = 0;             ///< the end of the selection that stays while it is extended
  std::optional<int> columnX_; ///< x that Up and Down keep, twips
  /// Carets that are still to be brought into view, oldest first; done when somebody looks.
  mutable std::vector<int> unshownCarets_;
  mutable ScrollPlace scroll_;
  mutable bool scrollMayBeOff_ = false; ///< the first paragraph in view may have become shorter
  std::uint64_t revision_ = 0;
  bool locked_ = true;
  bool clickIsOver_ = false; ///< the next release belongs to a double click
  bool changeRuns_ = false;  ///< the handler is at work, and what it does itself is not told again
  bool selChangeRuns_ = false;
};

} // namespace talvora
