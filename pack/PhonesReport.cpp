// The lines of the review.
#include "pack/PhonesReport.h"

#include "pack/Lexicon.h"
#include "pack/Message.h"
#include "pack/Pronouncer.h"
#include "pack/StreamText.h"
#include "text/Contains.h"

#include <algorithm>
#include <map>

namespace talvora::pack {

namespace {

std::string lineOf(const Pronouncer& pronouncer, const std::string& word, WordClass wordClass) {
  std::string phones;
  for (const std::string& phone : pronouncer.phonesOfWord(word, wordClass))
    phones += " " + phone;
  return word + "\t" + std::string(ClassNames[static_cast<std::size_t>(wordClass)].source) + "\t" +
         pronouncer.shownOf(word, wordClass) + "\t" +
         phones.substr(std::min<std::size_t>(1, phones.size())) + "\n";
}

} // namespace

std::string phonesReport(const std::filesystem::path& source, const std::vector<std::string>& words,
                         Problems& problems) {
  if (!hasLexicon())
    problems.add({source.string()},
                 said("this talvora-pack was built without speech and knows no sounds"));
  const Pronouncer pronouncer(readPronunciations(source / "pronunciation.txt", problems));
  std::map<std::string, std::vector<WordClass>> classesOfHeads;
  std::vector<std::string> asked = words;
  for (const OwnEntry& entry : readDictionary(source / "dictionary", problems)) {
    const std::string head = utf8Of(entry.head);
    auto& classes = classesOfHeads[head];
    if (words.empty() && classes.empty()) asked.push_back(head);
    for (const Sense& sense : entry.block.senses)
      classes.push_back(sense.wordClass);
  }
  std::string report;
  for (const std::string& word : asked) {
    const auto found = classesOfHeads.find(word);
    if (found == classesOfHeads.end() || found->second.empty()) {
      report += lineOf(pronouncer, word, WordClass::Noun);
      continue;
    }
    std::vector<std::string> shown;
    for (const WordClass each : found->second) {
      std::string notation = pronouncer.shownOf(word, each);
      if (contains(shown, notation)) continue;
      report += lineOf(pronouncer, word, each);
      shown.push_back(std::move(notation));
    }
  }
  return report;
}

} // namespace talvora::pack
