// Going through the words of our own.
#include "pack/WordListRules.h"

#include "pack/DictionaryCheck.h"
#include "pack/Inflection.h"
#include "pack/Message.h"
#include "pack/StreamText.h"
#include "pack/WordCoverage.h"
#include "text/Text.h"
#include "text/WordForm.h"

#include <algorithm>
#include <map>

namespace talvora::pack {

namespace {

bool isEnglish(const std::vector<Sense>& senses) {
  return std::ranges::any_of(
      senses, [](const Sense& sense) { return sense.language == Language::English; });
}

bool beginsWithCapital(const std::string& head) {
  return head.front() >= 'A' && head.front() <= 'Z';
}

bool leadsTo(const Word& word, std::size_t base) {
  return std::ranges::any_of(word.origins,
                             [base](const Origin& origin) { return origin.base == base; });
}

/// The words that a click does not explain, and where each stands first. What exercises offer as
/// wrong is left out.
std::map<std::string, std::string_view> unexplainedWords(const std::vector<Corpus>& corpora,
                                                         const WordList& list) {
  std::map<std::string, std::string_view> words;
  for (const Corpus& corpus : corpora) {
    if (corpus.language == CorpusLanguage::WithMistakes) continue;
    for (const std::string& word : corpus.words) {
      if (!isExplained(list, lower(word))) words.emplace(lower(word), corpus.name);
    }
  }
  return words;
}

} // namespace

std::vector<Problem> hiddenForms(const WordList& list, const WordSources& sources) {
  std::vector<Problem> found;
  const Inflections inflections(sources.own, sources.wordNet, sources.known);
  for (const OwnEntry& entry : sources.own) {
    const auto base = list.find(ChuanHoaTu(entry.head));
    if (!base || entry.head.find_first_of(" -'") != std::string::npos) continue;
    for (const Form& form : inflections.formsOf(entry.head, list.at(*base).classes)) {
      const auto taken = list.find(ChuanHoaTu(form.text));
      if (!taken || *taken == *base || list.at(*taken).kind != WordKind::Own) continue;
      const Word& word = list.at(*taken);
      // A name is no form of a word in small letters.
      if (beginsWithCapital(word.head) != beginsWithCapital(form.text)) continue;
      if (!leadsTo(word, *base))
        found.push_back(
            {entry.where, said("the entry of \"{}\" does not say that it is a form of \"{}\"",
                               utf8Of(word.head), utf8Of(entry.head))});
    }
  }
  return found;
}

std::vector<Problem> englishSenses(const WordList& list) {
  std::vector<Problem> found;
  for (const Word& word : list.words()) {
    if (word.kind > WordKind::OwnForm) continue;
    const bool english =
        std::ranges::any_of(word.blocks,
                            [](const EntryBlock& block) { return isEnglish(block.senses); }) ||
        std::ranges::any_of(word.origins, [&list](const Origin& origin) {
          return isEnglish(list.borrowedSenses(origin));
        });
    if (english && list.hasVietnamese(word))
      found.push_back({{"dictionary"},
                       said("the entry of \"{}\" has an English sense beside the Vietnamese ones",
                            utf8Of(word.head))});
  }
  return found;
}

std::vector<Problem> unlistedForms(const std::vector<Corpus>& corpora, const WordList& list,
                                   const WordSources& sources) {
  const auto words = unexplainedWords(corpora, list);
  KnownWords standing;
  for (const auto& [word, corpus] : words)
    standing.insert(word);
  const Inflections inflections(sources.own, sources.wordNet, standing);
  std::vector<Problem> found;
  for (const OwnEntry& entry : sources.own) {
    const auto base = list.find(ChuanHoaTu(entry.head));
    if (!base) continue;
    for (const Form& form : inflections.formsOf(entry.head, list.at(*base).classes)) {
      const auto word = words.find(lower(form.text));
      if (word == words.end()) continue;
      found.push_back({{std::string(AcceptedFile)},
                       said("\"{}\", a form of \"{}\", is in no word list and has to stand here; "
                            "it is used in: {}",
                            utf8Of(form.text), utf8Of(entry.head), translated(word->second))});
    }
  }
  return found;
}

} // namespace talvora::pack
