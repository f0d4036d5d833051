// Parsing and writing of listening units.
#include "pack/ListeningSource.h"

#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "pack/StreamText.h"
#include "text/CharClass.h"

#include <algorithm>
#include <charconv>
#include <optional>

namespace talvora::pack {

namespace {

/// What the program's speech takes; a range runs from ")" to "?".
constexpr CharClass spoken("[a-z,A-Z,'. ()-?!]");
constexpr std::string_view instructionOpener = "instruction: ";
constexpr std::string_view labelsOpener = "labels: ";

std::optional<int> numberIn(std::string_view digits) {
  int number = 0;
  const auto [end, failure] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (failure != std::errc() || end != digits.data() + digits.size() || number < 1) {
    return std::nullopt;
  }
  return number;
}

/// Reads one unit line by line; the block at hand grows until it is whole.
class UnitParser {
 public:
  UnitParser(const std::string& file, Problems& problems) : file_(file), problems_(problems) {}

  void read(const SourceLine& line) {
    if (line.text.starts_with("//")) return;
    if (line.text.empty()) {
      finishBlock(line.number);
    } else if (lines_ == 0) {
      readSentence(line);
      ++lines_;
    } else {
      readAnswer(line);
      ++lines_;
    }
  }

  ListeningUnit finish(int lastLine) {
    finishBlock(lastLine);
    if (unit_.empty()) problems_.add({file_}, said("the unit has no items"));
    return std::move(unit_);
  }

 private:
  static constexpr int blockLines = 5;

  void readSentence(const SourceLine& line) {
    item_ = {};
    const std::size_t colon = std::min(line.text.find(": "), line.text.size());
    const auto number = numberIn(line.text.substr(0, colon));
    if (!number || colon == line.text.size()) {
      problems_.add({file_, line.number, 1},
                    said("an item begins with its sentence: \"3: She sells bread.\""));
      return;
    }
    item_.number = *number;
    item_.where = {file_, line.number, static_cast<int>(colon) + 3};
    item_.sentence = stretch(line.text.substr(colon + 2), item_.where);
    const auto bad = std::find_if(item_.sentence.begin(), item_.sentence.end(),
                                  [](char character) { return !spoken.has(character); });
    if (bad == item_.sentence.end()) return;
    Where where = item_.where;
    where.column += static_cast<int>(bad - item_.sentence.begin());
    problems_.add(where, said("\"{}\" cannot be spoken", utf8Of({&*bad, 1})));
  }

  void readAnswer(const SourceLine& line) {
    const bool right = lines_ == 1;
    if (lines_ >= blockLines || !line.text.starts_with(right ? "+ " : "- ")) {
      problems_.add({file_, line.number, 1},
                    said("an item is its sentence, one \"+ \" and three \"- \""));
      return;
    }
    const Where where{file_, line.number, 3};
    std::string answer = stretch(line.text.substr(2), where);
    if (answer.starts_with('-')) problems_.add(where, said("an answer cannot begin with a hyphen"));
    if (isTaken(answer)) problems_.add(where, said("the item has this answer already"));
    (right ? item_.right : item_.wrong[static_cast<std::size_t>(lines_ - 2)]) = std::move(answer);
  }

  [[nodiscard]] bool isTaken(const std::string& answer) const {
    if (lines_ == 1) return false;
    const auto end = item_.wrong.begin() + (lines_ - 2);
    return answer == item_.right || std::find(item_.wrong.begin(), end, answer) != end;
  }

  void finishBlock(int line) {
    if (lines_ == 0) return;
    if (lines_ != blockLines) {
      problems_.add({file_, line, 1}, said("the item above has not one sentence and four answers"));
    }
    unit_.push_back(std::move(item_));
    item_ = {};
    lines_ = 0;
  }

  std::string stretch(std::string_view utf8, const Where& where) {
    if (utf8.empty()) problems_.add(where, said("a text is missing here"));
    if (utf8.starts_with(' ') || utf8.ends_with(' '))
      problems_.add(where, said("a blank at an end"));
    return sourceText(utf8, where, StreamMarks, problems_);
  }

  const std::string& file_;
  Problems& problems_;
  ListeningUnit unit_;
  ListeningQuestion item_;
  int lines_ = 0; ///< of the block at hand
};

/// The labels of "A. B. C. D."; those that are not four of two characters are reported.
std::array<std::string, 4> labelsIn(std::string_view bytes, const Where& where,
                                    Problems& problems) {
  std::array<std::string, 4> labels;
  constexpr std::size_t wholeLength = 4 * 3 - 1;
  bool good = bytes.size() == wholeLength;
  for (std::size_t label = 0; good && label < labels.size(); ++label) {
    labels[label] = bytes.substr(label * 3, 2);
    const bool separated = label + 1 == labels.size() || bytes[label * 3 + 2] == ' ';
    good = separated && labels[label].find(' ') == std::string::npos;
  }
  if (!good)
    problems.add(where, said("there must be four labels of two characters: \"A. B. C. D.\""));
  return labels;
}

const std::string* sentenceOf(const ReadingSource& scripts, int text, int number) {
  const auto found = scripts.texts.find(text);
  if (found == scripts.texts.end()) return nullptr;
  for (const Paragraph& paragraph : found->second.paragraphs) {
    if (number <= static_cast<int>(paragraph.size())) {
      return &paragraph[static_cast<std::size_t>(number - 1)].english;
    }
    number -= static_cast<int>(paragraph.size());
  }
  return nullptr;
}

void checkSentence(const ListeningQuestion& item, int script, const ReadingSource& scripts,
                   Problems& problems) {
  if (scripts.texts.count(script) == 0 || item.number < 1) return;
  const std::string* sentence = sentenceOf(scripts, script, item.number);
  const std::string place = said("sentence {} of text {}", item.number, script);
  if (sentence == nullptr) {
    problems.add(item.where, said("there is no {}", place));
  } else if (*sentence != item.sentence) {
    problems.add(item.where, said("{} is \"{}\"", place, utf8Of(*sentence)));
  }
}

} // namespace

ListeningPageText defaultListeningPage() {
  return {ownText("Nghe rồi bấm chọn câu bạn vừa nghe:"), {"A.", "B.", "C.", "D."}};
}

ListeningUnit parseListeningUnit(std::string_view text, const std::string& file,
                                 Problems& problems) {
  UnitParser parser(file, problems);
  const auto lines = linesOf(text);
  for (const SourceLine& line : lines)
    parser.read(line);
  return parser.finish(static_cast<int>(lines.size()) + 1);
}

ListeningPageText parseListeningPage(std::string_view text, const std::string& file,
                                     Problems& problems) {
  ListeningPageText page;
  for (const SourceLine& line : linesOf(text)) {
    if (line.text.empty() || line.text.starts_with("//")) continue;
    const bool instruction = line.text.starts_with(instructionOpener);
    if (!instruction && !line.text.starts_with(labelsOpener)) {
      problems.add({file, line.number, 1},
                   said("a line must be \"instruction: ...\" or \"labels: ...\""));
      continue;
    }
    const std::size_t opener = (instruction ? instructionOpener : labelsOpener).size();
    const Where where{file, line.number, static_cast<int>(opener) + 1};
    const std::string bytes = sourceText(line.text.substr(opener), where, StreamMarks, problems);
    if (!instruction) {
      page.labels = labelsIn(bytes, where, problems);
    } else if (bytes.size() > ListeningPageText::InstructionLength || bytes.ends_with(' ')) {
      problems.add(where, said("the instruction has at most 36 characters, the last one no blank"));
    } else {
      page.instruction = bytes;
    }
  }
  if (page.instruction.empty()) problems.add({file}, said("the page has no instruction"));
  if (page.labels[0].empty()) problems.add({file}, said("the page has no labels"));
  return page;
}

ListeningSource readListening(const std::filesystem::path& folder, Problems& problems) {
  ListeningSource source;
  source.page = defaultListeningPage();
  std::size_t items = 0;
  for (const auto& path : textFilesIn(folder, problems)) {
    const std::string file = path.string();
    const std::string name = path.filename().string();
    const std::string text = readText(path, problems);
    if (name == "template.txt") {
      source.page = parseListeningPage(text, file, problems);
      continue;
    }
    const auto unit = name.size() == 10 && name.starts_with("unit-")
                          ? numberIn(std::string_view(name).substr(5, 1))
                          : std::nullopt;
    if (!unit) {
      problems.add({file}, said("the name must be unit-N.txt with a unit from 1 to 9"));
      continue;
    }
    source.units[*unit] = parseListeningUnit(text, file, problems);
    items += source.units[*unit].size();
  }
  // A unit without a source takes a place as well.
  items += static_cast<std::size_t>(ListeningUnits) - source.units.size();
  if (items > MostListeningItems) {
    problems.add({folder.string()},
                 said("there are {} items; at most {} fit", items, MostListeningItems));
  }
  return source;
}

void checkAgainstScripts(const ListeningSource& source, const ReadingSource& scripts,
                         Problems& problems) {
  for (const auto& [unit, items] : source.units) {
    for (const ListeningQuestion& item : items)
      checkSentence(item, ScriptsAhead + unit, scripts, problems);
  }
  // The program plays the first item of unit 2 in unit 1 as well, by its number.
  const auto second = source.units.find(2);
  if (second == source.units.end() || source.units.count(1) == 0 || second->second.empty()) return;
  checkSentence(second->second.front(), ScriptsAhead + 1, scripts, problems);
}

std::string writeListeningUnit(const ListeningUnit& unit) {
  std::string source;
  for (const ListeningQuestion& item : unit) {
    if (!source.empty()) source += "\n";
    source += std::to_string(item.number) + ": " + utf8Of(item.sentence) + "\n";
    source += "+ " + utf8Of(item.right) + "\n";
    for (const std::string& wrong : item.wrong)
      source += "- " + utf8Of(wrong) + "\n";
  }
  return source;
}

std::string writeListeningPage(const ListeningPageText& page) {
  std::string source = std::string(instructionOpener) + utf8Of(page.instruction) + "\n";
  source += "labels:";
  for (const std::string& label : page.labels)
    source += " " + utf8Of(label);
  return source + "\n";
}

} // namespace talvora::pack
