#include "exercises/WordOrder.h"

#include "text/CharClass.h"
#include "text/Text.h"

#include <algorithm>
#include <utility>

namespace talvora {

namespace {

constexpr CharClass Kept("[a-zA-Z ']");
/// A sentence of one word repeated has no other order; trying ends here.
constexpr int MostRounds = 100;

void swapAtRandom(std::vector<std::string>& words, Random& random) {
  const int m = static_cast<int>(words.size()) - 1;
  random.seedFromClock();
  for (int swap = 0; swap < 2 * m; ++swap) {
    const auto a = static_cast<std::size_t>(random.upTo(m));
    const auto b = static_cast<std::size_t>(random.upTo(m));
    if (a != b) std::swap(words[a], words[b]);
  }
}

} // namespace

std::string lineOf(std::string_view text) {
  std::string line;
  std::copy_if(text.begin(), text.end(), std::back_inserter(line),
               [](char character) { return Kept.has(character); });
  return line;
}

std::string shuffledLine(std::string_view sentence, Random& random) {
  std::vector<std::string> words = split(sentence, ' ');
  const auto startsAsBefore = [&] { return sentence.starts_with(words[0] + " " + words[1]); };
  for (int round = 0; words.size() > 1 && round < MostRounds; ++round) {
    swapAtRandom(words, random);
    if (!startsAsBefore()) break;
  }
  std::string joined;
  for (const std::string& word : words)
    joined += word + " ";
  return lineOf(joined);
}

int rightBeginning(std::string_view model, std::string_view line) {
  std::size_t at = 0;
  int wholeWords = 0;
  while (at < line.size() && at < model.size() && lower(model[at]) == lower(line[at])) {
    ++at;
    if (model[at - 1] == ' ') wholeWords = static_cast<int>(at);
  }
  // The model has no ending blank, so only a finished line differs at its very last place.
  return at + 1 == line.size() ? static_cast<int>(line.size()) : wholeWords;
}

} // namespace talvora
