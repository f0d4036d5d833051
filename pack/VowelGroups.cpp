// Going through a spelling letter by letter.
#include "pack/VowelGroups.h"

#include "text/Text.h"

namespace talvora::pack {

bool isVowelLetter(char letter) {
  return std::string_view("aeiouy").find(letter) != std::string_view::npos;
}

std::vector<std::string> vowelGroupsOf(std::string_view spelling) {
  std::string word = lower(spelling);
  std::vector<std::string> groups;
  bool open = false;
  for (std::size_t at = 0; at < word.size(); ++at) {
    const bool glide = word[at] == 'y' && at + 1 < word.size() && isVowelLetter(word[at + 1]);
    const bool vowel = isVowelLetter(word[at]) && !glide;
    if (vowel && !open) groups.emplace_back();
    if (vowel) groups.back() += word[at];
    open = vowel;
  }
  const bool mute = word.size() > 2 && word.back() == 'e' && !groups.empty() &&
                    groups.back() == "e" && !isVowelLetter(word[word.size() - 2]) &&
                    groups.size() > 1;
  if (mute) groups.pop_back();
  return groups;
}

} // namespace talvora::pack
