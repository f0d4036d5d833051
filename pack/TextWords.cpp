// Cutting sentences into words.
#include "pack/TextWords.h"

#include "text/CharClass.h"
#include "text/Text.h"

#include <array>
#include <utility>

namespace talvora::pack {

namespace {

constexpr CharClass wordCharacters("[a-zA-Z']");
constexpr std::string_view sentenceEnds = ".?!:\"\x93";

constexpr std::array<std::pair<std::string_view, std::string_view>, 3> irregularNots = {
    {{"can't", "can"}, {"won't", "will"}, {"shan't", "shall"}}};
constexpr std::array<std::string_view, 7> shortened = {"n't", "'s",  "'m", "'re",
                                                       "'ve", "'ll", "'d"};

std::string withoutShortened(std::string word) {
  const std::string small = lower(word);
  for (const auto& [negated, verb] : irregularNots) {
    if (small == negated) return std::string(verb);
  }
  for (const std::string_view ending : shortened) {
    if (small.size() > ending.size() && small.ends_with(ending))
      return word.substr(0, word.size() - ending.size());
  }
  return word;
}

} // namespace

std::vector<TextWord> textWords(std::string_view sentence) {
  std::vector<TextWord> words;
  bool opens = true;
  std::size_t at = 0;
  while (at < sentence.size()) {
    if (!Letters.has(sentence[at])) {
      opens = opens || sentenceEnds.find(sentence[at]) != std::string_view::npos;
      ++at;
      continue;
    }
    std::size_t end = at;
    while (end < sentence.size() && wordCharacters.has(sentence[end]))
      ++end;
    std::string word(sentence.substr(at, end - at));
    while (word.back() == '\'')
      word.pop_back();
    words.push_back({withoutShortened(std::move(word)), opens});
    opens = false;
    at = end;
  }
  return words;
}

std::vector<std::string> plainWords(std::string_view text) {
  std::vector<std::string> words;
  for (const std::string& word : split(std::string(text), ' ')) {
    std::string plain;
    for (const char character : lower(word)) {
      if ((character >= 'a' && character <= 'z') || character == '\'') plain += character;
    }
    if (!plain.empty()) words.push_back(std::move(plain));
  }
  return words;
}

bool hasCapital(const TextWord& word) {
  return lower(word.text.front()) != word.text.front();
}

std::vector<std::string_view> sentencesOf(const ReadingText& text) {
  std::vector<std::string_view> sentences;
  for (const Paragraph& paragraph : text.paragraphs) {
    for (const SentencePair& pair : paragraph)
      sentences.emplace_back(pair.english);
  }
  return sentences;
}

} // namespace talvora::pack
