// Recognition of key words.
#include "pack/ItemKeys.h"

#include "pack/NearestName.h"
#include "text/CharClass.h"
#include "text/Text.h"

#include <algorithm>
#include <array>

namespace talvora::pack {

namespace {

struct NamedKey {
  ItemKey key;
  std::string_view word;
};

constexpr std::array<NamedKey, 6> keys = {{{ItemKey::Item, "item"},
                                           {ItemKey::Id, "id"},
                                           {ItemKey::About, "about"},
                                           {ItemKey::Hints, "hints"},
                                           {ItemKey::Explain, "explain"},
                                           {ItemKey::See, "see"}}};
constexpr CharClass digits("[0-9]");

/// "She:" opens a line of a dialogue: a short key is only missed by its case.
std::size_t missAllowed(std::string_view word) {
  if (word.size() <= 3) return 0;
  return word.size() == 4 ? 1 : 2;
}

/// The word and the number ahead of a colon.
struct Beginning {
  std::string_view word;
  std::string_view number;
};

std::optional<Beginning> beginningOf(std::string_view text) {
  std::size_t end = 0;
  while (end < text.size() && Letters.has(text[end]))
    ++end;
  const std::string_view number = trim(text.substr(end));
  const bool counts = std::all_of(number.begin(), number.end(),
                                  [](char character) { return digits.has(character); });
  if (end == 0 || !counts) return std::nullopt;
  return Beginning{text.substr(0, end), number};
}

bool isExact(ItemKey key, std::string_view line, std::size_t colon, const Beginning& beginning) {
  if (beginning.word != wordOf(key)) return false;
  if (key == ItemKey::Explain) return colon + 1 == line.size();
  return beginning.number.empty() && colon == beginning.word.size() &&
         line.substr(colon + 1).starts_with(' ');
}

} // namespace

std::string_view wordOf(ItemKey key) {
  const auto found =
      std::find_if(keys.begin(), keys.end(), [&](const NamedKey& each) { return each.key == key; });
  return found == keys.end() ? "" : found->word;
}

std::optional<KeyLine> keyLineOf(std::string_view line) {
  const std::size_t colon = std::min(line.find(':'), line.size());
  const std::string_view written = line.substr(0, colon);
  if (written.starts_with(wordOf(ItemKey::Explain)) && colon + 1 == line.size())
    return KeyLine{ItemKey::Explain, true, written};
  const auto beginning = beginningOf(written);
  if (!beginning) return std::nullopt;
  const auto isMeant = [&](const NamedKey& key) {
    return lettersApart(beginning->word, key.word) <= missAllowed(key.word);
  };
  const auto found = std::find_if(keys.begin(), keys.end(), isMeant);
  if (colon == line.size()) {
    // Without a colon only "explain 2" by itself is no text.
    if (beginning->word != wordOf(ItemKey::Explain)) return std::nullopt;
    return KeyLine{ItemKey::Explain, false, written};
  }
  if (found != keys.end())
    return KeyLine{found->key, isExact(found->key, line, colon, *beginning), written};
  if (colon + 1 < line.size()) return std::nullopt;
  return KeyLine{ItemKey::None, false, written};
}

} // namespace talvora::pack
