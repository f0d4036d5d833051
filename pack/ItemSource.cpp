// Parsing of exercise items.
#include "pack/ItemSource.h"

#include "pack/ItemNotation.h"
#include "pack/ItemText.h"
#include "pack/SourceFile.h"
#include "pack/StreamText.h"
#include "text/Text.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace talvora::pack {

namespace {

constexpr std::size_t optionCount = 4;
constexpr int fewestPhrases = 2;
constexpr int mostPhrases = 6;
constexpr int fewestBlanksBetweenWords = 3;
constexpr int mostBlanks = 1000;

/// Reads a file of items line by line.
class ItemParser {
 public:
  ItemParser(const std::string& file, ItemPlace place, BlankHelp help, Problems& problems)
      : file_(file), place_(place), help_(help), problems_(problems) {}

  void read(const SourceLine& line) {
    if (line.text.starts_with("//")) return;
    if (line.text.starts_with("item:")) {
      finishItem();
      beginItem(line);
    } else if (line.text.empty()) {
      if (started_) ++emptyLines_;
    } else if (!begun_) {
      report(line, "an item begins with \"item: KIND, HEADING\"");
    } else {
      readContent(line);
    }
  }

  std::vector<Item> finish() {
    finishItem();
    return std::move(items_);
  }

 private:
  void report(const SourceLine& line, const std::string& message, std::size_t at = 0) {
    problems_.add(placeIn(line.text, at, {file_, line.number, 1}), message);
  }
  void reportItem(const std::string& message) { problems_.add({file_, itemLine_, 1}, message); }
  [[nodiscard]] Where placeOf(const SourceLine& line, std::size_t at) const {
    return placeIn(line.text, at, {file_, line.number, 1});
  }

  // -- The first lines.

  void beginItem(const SourceLine& line) {
    item_ = Item();
    text_ = ItemText();
    explaining_ = nullptr;
    begun_ = true;
    started_ = false;
    emptyLines_ = 0;
    lastExplained_ = -1;
    itemLine_ = line.number;
    if (!line.text.starts_with(itemOpener)) {
      report(line, "an item begins with \"item: KIND, HEADING\"");
      return;
    }
    const std::string_view rest = line.text.substr(itemOpener.size());
    const std::size_t comma = rest.find(',');
    readForm(line, rest.substr(0, comma));
    if (comma != std::string_view::npos) {
      readHeading(line, rest.substr(comma + 1));
    } else if (item_.form != ItemForm::Order) {
      report(line, "the heading is missing; \"none\" stands for no heading");
    }
  }

  void readForm(const SourceLine& line, std::string_view name) {
    const auto found = std::find_if(formNames.begin(), formNames.end(),
                                    [&](const FormName& each) { return each.name == name; });
    if (found == formNames.end()) {
      report(line, "the kind must be fill, choice, mistake or order", itemOpener.size());
    } else {
      item_.form = found->form;
    }
    if (item_.form == ItemForm::Order && place_ == ItemPlace::Bank) {
      report(line, "an ordering item belongs among a lesson's items: in a bank it ends the run",
             itemOpener.size());
    }
  }

  void readHeading(const SourceLine& line, std::string_view name) {
    const auto code = headingCode(trim(name), place_);
    if (!code) {
      report(line,
             place_ == ItemPlace::Bank ? "a bank has no heading of this name"
                                       : "a lesson's items have no heading of this name",
             line.text.find(',') + 1);
    }
    item_.heading = code.value_or(0);
    if (item_.form == ItemForm::Order && item_.heading != 0) {
      report(line, "an ordering item has no heading");
    }
  }

  void readHints(const SourceLine& line) {
    std::size_t from = hintsOpener.size();
    while (true) {
      const std::size_t to = std::min(line.text.find(',', from), line.text.size());
      const std::string hint = sourceText(trim(line.text.substr(from, to - from)),
                                          placeOf(line, from), "@`*|_", problems_);
      if (hint.empty()) report(line, "a hint is missing here", from);
      item_.hints.push_back(hint);
      if (to == line.text.size()) return;
      from = to + 1;
    }
  }

  // -- The question.

  void readContent(const SourceLine& line) {
    if (line.text.starts_with(explainOpener) && line.text.ends_with(':')) {
      beginExplanation(line);
    } else if (explaining_ != nullptr) {
      readExplanation(line);
    } else if (line.text.starts_with(hintsOpener) && !started_) {
      if (item_.form != ItemForm::Fill) report(line, "only a fill item has hints");
      readHints(line);
    } else {
      readQuestion(line);
      started_ = true;
    }
    emptyLines_ = 0;
  }

  void readQuestion(const SourceLine& line) {
    const bool option = line.text.starts_with(rightOpener) || line.text.starts_with(wrongOpener);
    if (item_.form == ItemForm::Order) {
      readSentence(line);
    } else if (item_.form == ItemForm::Choice && option) {
      readOption(line);
    } else if (!item_.options.empty()) {
      report(line, "behind the options only explanations may stand");
    } else {
      if (started_) text_.stored.append(emptyLines_ + 1, '\r');
      parseItemLine(line.text, {file_, line.number, 1}, braceUseOf(item_.form), text_, problems_);
    }
  }

  void readOption(const SourceLine& line) {
    const std::string_view written = line.text.substr(rightOpener.size());
    const Where where = placeOf(line, rightOpener.size());
    const std::string option = sourceText(written, where, "@`*|{}+", problems_);
    checkBlanks(option, where, problems_);
    if (option.empty()) problems_.add(where, "an option is missing here");
    item_.options.push_back(option);
    if (!line.text.starts_with(rightOpener)) return;
    if (item_.key != 0) report(line, "there is a right option already");
    item_.key = static_cast<int>(item_.options.size());
  }

  void readSentence(const SourceLine& line) {
    const bool translation = line.text.starts_with(translationOpener);
    const std::size_t from = translation ? translationOpener.size() : 0;
    const Where where = placeOf(line, from);
    const std::string text = sourceText(line.text.substr(from), where, StreamMarks, problems_);
    checkBlanks(text, where, problems_);
    if (translation) {
      item_.translations.push_back(text);
      if (item_.translations.size() != sentenceCount())
        report(line, "this translation has no sentence");
      return;
    }
    if (item_.translations.size() != sentenceCount()) {
      report(line, "the sentence above has no translation (\"= ...\")");
    }
    if (std::count(text.begin(), text.end(), ' ') < fewestBlanksBetweenWords) {
      report(line, "a sentence to be ordered has at least four words");
    }
    item_.options.push_back(text);
  }

  /// Ordering items keep their sentences among the options until they are finished.
  [[nodiscard]] std::size_t sentenceCount() const { return item_.options.size(); }

  // -- Explanations.

  void beginExplanation(const SourceLine& line) {
    started_ = true;
    std::string_view number = line.text.substr(explainOpener.size());
    number.remove_suffix(1);
    number = trim(number);
    int value = 0;
    if (!number.empty()) {
      const auto [end, failure] =
          std::from_chars(number.data(), number.data() + number.size(), value);
      if (failure != std::errc() || end != number.data() + number.size() || value < 1) {
        report(line, "this must read \"explain:\" or \"explain NUMBER:\"");
        value = 1;
      }
    }
    if (item_.form == ItemForm::Order) report(line, "an ordering item has no explanations");
    if (value <= lastExplained_) report(line, "explanations stand in rising order, each once");
    if (value > 0 && item_.form == ItemForm::Fill && help_ == BlankHelp::VerbLessons) {
      report(line, "in this bank the program explains each blank with the lessons 2 to 69");
    }
    if (value > braces()) {
      report(line, "the item has only " + std::to_string(braces()) + " to explain");
    }
    lastExplained_ = std::max(lastExplained_, value);
    explaining_ = value == 0 ? &item_.general : &item_.explanations[value];
    explainedNumber_ = value;
  }

  [[nodiscard]] int braces() const {
    return item_.form == ItemForm::Choice ? static_cast<int>(optionCount) : text_.braces;
  }

  void readExplanation(const SourceLine& line) {
    for (; emptyLines_ > 0 && !explaining_->empty(); --emptyLines_)
      explaining_->push_back({});
    const bool reference = line.text.starts_with(referenceOpener);
    const std::size_t from = reference ? referenceOpener.size() : 0;
    const Where where = placeOf(line, from);
    if (explainedNumber_ == 0) {
      if (reference) report(line, "the general explanation cannot lead to lessons");
      const MarkedLine text =
          parseMarkedLine(line.text.substr(from), where, LineKind::Explanation, problems_);
      if (text.blueFrom || std::count(text.red.begin(), text.red.end(), true) > 0) {
        report(line, "the general explanation has no colours");
      }
      explaining_->push_back({text, false, where});
    } else if (reference) {
      const std::string title = sourceText(line.text.substr(from), where, "`@#^", problems_);
      explaining_->push_back({{title, std::vector<bool>(title.size()), std::nullopt}, true, where});
    } else {
      explaining_->push_back(
          {parseMarkedLine(line.text, where, LineKind::Explanation, problems_), false, where});
    }
  }

  // -- The whole item.

  void finishItem() {
    if (!std::exchange(begun_, false)) return;
    for (const auto& [number, lines] : item_.explanations) {
      if (lines.empty()) reportItem("explanation " + std::to_string(number) + " is empty");
    }
    switch (item_.form) {
    case ItemForm::Fill:
      checkFill();
      break;
    case ItemForm::Choice:
      checkChoice();
      break;
    case ItemForm::Mistake:
      checkMistake();
      break;
    case ItemForm::Order:
      finishOrder();
      break;
    }
    if (item_.form != ItemForm::Order) item_.question = std::move(text_.stored);
    items_.push_back(std::move(item_));
  }

  void checkFill() {
    if (text_.braces == 0) reportItem("a fill item has at least one blank");
    if (text_.braces > mostBlanks) reportItem("an item has at most 1000 blanks");
    if (!item_.hints.empty() && static_cast<int>(item_.hints.size()) != text_.braces) {
      reportItem("there are " + std::to_string(item_.hints.size()) + " hints for " +
                 std::to_string(text_.braces) + " blanks");
    }
  }

  void checkChoice() {
    if (text_.stored.empty()) reportItem("the stem is missing");
    if (item_.options.size() != optionCount) {
      reportItem("a choice has four options and this one " + std::to_string(item_.options.size()));
    }
    if (item_.key == 0) reportItem("the right option (\"+ ...\") is missing");
    if (text_.marks > 0) reportItem("only a phrase of a mistake item begins with \"!\"");
    if (text_.hasGap && text_.braces > 0) {
      reportItem("a stem has either a phrase in braces or a gap of \"_\"");
    }
    checkDigits();
  }

  /// The program tells options from stem by digits in their places.
  void checkDigits() {
    bool inPhrase = false;
    for (const char character : text_.stored) {
      if (character == '*') inPhrase = true;
      if (character == '_') inPhrase = false;
      if (!inPhrase || character < '0' || character > '9') continue;
      reportItem("a phrase of a choice item has no digits");
      return;
    }
  }

  void checkMistake() {
    item_.key = text_.marked;
    if (text_.marks != 1) reportItem("exactly one phrase begins with \"!\"");
    if (text_.braces < fewestPhrases || text_.braces > mostPhrases) {
      reportItem("a mistake item has two to six phrases in braces");
    }
    if (text_.hasGap) reportItem("\"_\" cannot stand in a mistake item");
  }

  void finishOrder() {
    if (item_.options.empty()) reportItem("the sentences are missing");
    if (item_.translations.size() != item_.options.size()) {
      reportItem("each sentence needs a translation (\"= ...\")");
    }
    for (const std::string& sentence : std::exchange(item_.options, {}))
      item_.question += (item_.question.empty() ? "_" : " _") + sentence;
  }

  const std::string& file_;
  ItemPlace place_;
  BlankHelp help_;
  Problems& problems_;
  std::vector<Item> items_;
  Item item_;
  ItemText text_;
  ExplanationLines* explaining_ = nullptr; ///< what the next lines belong to
  int explainedNumber_ = 0;
  int lastExplained_ = -1;
  int itemLine_ = 0;
  std::size_t emptyLines_ = 0; ///< since the last line with content
  bool begun_ = false;         ///< an item is being read
  bool started_ = false;       ///< its question has begun
};

} // namespace

std::vector<Item> parseItems(std::string_view text, const std::string& file, ItemPlace place,
                             BlankHelp help, Problems& problems) {
  ItemParser parser(file, place, help, problems);
  for (const SourceLine& line : linesOf(text))
    parser.read(line);
  return parser.finish();
}

} // namespace talvora::pack
