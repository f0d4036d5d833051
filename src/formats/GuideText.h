// The guide text, reading text 2: the places by which it answers, as carets from 0. The source
// marks the paragraph whose sentences must lie between them, and the compiler checks it.
#pragma once

namespace talvora::guidetext {

inline constexpr int Number = 2;
/// Between these two a click shows the message of the sentence; ahead of them it looks words up.
inline constexpr int SentencesFrom = 699;
inline constexpr int SentencesTo = 986;
/// From there up to here words again; behind that nothing answers.
inline constexpr int WordsTo = 1142;

static_assert(SentencesFrom < SentencesTo && SentencesTo < WordsTo);

} // namespace talvora::guidetext
