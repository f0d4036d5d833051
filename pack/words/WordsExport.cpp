#include "pack/words/WordsExport.h"

#include "pack/words/CardAudio.h"
#include "pack/words/CardDeck.h"
#include "pack/words/CardTables.h"
#include "pack/words/WordCards.h"
#include "platform/Files.h"
#include "text/Text.h"

#include <map>
#include <ostream>
#include <utility>

namespace talvora::pack {

namespace {

/// Everything that is said, each text once.
struct Spoken {
  std::vector<SpokenCard> cards;
  std::vector<SoundClip> sounds;
};

Spoken unspoken(std::vector<WordCard> cards) {
  Spoken result;
  for (WordCard& card : cards)
    result.cards.push_back({std::move(card), "", ""});
  return result;
}

class Speaking {
 public:
  explicit Speaking(const std::string& pack) : audio_(pack) {}

  /// The name of the sound for a text; empty for a text without a letter to say.
  std::string say(const std::string& text) {
    if (trim(plainAscii(text)).empty()) return {};
    const auto known = names_.find(text);
    if (known != names_.end()) return known->second;
    SoundClip clip = audio_.clipOf(text);
    const std::string name = clip.name;
    // Two texts that are said alike share a sound.
    if (clips_.emplace(name, std::move(clip.bytes)).second) order_.push_back(name);
    return names_.emplace(text, name).first->second;
  }

  std::vector<SoundClip> takeSounds() {
    std::vector<SoundClip> sounds;
    for (const std::string& name : order_)
      sounds.push_back({name, std::move(clips_[name])});
    return sounds;
  }

 private:
  CardAudio audio_;
  std::map<std::string, std::string> names_; ///< by text
  std::map<std::string, std::string> clips_; ///< by name
  std::vector<std::string> order_;
};

Spoken spoken(std::vector<WordCard> cards, const std::string& pack, const Counted& progress) {
  Speaking speaking(pack);
  Spoken result;
  for (WordCard& card : cards) {
    std::string word = speaking.say(card.spokenWord);
    std::string sentence = speaking.say(card.spokenSentence);
    result.cards.push_back({std::move(card), std::move(word), std::move(sentence)});
    progress(result.cards.size(), cards.size());
  }
  result.sounds = speaking.takeSounds();
  return result;
}

std::string contentOf(const Spoken& words, const ExportWish& wish) {
  switch (wish.form) {
  case ExportForm::CommaTable:
    return commaTableOf(words.cards);
  case ExportForm::CardTable:
    return cardTableOf(words.cards);
  case ExportForm::Deck:
    break;
  }
  return deckOf(words.cards, words.sounds, wish.seconds);
}

std::optional<std::string> writeSounds(const std::vector<SoundClip>& sounds,
                                       const std::filesystem::path& folder, FileSystem& files) {
  if (const auto error = files.makeFolder(folder.string()))
    return fileProblem(folder.string(), "cannot be made", error);
  for (const SoundClip& sound : sounds) {
    const auto path = (folder / sound.name).string();
    if (auto problem = replaceFile(files, path, bytesOfText(sound.bytes))) return problem;
  }
  return std::nullopt;
}

} // namespace

std::optional<ExportForm> exportFormOf(const std::filesystem::path& file) {
  const std::string ending = lower(file.extension().string());
  if (ending == ".csv") return ExportForm::CommaTable;
  if (ending == ".tsv" || ending == ".txt") return ExportForm::CardTable;
  if (ending == ".apkg") return ExportForm::Deck;
  return std::nullopt;
}

ListResult exportWords(const LearnersList& list, const ExportWish& wish, std::ostream& out,
                       const Counted& progress) {
  auto cards = cardsOf(list, wish.pack);
  if (!cards) {
    out << "Không đọc được từ vựng trong " << list.folder << "\n";
    return ListResult::Impossible;
  }
  const bool speaks = wish.form == ExportForm::Deck ? wish.spoken : wish.sounds.has_value();
  const Spoken words =
      speaks ? spoken(std::move(*cards), wish.pack, progress) : unspoken(std::move(*cards));
  auto problem = wish.form != ExportForm::Deck && wish.sounds
                     ? writeSounds(words.sounds, *wish.sounds, list.files)
                     : std::nullopt;
  if (!problem)
    problem = replaceFile(list.files, wish.file.string(), bytesOfText(contentOf(words, wish)));
  if (problem) {
    out << "Không ghi được: " << *problem << "\n";
    return ListResult::Impossible;
  }
  out << "Đã ghi " << words.cards.size() << " từ vào " << wish.file.string();
  if (!words.sounds.empty()) out << ", với " << words.sounds.size() << " tệp tiếng";
  out << ".\n";
  return ListResult::Fine;
}

} // namespace talvora::pack
