#include "pack/words/WordsExport.h"

#include "pack/Message.h"
#include "pack/Telling.h"
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

Spoken spoken(std::vector<WordCard> cards, const ExportWish& wish, const Counted& progress) {
  Speaking speaking(wish.pack);
  Spoken result;
  for (WordCard& card : cards) {
    std::string word = wish.aloud != Aloud::Sentence ? speaking.say(card.spokenWord) : "";
    std::string sentence = wish.aloud != Aloud::Word ? speaking.say(card.spokenSentence) : "";
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
    return fileProblem(folder.string(), said("cannot be made"), error);
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
  if (!cards) return tellUnreadable(list.folder, out);
  const bool speaks =
      wish.aloud != Aloud::Nothing && (wish.form == ExportForm::Deck || wish.sounds.has_value());
  const Spoken words =
      speaks ? spoken(std::move(*cards), wish, progress) : unspoken(std::move(*cards));
  auto problem = wish.form != ExportForm::Deck && wish.sounds
                     ? writeSounds(words.sounds, *wish.sounds, list.files)
                     : std::nullopt;
  if (!problem)
    problem = replaceFile(list.files, wish.file.string(), bytesOfText(contentOf(words, wish)));
  if (problem) return tellUnwritten(*problem, out);
  out << saidOf(words.cards.size(), "{0} word has been written to {1}",
                "{0} words have been written to {1}", wish.file.string());
  if (!words.sounds.empty())
    out << saidOf(words.sounds.size(), ", with {} sound", ", with {} sounds");
  out << ".\n";
  return ListResult::Fine;
}

} // namespace talvora::pack
