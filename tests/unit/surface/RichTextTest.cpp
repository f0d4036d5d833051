#include "surface/RichText.h"

#include <gtest/gtest.h>

namespace talvora {
namespace {

const FontSpec Defaults{"x1", 10, false};

StyledText read(const std::string& rtf) {
  return readRichText(rtf, Defaults);
}

TEST(RichText, IsKnownByItsOpening) {
  EXPECT_TRUE(looksLikeRichText("{\\rtf1 text}"));
  EXPECT_FALSE(looksLikeRichText("plain"));
  EXPECT_FALSE(looksLikeRichText(""));
}

TEST(RichText, ReadsCharactersParagraphsAndTabs) {
  EXPECT_EQ(read("{\\rtf1 one\\tab two\\par\nthree\\line four\\'e0\\\\\\{\\}\\~}").text,
            "one\ttwo\rthree\rfour\xE0\\{}\xA0");
}

TEST(RichText, ReadsTheLookOfCharacters) {
  const StyledText text =
      read("{\\rtf1{\\fonttbl{\\f0 x1;}{\\f1\\fnil Other;}}{\\colortbl;\\red1\\green2\\blue3;}"
           "a\\b b\\b0\\i\\ul c\\i0\\ulnone\\cf1\\fs40\\f1 d}");
  EXPECT_EQ(text.text, "abcd");
  ASSERT_EQ(text.runs.size(), 4U);
  EXPECT_TRUE(text.runs[1].style.font.bold);
  EXPECT_TRUE(text.runs[2].style.italic);
  EXPECT_TRUE(text.runs[2].style.underline);
  EXPECT_EQ(text.runs[3].style.color, 0x030201U);
  EXPECT_EQ(text.runs[3].style.font.size, 20);
  EXPECT_EQ(text.runs[3].style.font.name, "Other");
  EXPECT_EQ(text.runs[0].style.font, Defaults);
}

TEST(RichText, GroupsEndTheirLook) {
  const StyledText text = read("{\\rtf1 a{\\b b}c\\plain d}");
  ASSERT_EQ(text.runs.size(), 3U);
  EXPECT_EQ(text.text, "abcd");
  EXPECT_FALSE(text.runs[2].style.font.bold);
}

TEST(RichText, ReadsTheLookOfParagraphs) {
  const StyledText text = read("{\\rtf1\\qc title\\par\\pard\\li285{\\pntext -}{\\*\\pn\\pnlvlblt}"
                               "item\\par\\pard\\qr right}");
  ASSERT_EQ(text.paragraphs.size(), 3U);
  EXPECT_EQ(text.text, "title\ritem\rright");
  EXPECT_EQ(text.paragraphs[0].style.align, Alignment::Centred);
  EXPECT_EQ(text.paragraphs[1].style.indent, 285);
  EXPECT_TRUE(text.paragraphs[1].style.bullet);
  EXPECT_EQ(text.paragraphs[2].style.align, Alignment::Right);
  EXPECT_FALSE(text.paragraphs[2].style.bullet);
}

TEST(RichText, SkipsWhatHoldsNoText) {
  EXPECT_EQ(
      read("{\\rtf1{\\info secret}{\\*\\unknown hidden}{\\stylesheet x}\\unknown7 shown}").text,
      "shown");
}

TEST(RichText, DamagedInputGivesWhatCouldBeRead) {
  EXPECT_EQ(read("{\\rtf1 a}}}b").text, "ab");
  EXPECT_EQ(read("{\\rtf1 a\\'").text, "a");
  EXPECT_EQ(read("{\\rtf1 a\\'g1b").text, "ag1b");
  EXPECT_EQ(read("{\\rtf1 a\\").text, "a");
  EXPECT_EQ(read("{\\rtf1\\fs999999999999999999999 a").text, "a");
  EXPECT_EQ(read("").text, "");
}

TEST(RichText, DeepGroupsDoNotExhaustAnything) {
  const std::string deep(100000, '{');
  EXPECT_EQ(read("{\\rtf1 a" + deep + "b" + std::string(100000, '}') + "c").text, "abc");
}

TEST(RichText, EndsWithoutAParagraphBeyondWhatIsWritten) {
  EXPECT_EQ(read("{\\rtf1 guide\\par}").text, "guide\r");
}

TEST(RichText, GroupsEndTheLookOfTheirParagraphs) {
  const StyledText text = read("{\\rtf1{\\qc title\\par}text\\par}");
  ASSERT_EQ(text.paragraphs.size(), 3U);
  EXPECT_EQ(text.paragraphs[0].style.align, Alignment::Centred);
  EXPECT_EQ(text.paragraphs[1].style.align, Alignment::Left);
}

TEST(RichText, ABulletOutsideTheTextMarksNoParagraph) {
  EXPECT_FALSE(
      read("{\\rtf1{\\stylesheet{\\pnlvlblt x}\\pnlvlblt}text}").paragraphs[0].style.bullet);
  EXPECT_TRUE(read("{\\rtf1{\\pn\\pnlvlblt}text}").paragraphs[0].style.bullet);
}

TEST(RichText, BytesOfAPictureAreNoBraces) {
  EXPECT_EQ(read("{\\rtf1 a{\\pict\\bin3 }}}}b}").text, "ab");
  EXPECT_EQ(read("{\\rtf1 a\\bin99 bcd").text, "a");
  EXPECT_EQ(read("{\\rtf1 a\\bin-5 b}").text, "ab");
}

TEST(RichText, AFontNameWithoutEndIsCut) {
  const StyledText text = read("{\\rtf1{\\fonttbl{\\f0 " + std::string(5000, 'n') + ";}}\\f0 a}");
  EXPECT_LT(text.runs.at(0).style.font.name.size(), 100U);
}

TEST(RichText, RunsAndParagraphsCoverTheTextInOrder) {
  const StyledText text = read("{\\rtf1\\b a\\par\\b0 b{\\i c\\par}\\par d}");
  int at = 0;
  for (const StyledRun& run : text.runs) {
    EXPECT_EQ(run.from, at);
    EXPECT_LT(run.from, run.to);
    at = run.to;
  }
  EXPECT_EQ(at, static_cast<int>(text.text.size()));
  at = 0;
  for (const StyledParagraph& paragraph : text.paragraphs) {
    EXPECT_EQ(paragraph.from, at);
    at = paragraph.to;
  }
  EXPECT_EQ(at, static_cast<int>(text.text.size()));
  EXPECT_EQ(text.paragraphs.size(), 4U);
}

} // namespace
} // namespace talvora
