// The guide as rich text.
#include "pack/Guide.h"

#include <gtest/gtest.h>

namespace talvora::pack {
namespace {

std::string body(std::string_view text, Problems& problems) {
  return compileGuide(text, "guide.txt", problems).substr(richTextOpening().size());
}

TEST(Guide, WritesEveryKindOfLine) {
  Problems problems;
  EXPECT_EQ(body("# T\n\n## H\n- b\np\n", problems),
            "\\pard\\qc\\b\\cf2\\fs56 T\\b0\\cf1\\fs40\\par\n"
            "\\pard\\ql\\b\\cf2\\fs46 H\\b0\\cf1\\fs40\\par\n"
            "\\pard\\ql\\pnlvlblt\\li360 b\\par\n"
            "\\pard\\ql p\\par\n}\n");
  EXPECT_TRUE(problems.none());
}

TEST(Guide, WritesSpansAndTheFontsBytes) {
  Problems problems;
  EXPECT_EQ(body("**Esc** và //đi//\n", problems),
            "\\pard\\ql \\b Esc\\b0  v\\'e0 \\i \\'f0i\\i0 \\par\n}\n");
}

TEST(Guide, OpensWithTheFontAndTheColours) {
  EXPECT_NE(richTextOpening().find("x1;"), std::string::npos);
  EXPECT_NE(richTextOpening().find("\\red0\\green0\\blue117;\\red113\\green57\\blue57;"),
            std::string::npos);
}

TEST(Guide, ReportsBadLettersAndOpenSpans) {
  Problems problems;
  static_cast<void>(body("ok\n- a **b** ñ\n**open\n", problems));
  ASSERT_EQ(problems.all().size(), 2U);
  EXPECT_EQ(describe(problems.all()[0]), "guide.txt:2:11: the text font has no byte for \"ñ\"");
  EXPECT_EQ(problems.all()[1].where.line, 3);
}

} // namespace
} // namespace talvora::pack
