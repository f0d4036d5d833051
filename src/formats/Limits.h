// How much the stores hold: slots that every pack fills, and the most that the program's tables
// take. Compiler and program read them here, so that they cannot disagree.
#pragma once

namespace talvora::limit {

inline constexpr int ReadingTexts = 408;
inline constexpr int SpeakingTexts = 2025;
inline constexpr int AnalysedTexts = 14; ///< the first reading texts
inline constexpr int Analyses = 11;      ///< the analysed texts have them from the fourth on
inline constexpr int Lessons = 357;
inline constexpr int Banks = 9;
inline constexpr int ItemSections = Banks + Lessons;
inline constexpr int ListeningUnits = 9;
/// The store has one more than can be heard, at its end.
inline constexpr int ListeningItems = 556;
inline constexpr int HeardListeningItems = ListeningItems - 1;
inline constexpr int Recordings = 9;
inline constexpr int FirstRecordedText = 400; ///< recording N speaks the N-th text from here on
inline constexpr int Words = 385082;
inline constexpr int SideEntries = 12238;

/// Sentence marks of a text; the one ahead of the title and the closing one take two.
inline constexpr int SentenceMarks = 200;
inline constexpr int Sentences = SentenceMarks - 2;
/// Marks of a recording; the compiler writes one a sentence.
inline constexpr int RecordingMarks = 300;
/// Places in the list of a section; the positions of a store are read into as many.
inline constexpr int ListLines = 4053;
inline constexpr int HeadingsOfList = 40;
inline constexpr int Blanks = 1000;    ///< of an item
inline constexpr int Stretches = 1000; ///< of an analysed text
/// Bytes that are read of a text whose end mark is lost, and of a title.
inline constexpr int TextBytes = 32767;
inline constexpr int TitleBytes = 1000;

static_assert(2 * SpeakingTexts + 1 <= ListLines, "the positions of the longest store fit");
static_assert(2 * ReadingTexts + 1 <= ListLines);
static_assert(FirstRecordedText + Recordings - 1 == ReadingTexts, "the last texts are recorded");
static_assert(Analyses <= AnalysedTexts);
static_assert(Sentences <= RecordingMarks);

} // namespace talvora::limit
