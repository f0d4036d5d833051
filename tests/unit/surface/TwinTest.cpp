// A surface against a naive twin that keeps a style for every character, through thousands of
// random operations.
#include "surface/Surface.h"

#include "NotingHost.h"
#include "platform/scripted/FixedLayout.h"
#include "text/Bytes.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>

namespace talvora {
namespace {

/// What a surface is to do, written down without regard to cost.
class Twin {
 public:
  std::string text;
  std::vector<CharStyle> styles;
  std::vector<StyledParagraph> paragraphs = {{}};
  std::size_t start = 0;
  std::size_t length = 0;

  void setText(const std::string& all) {
    text = all;
    styles.assign(all.size(), normal);
    paragraphs = cut({}, 0, 0, 0);
    for (auto& paragraph : paragraphs)
      paragraph.style = {};
    start = length = 0;
    pending.reset();
  }
  void placeCaret(std::size_t caret) {
    start = caret;
    length = 0;
    pending.reset();
  }
  void select(std::size_t count) {
    if (count != length) pending.reset();
    length = count;
  }
  void write(const std::string& added) {
    const CharStyle style = selectionStyle();
    replace(start, start + length, "", style);
    replace(start, start, added, style);
    start += added.size();
    length = 0;
  }
  /// Replaces a range, and caret and selection stay with their text.
  void writeRange(std::size_t from, std::size_t to, const std::string& added) {
    const CharStyle style = from < text.size() ? styles[from] : normal;
    const auto moved = [&](std::size_t caret) {
      if (caret <= from) return caret;
      return caret < to ? std::min(caret, from + added.size()) : caret + added.size() - (to - from);
    };
    const std::size_t end = moved(start + length);
    replace(from, to, "", style);
    replace(from, from, added, style);
    if (from < to || !added.empty()) pending.reset();
    start = moved(start);
    length = end - start;
  }
  template <class Edit>
  void restyle(Edit edit) {
    if (length == 0) {
      CharStyle style = selectionStyle();
      edit(style);
      pending = style;
    }
    for (std::size_t at = start; at < start + length; ++at)
      edit(styles[at]);
  }
  template <class Edit>
  void restyleParagraphs(Edit edit) {
    const std::size_t last = length == 0 ? start : start + length - 1;
    for (std::size_t each = paragraphOf(start); each <= paragraphOf(last); ++each) {
      edit(paragraphs[each].style);
    }
  }
  [[nodiscard]] CharStyle selectionStyle() const {
    if (length > 0) return styles[start];
    if (pending) return *pending;
    if (text.empty()) return normal;
    const bool opens = static_cast<std::size_t>(paragraphs[paragraphOf(start)].from) == start;
    return opens && start < text.size() ? styles[start] : styles[start - 1];
  }
  [[nodiscard]] std::size_t paragraphOf(std::size_t caret) const {
    std::size_t found = 0;
    while (found + 1 < paragraphs.size() &&
           static_cast<std::size_t>(paragraphs[found + 1].from) <= caret) {
      ++found;
    }
    return found;
  }

  CharStyle normal;

 private:
  void replace(std::size_t from, std::size_t to, const std::string& added, const CharStyle& style) {
    if (from == to && added.empty()) return;
    const auto before = paragraphs;
    const std::size_t holder = paragraphOf(from);
    const bool atStart = static_cast<std::size_t>(before[holder].from) == from;
    const std::size_t model = atStart ? holder : paragraphOf(to);
    text.replace(from, to - from, added);
    const auto at = static_cast<std::ptrdiff_t>(from);
    styles.erase(styles.begin() + at, styles.begin() + static_cast<std::ptrdiff_t>(to));
    styles.insert(styles.begin() + at, added.size(), style);
    paragraphs = cut(before, from, to, added.size());
    for (auto& paragraph : paragraphs) {
      const auto place = static_cast<std::size_t>(paragraph.from);
      if (place > 0 && place >= from && place <= from + added.size()) {
        paragraph.style = before[model].style;
      }
    }
  }

  /// The paragraphs of the text as it is now; those outside an edit keep their style.
  [[nodiscard]] std::vector<StyledParagraph> cut(const std::vector<StyledParagraph>& before,
                                                 std::size_t from, std::size_t to,
                                                 std::size_t added) const {
    std::vector<StyledParagraph> all = {{}};
    for (std::size_t at = 1; at <= text.size(); ++at) {
      const bool pair = at < text.size() && text[at - 1] == '\r' && text[at] == '\n';
      if (pair || (text[at - 1] != '\r' && text[at - 1] != '\n')) continue;
      all.back().to = static_cast<int>(at);
      all.push_back({static_cast<int>(at), 0, {}});
    }
    all.back().to = static_cast<int>(text.size());
    for (auto& paragraph : all) {
      const auto place = static_cast<std::size_t>(paragraph.from);
      const bool moved = place > 0 && place >= from + added;
      const std::size_t old = moved ? place - added + to - from : place;
      for (const auto& each : before) {
        if (static_cast<std::size_t>(each.from) == old) paragraph.style = each.style;
      }
    }
    return all;
  }

  std::optional<CharStyle> pending;
};

class TwinTest : public testing::TestWithParam<unsigned> {
 protected:
  TwinTest() : random_(GetParam()) {
    surface.Width(6000);
    surface.Height(1500);
    surface.FontSize(10);
    surface.Locked(false);
    twin.normal.font = surface.Font();
  }

  std::size_t below(std::size_t limit) { return random_() % (limit + 1); }

  void step() {
    switch (below(11)) {
    case 0:
    case 1:
      placeCaret();
      break;
    case 2:
      select();
      break;
    case 3:
    case 4:
    case 5:
      write();
      break;
    case 6:
    case 7:
      restyle();
      break;
    case 8:
      restyleParagraphs();
      break;
    case 9:
      writeRange();
      break;
    case 10:
      restyleRange();
      break;
    default:
      press();
      break;
    }
    if (twin.text.size() > 500) setText();
  }

  void compare() {
    surface.Check();
    ASSERT_EQ(surface.Text(), twin.text);
    ASSERT_EQ(surface.SelStart(), static_cast<int>(twin.start));
    ASSERT_EQ(surface.SelLength(), static_cast<int>(twin.length));
    ASSERT_EQ(surface.SelColor(), twin.selectionStyle().color);
    ASSERT_EQ(surface.SelBold(), twin.selectionStyle().font.bold);
    ASSERT_EQ(surface.paragraphs(), twin.paragraphs);
    for (const StyledRun& run : surface.runs()) {
      for (int at = run.from; at < run.to; ++at) {
        ASSERT_EQ(run.style, twin.styles[static_cast<std::size_t>(at)]) << "caret " << at;
      }
    }
    ASSERT_EQ(surface.GetLineFromChar(surface.TextLength()), lastLine());
    const ScrollPlace scroll = surface.scroll();
    ASSERT_LT(scroll.paragraph, surface.paragraphCount());
  }

  NotingHost host;
  FixedLayout layout;
  Surface surface{"R", host, layout};
  Twin twin;

 private:
  void setText() {
    const std::string text = "one\r\ntwo\rthree\n";
    surface.Text(text);
    twin.setText(text);
  }
  void placeCaret() {
    const std::size_t caret = below(twin.text.size());
    surface.SelStart(static_cast<int>(caret));
    twin.placeCaret(caret);
  }
  void select() {
    const std::size_t count = below(std::min<std::size_t>(twin.text.size() - twin.start, 15));
    surface.SelLength(static_cast<int>(count));
    twin.select(count);
  }
  void write() {
    const std::vector<std::string> pieces = {"a",          "bc", "\r", "\n",     "\r\n",
                                             "some words", "",   "\t", "x\ry\r", "\n\r"};
    const std::string piece = pieces[below(pieces.size() - 1)];
    surface.SelText(piece);
    twin.write(piece);
  }
  /// The lines of all paragraphs, each laid out for it.
  [[nodiscard]] int lastLine() const {
    int lines = 0;
    for (int each = 0; each < surface.paragraphCount(); ++each)
      lines += layout.lineCount(surface.paragraph(each).view());
    return lines - 1;
  }
  void writeRange() {
    const std::size_t from = below(twin.text.size());
    const std::size_t to = from + below(std::min<std::size_t>(twin.text.size() - from, 15));
    const std::vector<std::string> pieces = {"", "a", "\r", "\n", "x\ry", "more words"};
    const std::string piece = pieces[below(pieces.size() - 1)];
    surface.write({static_cast<int>(from), static_cast<int>(to)}, piece);
    twin.writeRange(from, to, piece);
  }
  void restyleRange() {
    const std::size_t from = below(twin.text.size());
    const std::size_t to = from + below(twin.text.size() - from);
    const double size = below(1) == 0 ? 10 : 30;
    surface.format({static_cast<int>(from), static_cast<int>(to)}, {.fontSize = size});
    for (std::size_t at = from; at < to; ++at)
      twin.styles[at].font.size = size;
  }
  void restyle() {
    const auto colour = static_cast<Colour>(below(2));
    const bool on = below(1) == 1;
    switch (below(2)) {
    case 0:
      surface.SelColor(colour);
      twin.restyle([&](CharStyle& style) { style.color = colour; });
      break;
    case 1:
      surface.SelBold(on);
      twin.restyle([&](CharStyle& style) { style.font.bold = on; });
      break;
    default:
      surface.SelItalic(on);
      twin.restyle([&](CharStyle& style) { style.italic = on; });
      break;
    }
  }
  void restyleParagraphs() {
    const auto alignment = static_cast<Alignment>(below(2));
    if (below(1) == 0) {
      surface.SelAlignment(alignment);
      twin.restyleParagraphs([&](ParagraphStyle& style) { style.align = alignment; });
    } else {
      surface.SelIndent(100);
      twin.restyleParagraphs([](ParagraphStyle& style) { style.indent = 100; });
    }
  }
  void press() {
    const char typed = "ab\r\t"[below(3)];
    surface.pressKey(asc(typed), 0, typed);
    twin.write(std::string(1, typed));
  }

  std::mt19937 random_;
};

TEST_P(TwinTest, EqualsASurfaceAfterEveryStep) {
  for (int count = 0; count < 2000; ++count) {
    step();
    compare();
    ASSERT_FALSE(HasFatalFailure()) << "step " << count;
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, TwinTest, testing::Values(1U, 2U, 3U, 4U));

} // namespace
} // namespace talvora
