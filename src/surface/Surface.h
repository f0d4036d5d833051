// A surface is a rich-text buffer with a caret: the one truth of what the learner reads and types.
// A front paints it and sends it events; everything a section does goes through the operations
// below. Carets count from 0, in characters of the text; measures are twips.
#pragma once

#include "platform/Input.h"
#include "surface/Caret.h"
#include "surface/Control.h"
#include "surface/Document.h"
#include "surface/Notification.h"
#include "surface/ParagraphRef.h"
#include "surface/StyleChange.h"
#include "surface/SurfacePoint.h"
#include "surface/Viewport.h"

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace talvora {

/// Which way `Span` extends the selection.
enum class SpanDirection { Backward, Forward };
/// Whether `Span` runs while characters are in the set, or up to the first one that is.
enum class SpanUntil { NotInSet, InSet };
/// Whether a caret that is moved takes the selection's end along.
enum class Selecting { No, Yes };

/// What it is made of: a document, a caret, and a viewport. Here they meet, and whoever listens is
/// told.
class Surface final : public Control {
 public:
  static constexpr ControlKind Kind = ControlKind::Surface;

  Surface(std::string name, ControlHost& host, const LineLayout& layout);

  [[nodiscard]] ControlKind kind() const noexcept override { return Kind; }
  [[nodiscard]] bool takesMouse() const noexcept override { return true; }

  // -- The text as a whole.

  [[nodiscard]] std::string Text() const;
  /// Sets the whole text and clears all formatting; the caret goes to 0.
  void Text(std::string_view text);
  [[nodiscard]] int TextLength() const noexcept { return document_.length(); }
  /// The characters between two carets; carets outside the text count as its nearest end.
  [[nodiscard]] std::string TextBetween(int from, int to) const;
  /// The character behind a caret; 0 outside the text.
  [[nodiscard]] char CharAt(int caret) const noexcept;

  /// The text with its formatting, to be given to another surface.
  [[nodiscard]] StyledText TextRTF() const;
  void TextRTF(const StyledText& text);
  /// Loads a rich-text or a plain-text file whole; the caret goes to 0. A plain text is kept as it
  /// stands, line ends included, and shares the file's memory until it is first changed.
  void LoadFile(const std::shared_ptr<const MappedFile>& file) { LoadFile(file, {}); }
  /// The same for a file of which it is known where the paragraphs of its plain text start.
  void LoadFile(const std::shared_ptr<const MappedFile>& file, std::vector<int> paragraphStarts);

  // -- Defaults for new text.

  [[nodiscard]] const FontSpec& Font() const noexcept { return document_.defaultStyle().font; }
  void FontName(std::string name);
  void FontSize(double points);
  void FontBold(bool bold);

  // -- Caret and selection.

  [[nodiscard]] int SelStart() const noexcept { return caret_.start(); }
  /// Places the caret and ends the selection; a caret outside the text goes to its nearest end. The
  /// surface scrolls so that the caret is in view.
  void SelStart(int caret);
  [[nodiscard]] int SelLength() const noexcept { return caret_.length(); }
  /// Sets the selection's length from the caret on, at most to the text's end; below 0 counts as 0.
  void SelLength(int length);
  [[nodiscard]] std::string SelText() const { return TextBetween(caret_.start(), caret_.end()); }
  /// Replaces the selection and leaves the caret behind the new text.
  void SelText(std::string_view text);
  void SelText(char character) { SelText(std::string_view(&character, 1)); }
  /// Selects a range, held at its start; the view stays. What of it lies outside the text is none.
  void select(TextRange range);
  /// The selection as `Span` would extend it from a range; nothing changes.
  [[nodiscard]] TextRange spanned(TextRange range, std::string_view characters,
                                  SpanDirection direction, SpanUntil until) const;
  /// Extends the selection forward from its end, or backward from its start, as far as `until`
  /// says; the character that stops it stays outside.
  void Span(std::string_view characters, SpanDirection direction, SpanUntil until);

  // -- What keys do, in view.

  /// Places the caret as SelStart does, or takes the selection's moving end there.
  void moveCaret(int caret, Selecting selecting);
  /// Writes a character over the selection.
  void type(char character);
  /// Deletes a range; the caret goes there.
  void erase(TextRange range);

  // -- A range of the text. The caret stays with its text and the view where it is; formatting
  //    tells nobody of a selection. A range outside the text counts as what of it lies inside.

  void format(TextRange range, const StyleChange& change);
  /// The same for the paragraphs that the range touches.
  void formatParagraphs(TextRange range, const ParagraphChange& change);
  /// The style of the character behind a caret, of new text where there is none.
  [[nodiscard]] const CharStyle& styleAt(int caret) const;
  /// Replaces the range by a text that looks like its first character, but for what `change` says.
  void write(TextRange range, std::string_view text, const StyleChange& change = {});

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
  [[nodiscard]] int GetLineFromChar(int caret) const {
    return view_.lineNumberOf(document_.clamped(caret));
  }
  /// The caret nearest to a point of the surface.
  [[nodiscard]] int caretAt(SurfacePoint point) const { return view_.caretAt(point); }
  /// The middle of the character behind a caret (of the caret itself at a line's end), with the
  /// present scrolling.
  [[nodiscard]] SurfacePoint pointOf(int caret) const {
    return view_.pointOf(document_.clamped(caret));
  }
  /// Which paragraph is first in view. Whatever the host is told of may have moved it.
  [[nodiscard]] ScrollPlace scroll() const { return view_.scroll(); }
  /// Scrolls to where the surface was scrolled before; a place outside the text counts as its
  /// nearest end.
  void scroll(ScrollPlace place);
  /// Scrolls by a distance in twips, down when positive, not past the first or the last line.
  void scrollBy(int twips) override;

  // -- What a front needs to paint and a test to compare.

  [[nodiscard]] int paragraphCount() const noexcept { return document_.paragraphCount(); }
  /// The paragraph, from 0, that holds a caret.
  [[nodiscard]] int paragraphOf(int caret) const noexcept {
    return document_.paragraphOf(document_.clamped(caret));
  }
  /// Caret at the start of a paragraph; the text's length for the paragraph behind the last.
  [[nodiscard]] int paragraphStart(int paragraph) const noexcept {
    return document_.paragraphStart(paragraph);
  }
  /// A paragraph's text without its line end, and its runs, until the next change.
  [[nodiscard]] ParagraphRef paragraph(int index) const { return paragraph(index, Width()); }
  /// The same for a page of another width, in twips.
  [[nodiscard]] ParagraphRef paragraph(int index, int width) const {
    return ParagraphRef(document_, index, width);
  }
  /// Runs that cover the text without gaps; neighbours differ.
  [[nodiscard]] std::vector<StyledRun> runs() const { return document_.runs(); }
  /// Paragraphs that cover the text; each reaches behind its line end.
  [[nodiscard]] std::vector<StyledParagraph> paragraphs() const { return document_.paragraphs(); }
  /// Rises by one with every change of text or attributes.
  [[nodiscard]] std::uint64_t revision() const noexcept { return document_.revision(); }

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
  Notification SelChange;
  /// The text has changed, by the program or by a key.
  Notification Change;

  // -- What a front delivers: each runs the handlers and then the surface's own action.

  /// A key goes down: KeyDown, then KeyPress when the key has a character (0 means none), then the
  /// default action: caret moves, selecting with Shift, typing, deleting, unless the text there is
  /// locked or protected.
  void pressKey(int keyCode, int shift, char character) override;
  void releaseKey(int keyCode, int shift) override;
  void moveMouse(int shift, SurfacePoint at) override;
  /// MouseDown; for the left button the caret then goes to the point.
  void pressMouse(MouseButton button, int shift, SurfacePoint at) override;
  /// The pointer is dragged with the left button down: the selection runs from where it was
  /// pressed.
  void dragMouse(int shift, SurfacePoint at) override;
  /// MouseUp, then Click.
  void releaseMouse(MouseButton button, int shift, SurfacePoint at) override;
  /// The second press of a double click: the word under the pointer is selected, then DblClick. The
  /// release that follows is a `releaseMouse` of its own, without a Click.
  void doubleClick(int shift, SurfacePoint at) override;

  /// Throws std::logic_error naming the first invariant that is broken. For tests.
  void Check() const;

 private:
  enum class TextIs { Same, Different };

  [[nodiscard]] const CharStyle& selStyle() const;
  [[nodiscard]] const ParagraphStyle& selParagraphStyle() const {
    return document_.paragraphStyle(document_.paragraphOf(caret_.start()));
  }
  [[nodiscard]] std::optional<StyleId> insertionStyle() const;
  [[nodiscard]] TextRange clamped(TextRange range) const noexcept;
  /// Returns by how much the text grew.
  int exchange(TextRange range, std::string_view text, StyleId style);
  void write(TextRange range, std::string_view text, StyleId style);
  void replaceAll(std::string_view text, const std::function<void()>& fill);
  void changeStyle(const StyleChange& change);
  void defaultFont(FontSpec font);
  void resized() override { view_.resized(); }
  void tellText(Caret::Selection before, TextIs text);
  void tellSelection(Caret::Selection before);

  Document document_;
  Caret caret_;
  /// What it shows follows from the rest, and is worked out when somebody looks.
  mutable Viewport view_;
  bool locked_ = true;
  bool clickIsOver_ = false; ///< the next release belongs to a double click
};

} // namespace talvora
