// The openers of an entry's lines, and the reading of entries.
#include "pack/EntryNotation.h"

#include "pack/StreamText.h"
#include "text/CharClass.h"
#include "text/Text.h"

#include <algorithm>
#include <optional>

namespace talvora::pack {

namespace notation {

const std::string& phraseOpener() {
  static const std::string opener = ownText("_^cụm: ");
  return opener;
}

namespace {

using LabelsByUse = std::array<std::string, NounUseNames.size()>;
using Labels = std::array<LabelsByUse, ClassNames.size()>;

Labels vietnameseLabels() {
  Labels labels;
  for (const ClassName& name : ClassNames) {
    for (const NounUseName& use : NounUseNames) {
      std::string text(name.vietnamese);
      if (!use.vietnamese.empty()) text += ", " + std::string(use.vietnamese);
      labels[static_cast<std::size_t>(name.wordClass)][static_cast<std::size_t>(use.use)] =
          ownText(text);
    }
  }
  return labels;
}

} // namespace

const std::string& label(WordClass wordClass, Language language, NounUse use) {
  static const Labels vietnamese = vietnameseLabels();
  static const auto english = [] {
    std::array<std::string, ClassNames.size()> names;
    for (const ClassName& name : ClassNames)
      names[static_cast<std::size_t>(name.wordClass)] = name.english;
    return names;
  }();
  const auto place = static_cast<std::size_t>(wordClass);
  if (language == Language::English) return english[place];
  return vietnamese[place][static_cast<std::size_t>(use)];
}

} // namespace notation

namespace {

/// A blue stretch at the start of a line, taken off it.
std::optional<std::string> takeBlue(std::string_view& line) {
  if (!line.starts_with('#')) return std::nullopt;
  const std::size_t end = line.find(" #", 1);
  if (end == std::string_view::npos) return std::nullopt;
  std::string text(line.substr(1, end - 1));
  line.remove_prefix(end + 2);
  return text;
}

struct Label {
  WordClass wordClass;
  NounUse use;
};

std::optional<Label> vietnameseLabel(std::string_view text) {
  for (const ClassName& name : ClassNames) {
    for (const NounUseName& use : NounUseNames) {
      if (text == notation::label(name.wordClass, Language::Vietnamese, use.use))
        return Label{name.wordClass, use.use};
    }
  }
  return std::nullopt;
}

std::optional<NounUse> nounUse(std::string_view text) {
  for (const NounUseName& use : NounUseNames) {
    if (use.use != NounUse::None && text == ownText(use.vietnamese)) return use.use;
  }
  return std::nullopt;
}

/// The compiler writes pronunciations itself, so that none goes back into a source.
void skipPronunciation(std::string_view& line) {
  const std::size_t end = line.starts_with('/') ? line.find("/ ", 1) : std::string_view::npos;
  if (end != std::string_view::npos) line.remove_prefix(end + 2);
}

/// Takes the number of a sense off its line: "1 ".
int takeNumber(std::string_view& line) {
  if (line.size() < 2 || line[0] < '1' || line[0] > '9' || line[1] != ' ') return 0;
  const int number = line[0] - '0';
  line.remove_prefix(2);
  return number;
}

std::vector<FixedPhrase> phrasesIn(std::string_view line) {
  std::vector<FixedPhrase> phrases;
  while (auto english = takeBlue(line)) {
    const std::size_t end = std::min(line.find("; #"), line.size());
    phrases.push_back({std::move(*english), std::string(line.substr(0, end))});
    line.remove_prefix(std::min(end + 2, line.size()));
  }
  return phrases;
}

/// Takes an entry apart line by line, as long as the lines are of the word's own blocks.
class EntryReader {
 public:
  explicit EntryReader(std::string_view head) : head_(head) {}

  /// Reads what stands behind a head word.
  void openBlock(std::string_view details) {
    blocks_.push_back({});
    EntryBlock& block = blocks_.back();
    details = trim(details);
    for (const std::string_view level : Levels) {
      if (details == level || details.ends_with(" " + std::string(level))) {
        block.level = level;
        details = trim(details.substr(0, details.size() - level.size()));
      }
    }
    const std::size_t forms = details.find('(');
    if (forms == std::string_view::npos || !details.ends_with(')')) return;
    details = details.substr(forms + 1, details.size() - forms - 2);
    while (!details.empty()) {
      const std::size_t end = std::min(details.find(", "), details.size());
      block.forms.emplace_back(details.substr(0, end));
      details.remove_prefix(std::min(end + 2, details.size()));
    }
  }

  /// False for a line that says nothing of the word's own, such as of which word it is a form.
  bool read(std::string_view line) {
    if (line.starts_with(notation::exampleOpener)) {
      return withLastSense(
          [&](Sense& sense) { sense.example = line.substr(notation::exampleOpener.size()); });
    }
    if (line.starts_with(notation::phraseOpener())) {
      blocks_.back().phrases = phrasesIn(line.substr(notation::phraseOpener().size()));
      return true;
    }
    line.remove_prefix(1);
    if (line == head_ || line.starts_with(std::string(head_) + " (") ||
        line.starts_with(std::string(head_) + " /") || isHeadWithLevel(line)) {
      openBlock(line.substr(head_.size()));
      return true;
    }
    return readSense(line);
  }

  [[nodiscard]] bool hasSenses() const {
    return std::any_of(blocks_.begin(), blocks_.end(),
                       [](const EntryBlock& block) { return !block.senses.empty(); });
  }

  std::vector<EntryBlock> finish() {
    std::erase_if(blocks_, [](const EntryBlock& block) { return block.senses.empty(); });
    return std::move(blocks_);
  }

 private:
  template <typename Change>
  bool withLastSense(Change change) {
    if (blocks_.back().senses.empty()) return false;
    change(blocks_.back().senses.back());
    return true;
  }

  [[nodiscard]] bool isHeadWithLevel(std::string_view line) const {
    return std::any_of(Levels.begin(), Levels.end(), [&](std::string_view level) {
      return line == std::string(head_) + " " + std::string(level);
    });
  }

  bool readSense(std::string_view line) {
    std::string_view rest = line;
    Sense sense;
    if (const auto text = takeBlue(rest)) {
      const auto label = vietnameseLabel(*text);
      if (!label) return false;
      label_ = *label;
      skipPronunciation(rest);
      sense.number = takeNumber(rest);
    } else {
      sense.number = takeNumber(rest);
      if (sense.number == 0 || blocks_.back().senses.empty()) return false;
    }
    sense.wordClass = label_.wordClass;
    sense.use = label_.use;
    std::string_view behindUse = rest;
    if (const auto text = takeBlue(behindUse)) {
      if (const auto use = nounUse(*text)) {
        sense.use = *use;
        rest = behindUse;
      }
    }
    const std::size_t pattern = patternIn(rest);
    sense.text = rest.substr(0, pattern);
    if (pattern < rest.size()) sense.pattern = rest.substr(pattern + 2);
    blocks_.back().senses.push_back(std::move(sense));
    return true;
  }

  std::string_view head_;
  std::vector<EntryBlock> blocks_;
  Label label_{};
};

} // namespace

std::size_t patternIn(std::string_view sense) {
  int depth = 0;
  for (std::size_t at = 0; at < sense.size(); ++at) {
    if (sense[at] == '(') ++depth;
    if (sense[at] == ')') --depth;
    if (depth <= 0 && sense.substr(at).starts_with(": ")) return at;
  }
  return sense.size();
}

OwnNotation readOwnNotation(std::string_view entry, std::string_view head) {
  EntryReader reader(head);
  const std::size_t headEnd = std::min(entry.find('_'), entry.size());
  reader.openBlock(entry.substr(0, headEnd));
  entry.remove_prefix(headEnd);
  const std::string again = "_" + std::string(head);
  bool own = true;
  bool formsFirst = false;
  while (!entry.empty()) {
    const std::size_t end = std::min(entry.find('_', 1), entry.size());
    const std::string_view line = entry.substr(0, end);
    entry.remove_prefix(end);
    // What stands between, a word of which this is a form, ends where the head word is named again.
    if (!own && line.starts_with(again)) own = true;
    if (own) own = reader.read(line);
    if (!own && !reader.hasSenses()) formsFirst = true;
  }
  return {reader.finish(), formsFirst};
}

} // namespace talvora::pack
