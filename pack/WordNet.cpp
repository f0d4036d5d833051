// Reading of the WordNet database: index files lead to synset lines, whose tails are the glosses.
#include "pack/WordNet.h"

#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <iterator>
#include <optional>

namespace talvora::pack {

namespace {

constexpr std::size_t mostSenses = 3;
constexpr std::size_t longestDefinition = 110;

struct Part {
  std::string_view suffix;
  WordClass wordClass;
};

constexpr std::array<Part, 4> parts = {{{"noun", WordClass::Noun},
                                        {"verb", WordClass::Verb},
                                        {"adj", WordClass::Adjective},
                                        {"adv", WordClass::Adverb}}};

/// Takes the next field off a line whose fields are parted by blanks.
std::string_view takeField(std::string_view& line) {
  const std::size_t end = std::min(line.find(' '), line.size());
  const std::string_view field = line.substr(0, end);
  line.remove_prefix(std::min(end + 1, line.size()));
  return field;
}

std::optional<std::size_t> numberOf(std::string_view digits, int base = 10) {
  std::size_t value = 0;
  const auto [end, failure] =
      std::from_chars(digits.data(), digits.data() + digits.size(), value, base);
  if (failure != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return value;
}

SynsetKey keyOf(std::size_t offset, std::size_t part) {
  return static_cast<SynsetKey>(offset << 2U | part);
}

/// The part of speech that a letter of the database names; satellites are adjectives.
std::optional<std::size_t> partOf(std::string_view letter) {
  const std::size_t part = letter == "s" ? 2 : std::string_view("nvar").find(letter);
  return part < parts.size() ? std::optional(part) : std::nullopt;
}

bool mayBeBuilt(std::string_view word) {
  static constexpr std::array<std::string_view, 3> endings = {"ly", "ness", "er"};
  return word.starts_with("un") ||
         std::any_of(endings.begin(), endings.end(),
                     [word](std::string_view ending) { return word.ends_with(ending); });
}

std::string spelled(std::string_view lemma) {
  std::string text(lemma.substr(0, lemma.find('(')));
  std::replace(text.begin(), text.end(), '_', ' ');
  return text;
}

/// A synset line as far as a dictionary needs it.
struct Synset {
  std::string_view words;
  std::string_view gloss;
};

std::optional<Synset> synsetAt(std::string_view data, std::size_t offset) {
  if (offset >= data.size()) return std::nullopt;
  std::string_view line = data.substr(offset);
  line = line.substr(0, line.find('\n'));
  const std::size_t bar = line.find("| ");
  if (bar == std::string_view::npos || numberOf(takeField(line)) != offset) return std::nullopt;
  const std::size_t gloss = line.find("| ");
  return Synset{line.substr(0, gloss), trim(line.substr(gloss + 2))};
}

/// The lemma as the synset spells it, capitals and all.
std::string spellingIn(std::string_view words, const std::string& small) {
  takeField(words);
  takeField(words);
  const std::size_t count = numberOf(takeField(words), 16).value_or(0);
  for (std::size_t word = 0; word < count; ++word) {
    std::string text = spelled(takeField(words));
    if (lower(text) == small) return text;
    takeField(words);
  }
  return small;
}

/// What ties one word of a synset to others: it is derived from them, pertains to them or is their
/// opposite.
void addTies(std::string_view words, const std::string& small, std::vector<SynsetKey>& ties) {
  takeField(words);
  takeField(words);
  const std::size_t count = numberOf(takeField(words), 16).value_or(0);
  std::size_t own = 0;
  for (std::size_t word = 1; word <= count; ++word) {
    if (lower(spelled(takeField(words))) == small) own = word;
    takeField(words);
  }
  const std::size_t pointers = numberOf(takeField(words)).value_or(0);
  for (std::size_t pointer = 0; pointer < pointers; ++pointer) {
    const std::string_view symbol = takeField(words);
    const auto offset = numberOf(takeField(words));
    const auto part = partOf(takeField(words));
    const auto source = numberOf(takeField(words).substr(0, 2), 16);
    const bool tying = symbol == "+" || symbol == "\\" || symbol == "!";
    if (tying && offset && part && source == own) ties.push_back(keyOf(*offset, *part));
  }
}

/// A line of an index: a lemma with the places of its synsets, the commonest first.
struct IndexLine {
  std::string small;
  std::vector<std::size_t> offsets;
};

std::optional<IndexLine> parseIndexLine(std::string_view line) {
  IndexLine parsed{spelled(takeField(line)), {}};
  takeField(line);
  const auto synsets = numberOf(takeField(line));
  const auto pointers = numberOf(takeField(line));
  if (!synsets || !pointers) return std::nullopt;
  for (std::size_t skipped = 0; skipped < *pointers + 2; ++skipped)
    takeField(line);
  while (!trim(line).empty()) {
    const auto offset = numberOf(takeField(line));
    if (!offset) return std::nullopt;
    parsed.offsets.push_back(*offset);
  }
  if (parsed.offsets.size() != *synsets || parsed.offsets.empty()) return std::nullopt;
  return parsed;
}

/// A word while its parts of speech are being collected.
struct Collected {
  WordNetWord word;
  std::vector<std::vector<Sense>> byPart;
};

/// The first senses of every part of speech before the second ones of any.
std::vector<Sense> choose(const std::vector<std::vector<Sense>>& byPart) {
  std::vector<std::size_t> taken(byPart.size(), 0);
  std::size_t total = 0;
  for (std::size_t rank = 0; rank < mostSenses; ++rank) {
    for (std::size_t part = 0; part < byPart.size() && total < mostSenses; ++part) {
      if (rank >= byPart[part].size()) continue;
      ++taken[part];
      ++total;
    }
  }
  std::vector<Sense> chosen;
  for (std::size_t part = 0; part < byPart.size(); ++part) {
    chosen.insert(chosen.end(), byPart[part].begin(),
                  byPart[part].begin() + static_cast<std::ptrdiff_t>(taken[part]));
  }
  return chosen;
}

/// Collects the words of all parts of speech under their small-letter spelling.
class Collector {
 public:
  Collector(std::filesystem::path folder, Problems& problems)
      : folder_(std::move(folder)), problems_(problems) {}

  void readPart(const Part& part) {
    const auto indexPath = folder_ / ("index." + std::string(part.suffix));
    const std::string index = readSource(indexPath, problems_);
    const std::string data = readSource(folder_ / ("data." + std::string(part.suffix)), problems_);
    if (index.empty() || data.empty()) return;
    for (const SourceLine& line : linesOf(index)) {
      if (line.text.starts_with(' ') || line.text.empty()) continue;
      const auto parsed = parseIndexLine(line.text);
      if (!parsed || !collect(*parsed, data, part.wordClass)) {
        problems_.add({indexPath.string(), line.number, 1},
                      said("the line does not fit its database"));
        return;
      }
    }
  }

  std::vector<WordNetWord> words() {
    std::vector<WordNetWord> all;
    for (auto& [small, collected] : collected_) {
      collected.word.senses = choose(collected.byPart);
      all.push_back(std::move(collected.word));
    }
    return all;
  }

 private:
  bool collect(const IndexLine& line, std::string_view data, WordClass wordClass) {
    Collected& collected = collected_[line.small];
    const std::size_t part = static_cast<std::size_t>(std::distance(
        parts.begin(), std::find_if(parts.begin(), parts.end(), [wordClass](const Part& each) {
          return each.wordClass == wordClass;
        })));
    for (const std::size_t offset : line.offsets) {
      collected.word.synsets.push_back(keyOf(offset, part));
      const auto synset = mayBeBuilt(line.small) ? synsetAt(data, offset) : std::nullopt;
      if (synset) addTies(synset->words, line.small, collected.word.ties);
    }
    std::vector<Sense> senses;
    for (const std::size_t offset : line.offsets) {
      const auto synset = synsetAt(data, offset);
      if (!synset) return false;
      if (collected.word.head.empty()) {
        collected.word.head = spellingIn(synset->words, line.small);
      }
      auto definition = definitionOf(synset->gloss);
      if (definition.empty()) continue;
      senses.push_back({wordClass, Language::English, std::move(definition), ""});
      if (senses.size() == mostSenses) break;
    }
    collected.word.classes.add(wordClass);
    collected.byPart.push_back(std::move(senses));
    return true;
  }

  std::filesystem::path folder_;
  Problems& problems_;
  std::map<std::string, Collected> collected_;
};

void readExceptions(const std::filesystem::path& path, WordClass wordClass, WordNet& wordNet,
                    Problems& problems) {
  const std::string text = readSource(path, problems);
  for (const SourceLine& line : linesOf(text)) {
    std::string_view rest = line.text;
    const std::string form = spelled(takeField(rest));
    // The database lists a few verb forms ("crying") under nouns.
    if (wordClass == WordClass::Noun && form.ends_with("ing")) continue;
    while (!rest.empty()) {
      const std::string base = spelled(takeField(rest));
      if (!base.empty() && base != form) wordNet.exceptions[base].push_back({form, wordClass});
    }
  }
}

} // namespace

const WordNetWord* wordOf(const WordNet& wordNet, const std::string& small) {
  const auto found = std::lower_bound(
      wordNet.words.begin(), wordNet.words.end(), small,
      [](const WordNetWord& word, const std::string& key) { return lower(word.head) < key; });
  const bool known = found != wordNet.words.end() && lower(found->head) == small;
  return known ? &*found : nullptr;
}

std::string definitionOf(std::string_view gloss) {
  const std::size_t example = gloss.find("; \"");
  std::string text(trim(gloss.substr(0, gloss.starts_with('"') ? 0 : example)));
  std::replace(text.begin(), text.end(), '`', '\'');
  const bool showable = std::all_of(text.begin(), text.end(), [](char character) {
    return character >= ' ' && character <= '~' &&
           EntryMarks.find(character) == std::string_view::npos;
  });
  if (!showable) return {};
  while (text.ends_with(';') || text.ends_with(' '))
    text.pop_back();
  if (text.size() <= longestDefinition) return text;
  text.resize(std::min(text.rfind(' ', longestDefinition), longestDefinition));
  while (text.ends_with(';') || text.ends_with(',') || text.ends_with(' '))
    text.pop_back();
  return text + "...";
}

WordNet readWordNet(const std::filesystem::path& folder, Problems& problems) {
  WordNet wordNet;
  Collector collector(folder, problems);
  for (const Part& part : parts) {
    collector.readPart(part);
    readExceptions(folder / (std::string(part.suffix) + ".exc"), part.wordClass, wordNet, problems);
  }
  wordNet.words = collector.words();
  return wordNet;
}

} // namespace talvora::pack
