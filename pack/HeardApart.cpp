// Words by the phones of a voice.
#include "pack/HeardApart.h"

#include "pack/Lexicon.h"
#include "pack/Message.h"
#include "pack/TextWords.h"
#include "pack/WordPhones.h"

#include <algorithm>
#include <array>
#include <span>
#include <utility>
#include <vector>

namespace talvora::pack {

namespace {

using Sounds = std::pair<std::string_view, std::string_view>;

/// Sounds that a voice hardly keeps apart: over four pairs of words the distance is less than one
/// and a half times that of one word from itself at another speed (docs/voices.md).
constexpr std::array<Sounds, 6> likeOfRms = {
    {{"s", "z"}, {"ch", "sh"}, {"n", "ng"}, {"b", "v"}, {"f", "v"}, {"uh", "uw"}}};
constexpr std::array<Sounds, 5> likeOfSlt = {
    {{"b", "v"}, {"b", "p"}, {"ch", "sh"}, {"s", "z"}, {"uh", "uw"}}};

bool soundAlike(const std::string& first, const std::string& second, Speaker speaker) {
  const std::span<const Sounds> alike =
      speaker == Speaker::Rms ? std::span<const Sounds>(likeOfRms) : likeOfSlt;
  return std::any_of(alike.begin(), alike.end(), [&](const auto& pair) {
    return (pair.first == first && pair.second == second) ||
           (pair.first == second && pair.second == first);
  });
}

// "can" is said in full, so that only a stop ahead of the next word would tell it from "can't".
bool isCanAndCant(const std::string& first, const std::string& second) {
  return (first == "can" && second == "can't") || (first == "can't" && second == "can");
}

bool wordsSoundAlike(const std::string& first, const std::string& second, Speaker speaker) {
  if (isCanAndCant(first, second)) return true;
  // Without a lexicon nobody can tell.
  if (!hasLexicon()) return false;
  const auto left = wordPhones(first);
  const auto right = wordPhones(second);
  if (left.size() != right.size()) return false;
  for (std::size_t at = 0; at < left.size(); ++at) {
    if (left[at] != right[at] && !soundAlike(left[at], right[at], speaker)) return false;
  }
  return true;
}

} // namespace

std::string notHeardApart(std::string_view heard, std::string_view other, Speaker speaker) {
  const auto left = plainWords(heard);
  const auto right = plainWords(other);
  if (left.size() != right.size()) return {};
  std::string pairs;
  for (std::size_t at = 0; at < left.size(); ++at) {
    if (left[at] == right[at]) continue;
    if (!wordsSoundAlike(left[at], right[at], speaker)) return {};
    pairs += (pairs.empty() ? "" : ", ") + left[at] + "/" + right[at];
  }
  if (pairs.empty()) return pairs;
  return said("the voice of {} does not keep {} apart",
              SpeakerNames.at(static_cast<std::size_t>(speaker)), pairs);
}

} // namespace talvora::pack
