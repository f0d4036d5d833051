#include "pack/texts/SentenceCutter.h"

#include "pack/StreamText.h"
#include "text/CharClass.h"
#include "text/Contains.h"
#include "text/Text.h"

#include <array>

namespace talvora::pack {

namespace {

constexpr CharClass closingMarks("[.?!]");
constexpr CharClass capitals("[A-Z]");
constexpr CharClass smallLetters("[a-z]");

// Words whose point belongs to them, in small letters.
constexpr std::array<std::string_view, 27> shortened = {
    "mr",  "mrs", "ms",  "dr",  "prof", "st", "jr",     "sr",   "capt",
    "col", "gen", "lt",  "rev", "hon",  "vs", "etc",    "e.g",  "i.e",
    "no",  "vol", "fig", "mt",  "p",    "pp", "approx", "dept", "ave"};

/// Quotation marks and brackets that close behind a sentence's mark.
bool isCloser(std::string_view text, std::size_t at) {
  static const std::string closers = ownText("”’") + "\"')";
  return at < text.size() && closers.find(text[at]) != std::string::npos;
}

/// The word that ends just ahead of a place, in small letters.
std::string wordAhead(std::string_view text, std::size_t end) {
  std::size_t start = end;
  while (start > 0 && (Letters.has(text[start - 1]) || text[start - 1] == '.'))
    --start;
  return lower(text.substr(start, end - start));
}

/// Whether the point at a place belongs to its word.
bool isOfWord(std::string_view text, std::size_t point) {
  const std::string word = wordAhead(text, point);
  const bool isInitial =
      word.size() == 1 && point > 0 && capitals.has(text[point - 1]) && word != "i";
  return isInitial || contains(shortened, word);
}

/// Where the sentence that begins at `from` ends.
std::size_t sentenceEnd(std::string_view text, std::size_t from) {
  for (std::size_t at = from; at < text.size(); ++at) {
    if (!closingMarks.has(text[at])) continue;
    std::size_t end = at + 1;
    while (end < text.size() && closingMarks.has(text[end]))
      ++end;
    const bool isPoint = text[at] == '.' && end == at + 1;
    while (isCloser(text, end))
      ++end;
    const bool isLast = end >= text.size();
    if (isLast) return end;
    const std::size_t next = text.find_first_not_of(' ', end);
    const bool goesOn =
        next == end || (next != std::string_view::npos && smallLetters.has(text[next]));
    if (goesOn || (isPoint && isOfWord(text, at))) {
      at = end - 1;
      continue;
    }
    return end;
  }
  return text.size();
}

/// A place to cut a sentence that is too long: behind a mark of a clause, else at a blank.
std::size_t cutIn(std::string_view sentence) {
  const std::string_view part = sentence.substr(0, LongestOwnSentence);
  for (const std::string_view mark : {";", ":", ","}) {
    const std::size_t at = part.rfind(std::string(mark) + " ");
    if (at != std::string_view::npos && at > LongestOwnSentence / 4) return at + 1;
  }
  const std::size_t blank = part.rfind(' ');
  return blank == std::string_view::npos || blank == 0 ? part.size() : blank;
}

void append(std::vector<std::string>& sentences, std::string_view sentence) {
  sentence = trim(sentence);
  while (sentence.size() > LongestOwnSentence) {
    const std::size_t cut = cutIn(sentence);
    sentences.emplace_back(trim(sentence.substr(0, cut)));
    sentence = trim(sentence.substr(cut));
  }
  if (!sentence.empty()) sentences.emplace_back(sentence);
}

} // namespace

std::vector<std::string> sentencesIn(std::string_view paragraph) {
  std::vector<std::string> sentences;
  std::size_t from = 0;
  while (from < paragraph.size()) {
    const std::size_t end = sentenceEnd(paragraph, from);
    append(sentences, paragraph.substr(from, end - from));
    from = end;
  }
  return sentences;
}

} // namespace talvora::pack
