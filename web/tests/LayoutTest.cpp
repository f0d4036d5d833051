// Lines break in the browser where they break on the desktop: every line of the course, in the
// fonts and widths of the pages, whole and in pieces of different looks.
#include "FaceMeasures.h"
#include "core/WebLayout.h"
#include "desktop/Fonts.h"
#include "desktop/QtLineLayout.h"
#include "text/GlyphMap.h"

#include <QGuiApplication>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <vector>

namespace talvora::web {
namespace {

/// Caret places may differ by what rounding leaves.
constexpr int Tolerance = 2; // twips
/// Of the dictionary's many lines each so-many-th is taken.
constexpr int DictionaryStep = 25;

const Faces& faces() {
  static const Faces all = [] {
    const QByteArray bytes = faceMeasures();
    return Faces({reinterpret_cast<const unsigned char*>(bytes.data()),
                  static_cast<std::size_t>(bytes.size())});
  }();
  return all;
}

/// The bytes that show a line of UTF-8; what the font has no byte for is left out.
std::string x1Line(std::string_view utf8) {
  std::string line;
  for (std::size_t at = 0; at < utf8.size();) {
    const auto letter = nextCodePoint(utf8, at);
    if (!letter) break;
    if (*letter == '\t') line += '\t';
    if (const auto byte = *letter < ' ' ? std::nullopt : x1Byte(*letter)) line += *byte;
  }
  return line;
}

void addLines(const std::filesystem::path& file, int step, std::vector<std::string>& lines) {
  std::ifstream in(file);
  int number = 0;
  for (std::string line; std::getline(in, line);) {
    if (number++ % step == 0 && !line.empty()) lines.push_back(x1Line(line));
  }
}

const std::vector<std::string>& courseLines() {
  static const std::vector<std::string> all = [] {
    std::vector<std::string> lines;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(TALVORA_CONTENT)) {
      if (!entry.is_regular_file()) continue;
      const bool dictionary = entry.path().string().find("/dictionary/") != std::string::npos;
      addLines(entry.path(), dictionary ? DictionaryStep : 1, lines);
    }
    std::sort(lines.begin(), lines.end());
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    return lines;
  }();
  return all;
}

class Layouts : public testing::Test {
 protected:
  /// Lays a paragraph out both ways; tells of the first thing that differs.
  testing::AssertionResult alike(const ParagraphView& view) {
    const ParagraphShape desktop = qt_.layOut(view);
    const ParagraphShape web = web_.layOut(view);
    std::string shown;
    for (const char byte : view.text)
      appendUtf8(shown, x1Letter(byte));
    if (desktop.lines.size() != web.lines.size()) {
      return testing::AssertionFailure()
             << shown << ": " << desktop.lines.size() << " lines, here " << web.lines.size();
    }
    for (std::size_t line = 0; line < desktop.lines.size(); ++line) {
      const LineShape& one = desktop.lines[line];
      const LineShape& other = web.lines[line];
      if (one.from != other.from || one.top != other.top || one.height != other.height) {
        return testing::AssertionFailure()
               << shown << ": line " << line << " from " << one.from << " at " << one.top
               << " high " << one.height << ", here from " << other.from << " at " << other.top
               << " high " << other.height;
      }
    }
    for (int offset = 0; offset <= static_cast<int>(view.text.size()); ++offset) {
      const int x = qt_.placeOf(view, offset).x;
      const int here = web_.placeOf(view, offset).x;
      if (std::abs(x - here) > Tolerance) {
        return testing::AssertionFailure()
               << shown << ": the caret " << offset << " at " << x << ", here " << here;
      }
    }
    return testing::AssertionSuccess();
  }

  /// Expects that of the lines at most so many are not alike; the first few are told.
  template <class MakeView>
  void expectAlike(std::size_t most, MakeView makeView) {
    std::size_t different = 0;
    std::string first;
    for (const std::string& line : courseLines()) {
      const auto result = makeView(line);
      if (result) continue;
      if (++different <= 5) first += result.message() + std::string("\n");
    }
    EXPECT_LE(different, most) << "of " << courseLines().size() << ":\n" << first;
  }

  QtLineLayout qt_;
  WebLineLayout web_{faces()};
};

TEST_F(Layouts, BreakEveryLineOfTheCourseAlike) {
  CharStyle style;
  style.font = {"x1", 13.5, false};
  const StyleRun run{0, &style};
  // Two sums of fractions may fall on either side of an edge, and a face may lend another one a
  // letter: 4 of 65,694 lines when this was measured.
  expectAlike(courseLines().size() / 10'000, [&](const std::string& line) {
    return alike({line, {&run, 1}, {Alignment::Left, 285.1654, false}, style.font, 9000});
  });
}

TEST_F(Layouts, BreakLinesInPiecesOfDifferentLooksAlike) {
  std::mt19937 random(5);
  // Pieces that begin inside a word, as no page has them, may let a line break elsewhere: 11 of
  // 51,905 did when this was measured.
  expectAlike(courseLines().size() / 2000, [&](const std::string& line) {
    std::vector<CharStyle> styles(1 + random() % 4);
    for (CharStyle& each : styles) {
      each.font = {"x1", 12 + static_cast<double>(random() % 4) * 4.5, random() % 2 == 0};
      each.italic = random() % 4 == 0;
      each.color = random() % 2;
    }
    std::vector<StyleRun> runs;
    for (std::size_t at = 0; at < styles.size(); ++at) {
      const int from = static_cast<int>(at * line.size() / styles.size());
      if (!runs.empty() && runs.back().from == from) continue;
      runs.push_back({from, &styles[at]});
    }
    const ParagraphStyle style{static_cast<Alignment>(random() % 3),
                               static_cast<double>(random() % 600), random() % 5 == 0};
    const int width = 3000 + static_cast<int>(random() % 9000);
    return alike({line, runs, style, styles.front().font, width});
  });
}

} // namespace
} // namespace talvora::web

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QGuiApplication application(argc, argv);
  talvora::loadFonts();
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
