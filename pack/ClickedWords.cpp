// Cutting text at the characters that bound a clicked word.
#include "pack/ClickedWords.h"

#include "pack/CourseItems.h"
#include "pack/StreamText.h"
#include "text/CharClass.h"

#include <algorithm>
#include <iterator>

namespace talvora::pack {

namespace {

constexpr std::string_view bounds = " ,;:.?!<>()/\\+=*_|\"\r\t\x93\x94\xA0";
constexpr CharClass kept("[A-Z,a-z,0-9,',-]");
constexpr CharClass digits("[0-9]");

/// "S", "V-ing": what a formula says instead of a word; "-ness", "'ve": a piece of one.
bool isNotation(std::string_view word) {
  if (word.starts_with("V-") || !Letters.has(word.front())) return true;
  return word.size() == 1 && word != "a" && word != "A" && word != "I";
}

void appendWord(std::vector<std::string>& words, std::string_view stretch) {
  // With its accent "café" is looked up without its last letter, and "phép" is no English.
  if (std::any_of(stretch.begin(), stretch.end(), isVietnameseLetter)) return;
  std::string word;
  std::copy_if(stretch.begin(), stretch.end(), std::back_inserter(word),
               [](char character) { return kept.has(character); });
  while (!word.empty() && !Letters.has(word.back()))
    word.pop_back();
  const bool hasDigit = std::any_of(word.begin(), word.end(), [](char c) { return digits.has(c); });
  if (!word.empty() && !hasDigit && !isNotation(word)) words.push_back(std::move(word));
}

void append(std::vector<std::string>& words, std::vector<std::string> more) {
  std::move(more.begin(), more.end(), std::back_inserter(words));
}

} // namespace

std::vector<std::string> clickedWords(std::string_view text) {
  std::vector<std::string> words;
  if (isVietnamese(text)) return words;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of(bounds), text.size());
    appendWord(words, text.substr(0, end));
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return words;
}

std::vector<std::string> clickedWords(const MarkedLine& line) {
  std::vector<std::string> words;
  const std::string_view text = line.text;
  const std::size_t blue = line.blueFrom.value_or(text.size());
  for (const auto& [from, to] : {std::pair(std::size_t{0}, blue), std::pair(blue, text.size())}) {
    if (!isVietnamese(text.substr(from, to - from))) {
      append(words, clickedWords(text.substr(from, to - from)));
      continue;
    }
    for (std::size_t at = from; at < to;) {
      std::size_t end = at + 1;
      while (end < to && line.red[end] == line.red[at])
        ++end;
      if (line.red[at]) append(words, clickedWords(text.substr(at, end - at)));
      at = end;
    }
  }
  return words;
}

} // namespace talvora::pack
