// Looking the running words up.
#include "pack/WordCoverage.h"

#include "dictionary/SyllableGate.h"
#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "text/Text.h"
#include "text/WordForm.h"

#include <algorithm>
#include <iterator>

namespace talvora::pack {

namespace {

struct Found {
  std::size_t number = 0;
  std::string form;
};

std::optional<Found> find(const WordList& list, const std::string& word) {
  for (std::string form : {word, RutGonDuoi(word)}) {
    if (const auto number = list.find(form)) return Found{*number, std::move(form)};
  }
  for (std::string shorter = word; shorter.size() > 1; shorter.pop_back()) {
    if (const auto number = list.find(shorter)) return Found{*number, shorter};
  }
  return std::nullopt;
}

/// The words that stand in small letters somewhere.
std::unordered_set<std::string> smallWordsOf(const std::vector<Corpus>& corpora) {
  std::unordered_set<std::string> small;
  for (const Corpus& corpus : corpora) {
    for (const std::string& word : corpus.words)
      if (lower(word) == word) small.insert(word);
  }
  return small;
}

Coverage coverageOf(const Corpus& corpus, const WordList& list, const Names& names) {
  Coverage coverage;
  coverage.corpus = corpus.name;
  for (const std::string& word : corpus.words) {
    const std::string small = lower(word);
    // Vietnamese syllables are kept out of the look-up, English ones of the same letters with them.
    if (!LaTiengAnh(small) || names.contains(small)) continue;
    ++coverage.words;
    if (isExplained(list, small)) continue;
    ++coverage.missing;
    ++coverage.missingWords[small];
  }
  return coverage;
}

/// "0.21 %", from counts.
std::string percent(std::size_t part, std::size_t whole) {
  constexpr std::size_t hundredths = 10000;
  const std::size_t share = whole == 0 ? 0 : part * hundredths / whole;
  std::string digits = std::to_string(share % 100);
  if (digits.size() == 1) digits.insert(0, "0");
  return std::to_string(share / 100) + "." + digits + " %";
}

std::string listOf(const std::map<std::string, std::size_t>& words) {
  std::vector<std::pair<std::string, std::size_t>> sorted(words.begin(), words.end());
  std::ranges::stable_sort(
      sorted, [](const auto& left, const auto& right) { return left.second > right.second; });
  std::string list;
  for (const auto& [word, count] : sorted) {
    list += (list.empty() ? "" : " ") + word;
    if (count > 1) list += ":" + std::to_string(count);
  }
  return list;
}

} // namespace

Names readNames(const std::filesystem::path& path) {
  Names names;
  const std::string text = readWhole(path).value_or("");
  for (const SourceLine& line : linesOf(text)) {
    if (!line.text.empty() && !line.text.starts_with("//")) names.insert(lower(trim(line.text)));
  }
  return names;
}

std::optional<std::size_t> lookUp(const WordList& list, const std::string& word) {
  const auto found = find(list, word);
  return found ? std::optional(found->number) : std::nullopt;
}

bool isExplained(const WordList& list, const std::string& word) {
  const auto found = find(list, word);
  if (!found || !list.hasVietnamese(list.at(found->number))) return false;
  const bool cut = found->form.size() < word.size() && word.starts_with(found->form) &&
                   found->form != RutGonDuoi(word);
  const char next = cut ? word[found->form.size()] : '\0';
  return !cut || next == '-' || next == '\'';
}

CoverageReport coverageOf(const std::vector<Corpus>& corpora, const WordList& list,
                          const Names& names) {
  CoverageReport report;
  const auto small = smallWordsOf(corpora);
  std::unordered_set<std::string> told;
  for (const Corpus& corpus : corpora) {
    report.corpora.push_back(coverageOf(corpus, list, names));
    for (const auto& [word, count] : report.corpora.back().missingWords) {
      // "T-shirt" has an entry that no click finds.
      const bool name = !small.contains(word) && !list.find(ChuanHoaTu(word));
      if (name && told.insert(word).second) report.names.push_back({corpus.name, word});
    }
  }
  std::ranges::copy_if(names, std::back_inserter(report.needless),
                       [&list](const std::string& name) { return isExplained(list, name); });
  std::ranges::sort(report.needless);
  return report;
}

std::string coverageLines(const CoverageReport& report) {
  std::string lines;
  for (const Coverage& each : report.corpora) {
    lines += "  " +
             said("{}: {} of {} running words, {}", translated(each.corpus), each.missing,
                  each.words, percent(each.missing, each.words)) +
             "\n";
    if (each.missing > 0) lines += "    " + listOf(each.missingWords) + "\n";
  }
  return lines;
}

void checkCoverage(const CoverageReport& report, Problems& problems) {
  for (const Coverage& each : report.corpora) {
    if (each.isEnough()) continue;
    problems.add({translated(each.corpus)},
                 said("{} of {} running words have no Vietnamese sense, more than 1 in {}: {}",
                      each.missing, each.words, WordsAMissing, listOf(each.missingWords)));
  }
  for (const UnknownName& name : report.names)
    problems.add(
        {translated(name.corpus)},
        said("the name \"{}\" has no entry and does not stand in {}", name.word, NamesFile));
  for (const std::string& name : report.needless)
    problems.add({std::string(NamesFile)},
                 said("\"{}\" has an entry and need not stand here", name));
}

} // namespace talvora::pack
