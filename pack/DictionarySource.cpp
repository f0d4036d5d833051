// Parsing and writing of dictionary sources.
#include "pack/DictionarySource.h"

#include "pack/EntryNotation.h"
#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "pack/StreamText.h"
#include "text/CharClass.h"
#include "text/Contains.h"
#include "text/WordForm.h"

#include <algorithm>
#include <unordered_map>

namespace talvora::pack {

namespace {

constexpr std::string_view formsOpener = "  forms: ";
constexpr std::string_view phrasesOpener = "  phrases: ";
constexpr std::string_view formsFirstLine = "  forms-first";
constexpr std::string_view exampleOpener = "    > ";
constexpr std::size_t mostPhrases = 4;

const ClassName* classAt(std::string_view text) {
  const auto found = std::find_if(ClassNames.begin(), ClassNames.end(), [text](const auto& name) {
    return text.starts_with(name.source) && text.substr(name.source.size()).starts_with(' ');
  });
  return found != ClassNames.end() ? &*found : nullptr;
}

/// The group of a noun's use that a text opens with: "[u c] ".
const NounUseName* useAt(std::string_view text) {
  const auto found =
      std::find_if(NounUseNames.begin(), NounUseNames.end(), [text](const auto& name) {
        return !name.source.empty() && text.starts_with(std::string(name.source) + " ");
      });
  return found != NounUseNames.end() ? &*found : nullptr;
}

/// Whether a text opens with the number of a sense: "1 ".
bool startsWithNumber(std::string_view text) {
  return text.size() > 1 && text[0] >= '0' && text[0] <= '9' && text[1] == ' ';
}

/// The level behind a head word: "go A1"; empty without one.
std::string_view levelIn(std::string_view head) {
  const std::size_t blank = head.rfind(' ');
  if (blank == std::string_view::npos) return {};
  const std::string_view last = head.substr(blank + 1);
  return contains(Levels, last) ? last : std::string_view{};
}

/// Reads a source line by line into entries.
class DictionaryParser {
 public:
  DictionaryParser(const std::string& file, Problems& problems)
      : file_(file), problems_(problems) {}

  void read(const SourceLine& line) {
    line_ = line.number;
    if (line.text.starts_with("//")) return;
    if (line.text.empty()) {
      closeBlock();
    } else if (line.text.front() != ' ') {
      readHead(line.text);
    } else if (!inBlock_) {
      report(1, said("an indented line without a head word above it"));
    } else if (line.text.starts_with(formsOpener)) {
      readForms(line.text);
    } else if (line.text.starts_with(phrasesOpener)) {
      readPhrases(line.text);
    } else if (line.text == formsFirstLine) {
      readFormsFirst();
    } else if (line.text.starts_with(exampleOpener)) {
      readExample(line.text);
    } else {
      readSense(line.text);
    }
  }

  std::vector<OwnEntry> finish() {
    closeBlock();
    return std::move(entries_);
  }

 private:
  void report(std::size_t column, std::string message) {
    problems_.add({file_, line_, static_cast<int>(column)}, std::move(message));
  }

  std::string stretch(std::string_view utf8, std::size_t bytesAhead) {
    if (utf8.empty()) report(bytesAhead + 1, said("a text is missing here"));
    const int column = static_cast<int>(bytesAhead) + 1;
    return sourceText(utf8, {file_, line_, column}, EntryMarks, problems_);
  }

  EntryBlock& block() { return entries_.back().block; }

  void closeBlock() {
    if (inBlock_ && block().senses.empty()) {
      problems_.add(entries_.back().where, said("the head word has no sense"));
    }
    expectSecond(nullptr);
    inBlock_ = false;
  }

  /// A number 1 that no 2 follows would not be shown.
  void expectSecond(const Sense* next) {
    if (firstAt_.line != 0 && (next == nullptr || next->number != 2))
      problems_.add(firstAt_, said("a sense that is not followed by a second one has no number"));
    firstAt_ = {};
  }

  void readHead(std::string_view text) {
    closeBlock();
    inBlock_ = true;
    const std::string_view level = levelIn(text);
    if (!level.empty()) text.remove_suffix(level.size() + 1);
    entries_.push_back({stretch(text, 0), {}, {file_, line_, 1}});
    block().level = level;
    const bool opens = Letters.has(text.front());
    if (!opens) report(1, said("a head word must begin with a letter from a to z"));
  }

  void readSense(std::string_view text) {
    const ClassName* name = text.starts_with("  ") ? classAt(text.substr(2)) : nullptr;
    if (name == nullptr) {
      report(3, said("a line below a head word must be a sense, an example, phrases or forms"));
      return;
    }
    Sense sense{name->wordClass, Language::Vietnamese, {}};
    const std::size_t numberAt = 2 + name->source.size() + 1;
    std::size_t at = numberAt;
    readNumber(text, at, sense);
    readUse(text, at, sense);
    expectSecond(&sense);
    if (sense.number == 1) firstAt_ = {file_, line_, static_cast<int>(numberAt) + 1};
    const std::string_view rest = text.substr(at);
    if (rest.starts_with('/') || startsWithNumber(rest)) {
      report(at + 1, said("a gloss that begins with \"/\" or a number would be taken for a "
                          "pronunciation or for the number of a sense"));
    }
    const std::size_t pattern = patternIn(rest);
    sense.text = stretch(rest.substr(0, pattern), at);
    if (pattern < rest.size()) sense.pattern = stretch(rest.substr(pattern + 2), at + pattern + 2);
    block().senses.push_back(std::move(sense));
  }

  void readNumber(std::string_view text, std::size_t& at, Sense& sense) {
    if (!startsWithNumber(text.substr(at))) return;
    sense.number = text[at] - '0';
    const auto& senses = block().senses;
    const bool follows = !senses.empty() && senses.back().wordClass == sense.wordClass;
    if (sense.number != (follows ? senses.back().number + 1 : 1))
      report(at + 1, said("the senses of a class count 1, 2, 3 and stand together"));
    at += 2;
  }

  void readUse(std::string_view text, std::size_t& at, Sense& sense) {
    if (at >= text.size() || text[at] != '[') return;
    const NounUseName* use = useAt(text.substr(at));
    if (use == nullptr || sense.wordClass != WordClass::Noun) {
      report(at + 1,
             said("in square brackets may stand u, c, u c, sg or pl, ahead of a noun's gloss"));
      at = std::min(text.find(']', at), text.size() - 1) + 1;
      if (at < text.size()) ++at;
      return;
    }
    sense.use = use->use;
    at += use->source.size() + 1;
  }

  void readExample(std::string_view text) {
    const std::string_view example = text.substr(exampleOpener.size());
    const std::size_t equals = example.find(" = ");
    if (equals == std::string_view::npos ||
        example.find('=', equals + 2) != std::string_view::npos) {
      report(exampleOpener.size() + 1, said("an example must be \"English = Vietnamese\""));
      return;
    }
    auto& senses = block().senses;
    if (senses.empty() || !senses.back().example.empty()) {
      report(1, said("an example must stand below its sense, one at most"));
      return;
    }
    senses.back().example = stretch(example, exampleOpener.size());
  }

  void readForms(std::string_view text) {
    if (!block().forms.empty()) report(1, said("the forms of a head word stand on one line"));
    std::size_t at = formsOpener.size();
    while (at <= text.size()) {
      const std::size_t end = std::min(text.find(", ", at), text.size());
      block().forms.push_back(stretch(text.substr(at, end - at), at));
      at = end + 2;
    }
  }

  void readFormsFirst() {
    const std::size_t count = entries_.size();
    if (count > 1 && entries_[count - 2].head == entries_.back().head)
      report(1, said("\"forms-first\" stands with the first of two words of one spelling"));
    entries_.back().formsFirst = true;
  }

  void readPhrases(std::string_view text) {
    if (!block().phrases.empty()) report(1, said("the phrases of a head word stand on one line"));
    std::size_t at = phrasesOpener.size();
    while (at <= text.size()) {
      const std::size_t end = std::min(text.find("; ", at), text.size());
      readPhrase(text.substr(at, end - at), at);
      at = end + 2;
    }
    if (block().phrases.size() > mostPhrases)
      report(1, said("a head word has at most {} phrases", mostPhrases));
  }

  void readPhrase(std::string_view text, std::size_t at) {
    constexpr std::string_view equals = " = ";
    const std::size_t middle = text.find(equals);
    if (middle == std::string_view::npos) {
      report(at + 1,
             said("a phrase must be \"English = Vietnamese\", and \"; \" parts two of them"));
      return;
    }
    const std::size_t behind = middle + equals.size();
    block().phrases.push_back(
        {stretch(text.substr(0, middle), at), stretch(text.substr(behind), at + behind)});
  }

  const std::string& file_;
  Problems& problems_;
  std::vector<OwnEntry> entries_;
  int line_ = 0;
  Where firstAt_; ///< of the last number 1 while no other sense stands below it; else line 0
  bool inBlock_ = false;
};

} // namespace

std::vector<OwnEntry> parseDictionary(std::string_view text, const std::string& file,
                                      Problems& problems) {
  DictionaryParser parser(file, problems);
  for (const SourceLine& line : linesOf(text))
    parser.read(line);
  return parser.finish();
}

std::vector<OwnEntry> readDictionary(const std::filesystem::path& folder, Problems& problems) {
  std::vector<OwnEntry> entries;
  std::unordered_map<std::string, Where> seen;
  for (const auto& path : textFilesIn(folder, problems)) {
    for (auto& entry : parseDictionary(readText(path, problems), path.string(), problems)) {
      const auto [first, isNew] = seen.emplace(ChuanHoaTu(entry.head), entry.where);
      const bool follows = !entries.empty() && entries.back().head == entry.head;
      if (!isNew && !follows) {
        problems.add(entry.where, said("the head word stands at {}:{} already", first->second.file,
                                       first->second.line));
        continue;
      }
      entries.push_back(std::move(entry));
    }
  }
  return entries;
}

std::vector<std::string> alternativesOf(std::string_view form) {
  std::vector<std::string> alternatives;
  while (true) {
    const std::size_t end = std::min(form.find('/'), form.size());
    alternatives.emplace_back(form.substr(0, end));
    if (end == form.size()) return alternatives;
    form.remove_prefix(end + 1);
  }
}

namespace {

std::string senseLine(const Sense& sense) {
  const auto& name = ClassNames[static_cast<std::size_t>(sense.wordClass)];
  std::string line = "  " + std::string(name.source) + " ";
  if (sense.number > 0) line += std::to_string(sense.number) + " ";
  if (sense.use != NounUse::None)
    line += std::string(NounUseNames[static_cast<std::size_t>(sense.use)].source) + " ";
  line += utf8Of(sense.text);
  if (!sense.pattern.empty()) line += ": " + utf8Of(sense.pattern);
  return line + "\n";
}

} // namespace

std::string writeEntry(const OwnEntry& entry) {
  const EntryBlock& block = entry.block;
  std::string source = utf8Of(entry.head) + (block.level.empty() ? "" : " ") + block.level + "\n";
  for (const Sense& sense : block.senses) {
    source += senseLine(sense);
    if (!sense.example.empty()) source += std::string(exampleOpener) + utf8Of(sense.example) + "\n";
  }
  std::string phrases;
  for (const FixedPhrase& phrase : block.phrases) {
    phrases += phrases.empty() ? phrasesOpener : "; ";
    phrases += utf8Of(phrase.english) + " = " + utf8Of(phrase.vietnamese);
  }
  if (!phrases.empty()) source += phrases + "\n";
  std::string forms;
  for (const std::string& form : block.forms) {
    forms += forms.empty() ? formsOpener : ", ";
    forms += utf8Of(form);
  }
  if (!forms.empty()) source += forms + "\n";
  if (entry.formsFirst) source += std::string(formsFirstLine) + "\n";
  return source;
}

} // namespace talvora::pack
