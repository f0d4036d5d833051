#include "pack/KeySentences.h"

#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "pack/SpeakingSource.h"
#include "pack/StreamText.h"
#include "pack/TextWords.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <map>

namespace talvora::pack {

namespace {

using Words = std::vector<std::string>;

struct Key {
  Words words;
  std::string text;
  Where where;
};

/// The sentences of a text as words, and the keys that it declares.
struct ReadText {
  std::vector<Words> sentences;
  std::vector<Key> keys;
  bool hasTurns = false; ///< more than one paragraph, which are the turns of a conversation
};

ReadText read(const SpokenText& text) {
  ReadText found;
  bool apart = false;
  for (const SourceLine& line : linesOf(text.source)) {
    if (line.text.starts_with(KeyMark)) {
      const std::string key(line.text.substr(KeyMark.size()));
      found.keys.push_back({plainWords(key), key, {text.file, line.number, 1}});
    } else if (!line.text.empty() && !line.text.starts_with("//") && !line.text.starts_with('=') &&
               !line.text.starts_with("title:")) {
      found.hasTurns = found.hasTurns || (apart && !found.sentences.empty());
      found.sentences.push_back(plainWords(line.text));
    }
    apart = line.text.empty();
  }
  return found;
}

bool has(const ReadText& text, const Key& key) {
  return std::any_of(text.sentences.begin(), text.sentences.end(), [&key](const Words& sentence) {
    return std::search(sentence.begin(), sentence.end(), key.words.begin(), key.words.end()) !=
           sentence.end();
  });
}

/// The slot in a name "0067-in-the-lift.txt"; 0 without one.
int slotOf(const std::filesystem::path& path) {
  const std::string name = path.filename().string();
  int slot = 0;
  std::from_chars(name.data(), name.data() + name.size(), slot);
  return slot;
}

bool isUnderSituations(const std::map<int, std::string>& headings, int slot) {
  const auto next = headings.upper_bound(slot);
  return next != headings.begin() && std::prev(next)->second.starts_with(ownText("Nhóm"));
}

} // namespace

std::string checkKeySentences(const std::vector<SpokenText>& texts, Problems& problems) {
  std::vector<ReadText> all;
  std::transform(texts.begin(), texts.end(), std::back_inserter(all), read);
  std::vector<bool> covered(texts.size(), false);
  for (std::size_t own = 0; own < all.size(); ++own) {
    for (const Key& key : all[own].keys) {
      int returns = 0;
      for (std::size_t other = 0; other < all.size(); ++other) {
        if (key.words.empty() || !has(all[other], key)) continue;
        covered[other] = true;
        if (other != own) ++returns;
      }
      if (key.words.empty() || !has(all[own], key)) {
        problems.add(key.where,
                     said("the key sentence \"{}\" stands nowhere in its text", key.text));
      } else if (returns < KeyReturns) {
        problems.add(key.where,
                     said("the key sentence \"{}\" returns in {} other texts; it should in {}",
                          key.text, returns, KeyReturns));
      }
    }
  }
  int conversations = 0;
  int without = 0;
  for (std::size_t at = 0; at < texts.size(); ++at) {
    if (!texts[at].conversation || !all[at].hasTurns) continue;
    ++conversations;
    if (!covered[at]) ++without;
  }
  if (without == 0) return {};
  return said("speaking texts: {} of {} conversations have no key sentence", without,
              conversations);
}

std::string checkKeySentencesIn(const std::filesystem::path& folder, Problems& problems) {
  const auto headings = readSpeaking(folder, problems).headings;
  std::vector<SpokenText> texts;
  for (const auto& path : textFilesIn(folder, problems)) {
    const int slot = slotOf(path);
    if (slot == 0) continue;
    texts.push_back({path.string(), readSource(path, problems), isUnderSituations(headings, slot)});
  }
  return checkKeySentences(texts, problems);
}

} // namespace talvora::pack
