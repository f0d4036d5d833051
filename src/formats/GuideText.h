// The guide text, reading text 2: the places by which it answers, as carets from 0. Its source
// marks what must lie there, and the compiler checks it.
#pragma once

namespace talvora::guidetext {

inline constexpr int Number = 2;
/// Between these two a click shows the message of the sentence; ahead of them it looks words up.
inline constexpr int SentencesFrom = 699;
inline constexpr int SentencesTo = 986;
/// From there up to here words again; behind that nothing answers.
inline constexpr int WordsTo = 1142;

/// What is greyed in the list of the analysed texts: the line of the guide text, which has no
/// analysis, with its tabs, behind the one line ahead of it.
inline constexpr int GreyedFrom = 20;
inline constexpr int GreyedTo = 47;

static_assert(SentencesFrom < SentencesTo && SentencesTo < WordsTo);
static_assert(GreyedFrom < GreyedTo);

} // namespace talvora::guidetext
