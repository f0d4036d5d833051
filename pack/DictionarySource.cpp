// Parsing and writing of dictionary sources.
#include "pack/DictionarySource.h"

#include "pack/SourceFile.h"
#include "pack/StreamText.h"
#include "text/CharClass.h"
#include "text/WordForm.h"

#include <algorithm>
#include <unordered_map>

namespace talvora::pack {

namespace {

constexpr std::string_view formsOpener = "  forms: ";
constexpr std::string_view exampleOpener = "    > ";

const ClassName* classAt(std::string_view text) {
  const auto found = std::find_if(ClassNames.begin(), ClassNames.end(), [text](const auto& name) {
    return text.starts_with(name.source) && text.substr(name.source.size()).starts_with(' ');
  });
  return found != ClassNames.end() ? &*found : nullptr;
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
      report(1, "an indented line without a head word above it");
    } else if (line.text.starts_with(formsOpener)) {
      readForms(line.text);
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
    if (utf8.empty()) report(bytesAhead + 1, "a text is missing here");
    const int column = static_cast<int>(bytesAhead) + 1;
    return sourceText(utf8, {file_, line_, column}, EntryMarks, problems_);
  }

  void closeBlock() {
    if (inBlock_ && entries_.back().senses.empty()) {
      problems_.add(entries_.back().where, "the head word has no sense");
    }
    inBlock_ = false;
  }

  void readHead(std::string_view text) {
    closeBlock();
    inBlock_ = true;
    entries_.push_back({stretch(text, 0), {}, {}, {file_, line_, 1}});
    const bool opens = Letters.has(text.front());
    if (!opens) report(1, "a head word must begin with a letter from a to z");
  }

  void readSense(std::string_view text) {
    const ClassName* name = text.starts_with("  ") ? classAt(text.substr(2)) : nullptr;
    if (name == nullptr) {
      report(3, "a line below a head word must be a sense, an example or forms");
      return;
    }
    const std::size_t ahead = 2 + name->source.size() + 1;
    entries_.back().senses.push_back(
        {name->wordClass, Language::Vietnamese, stretch(text.substr(ahead), ahead), ""});
  }

  void readExample(std::string_view text) {
    const std::string_view example = text.substr(exampleOpener.size());
    const std::size_t equals = example.find(" = ");
    if (equals == std::string_view::npos ||
        example.find('=', equals + 2) != std::string_view::npos) {
      report(exampleOpener.size() + 1, "an example must be \"English = Vietnamese\"");
      return;
    }
    auto& senses = entries_.back().senses;
    if (senses.empty() || !senses.back().example.empty()) {
      report(1, "an example must stand below its sense, one at most");
      return;
    }
    senses.back().example = stretch(example, exampleOpener.size());
  }

  void readForms(std::string_view text) {
    std::size_t at = formsOpener.size();
    while (at <= text.size()) {
      const std::size_t end = std::min(text.find(", ", at), text.size());
      entries_.back().forms.push_back(stretch(text.substr(at, end - at), at));
      at = end + 2;
    }
  }

  const std::string& file_;
  Problems& problems_;
  std::vector<OwnEntry> entries_;
  int line_ = 0;
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
  for (const auto& path : textFilesIn(folder)) {
    for (auto& entry : parseDictionary(readSource(path, problems), path.string(), problems)) {
      const auto [first, isNew] = seen.emplace(ChuanHoaTu(entry.head), entry.where);
      if (!isNew) {
        problems.add(entry.where, "the head word stands at " + first->second.file + ":" +
                                      std::to_string(first->second.line) + " already");
        continue;
      }
      entries.push_back(std::move(entry));
    }
  }
  return entries;
}

std::string writeEntry(const OwnEntry& entry) {
  std::string source = utf8Of(entry.head) + "\n";
  for (const Sense& sense : entry.senses) {
    const auto& name = ClassNames[static_cast<std::size_t>(sense.wordClass)];
    source += "  " + std::string(name.source) + " " + utf8Of(sense.text) + "\n";
    if (!sense.example.empty()) source += std::string(exampleOpener) + utf8Of(sense.example) + "\n";
  }
  return source;
}

} // namespace talvora::pack
