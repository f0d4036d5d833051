// Going through the sentences.
#include "pack/Heteronyms.h"

#include "pack/Lexicon.h"
#include "pack/Message.h"
#include "pack/ReadingSource.h"
#include "pack/SpeakingSource.h"
#include "pack/StreamText.h"
#include "sound/Pronunciations.h"

#include <functional>

namespace talvora::pack {

namespace {

using Told = std::function<void(const ReadingText&, const SentencePair&, const SaidWord&)>;

/// Tells of every such word in the texts to read and to speak; the scripts are among the former.
void goThrough(const std::filesystem::path& source, Problems& problems, const Told& told) {
  const Pronouncer pronouncer(readPronunciations(source / "pronunciation.txt", problems));
  for (const auto& texts :
       {readReadings(source / "reading", problems), readSpeaking(source / "speaking", problems)}) {
    for (const auto& [slot, text] : texts.texts) {
      for (const Paragraph& paragraph : text.paragraphs) {
        for (const SentencePair& pair : paragraph) {
          for (const SaidWord& word : heteronymsIn(pair.english, pronouncer))
            told(text, pair, word);
        }
      }
    }
  }
}

} // namespace

std::vector<SaidWord> heteronymsIn(std::string_view sentence, const Pronouncer& pronouncer) {
  std::vector<SaidWord> found;
  const auto words = spokenWordsOf(sentence);
  for (std::size_t at = 0; at < words.size(); ++at) {
    if (pronouncer.isSaidInSeveralWays(words[at]))
      found.push_back({words[at], pronouncer.phonesWithin(words, at)});
  }
  return found;
}

void checkHeteronyms(const std::filesystem::path& source, Problems& problems) {
  // Without a lexicon nothing is said.
  if (!hasLexicon()) return;
  goThrough(source, problems,
            [&](const ReadingText& text, const SentencePair& pair, const SaidWord& word) {
              if (!word.phones.empty()) return;
              problems.add(
                  {(source / "pronunciation.txt").string()},
                  said("\"{}\" is said in several ways, and no line tells how in \"{}\" of "
                       "\"{}\"",
                       word.word, utf8Of(pair.english), utf8Of(text.title)));
            });
}

std::string heteronymReport(const std::filesystem::path& source, Problems& problems) {
  std::string report;
  goThrough(source, problems,
            [&](const ReadingText&, const SentencePair& pair, const SaidWord& word) {
              report += word.word + "\t" + joined(word.phones) + "\t" + utf8Of(pair.english) + "\n";
            });
  return report;
}

} // namespace talvora::pack
