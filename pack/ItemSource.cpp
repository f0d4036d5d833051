// Parsing of exercise items.
#include "pack/ItemSource.h"

#include "pack/ItemKeys.h"
#include "pack/ItemNotation.h"
#include "pack/ItemOpening.h"
#include "pack/ItemText.h"
#include "pack/Message.h"
#include "pack/NearestName.h"
#include "pack/SourceFile.h"
#include "pack/StreamText.h"
#include "pack/kinds/ItemKind.h"
#include "text/Bytes.h"
#include "text/Contains.h"
#include "text/Text.h"

#include <algorithm>
#include <charconv>
#include <utility>

namespace talvora::pack {

namespace {

constexpr int fewestBlanksBetweenWords = 3;

std::string inQuotes(std::string_view text) {
  return "\"" + std::string(text) + "\"";
}

/// Whether a line of UTF-8 is Vietnamese, as far as its letters tell.
bool hasVietnameseLetters(std::string_view utf8) {
  const auto text = streamText(utf8);
  // Quotes and dashes stand below 0x98, and "café" is English.
  return text && std::any_of(text->begin(), text->end(), [](char character) {
           return asc(character) >= 0x98 && asc(character) != 0x99 && asc(character) != 0xE9;
         });
}

/// Reads a file of items line by line. One mistake gives one message: a line that cannot be read
/// spares the item the checks that would only follow from it.
class ItemParser {
 public:
  ItemParser(const std::string& file, ItemPlace place, BlankHelp help, Problems& problems)
      : file_(file), place_(place), help_(help), problems_(problems) {}

  void read(const SourceLine& line) {
    if (line.text.starts_with("//")) return;
    const auto key = keyLineOf(line.text);
    if (key && key->key == ItemKey::Item) {
      finishItem();
      beginItem(line, *key);
    } else if (line.text.empty()) {
      if (started_) ++emptyLines_;
    } else if (begun_) {
      readContent(line, key);
    } else if (!std::exchange(skipping_, true)) {
      report(line, translated(ItemFirstLine));
    }
  }

  std::vector<Item> finish() {
    finishItem();
    return std::move(items_);
  }

 private:
  void report(const SourceLine& line, const std::string& message, std::size_t at = 0) {
    problems_.add(placeOf(line, at), message);
  }
  [[nodiscard]] Where placeOf(const SourceLine& line, std::size_t at = 0) const {
    return placeIn(line.text, at, {file_, line.number, 1});
  }

  // -- The first line.

  void beginItem(const SourceLine& line, const KeyLine& key) {
    item_ = Item();
    item_.where = placeOf(line);
    text_ = ItemText();
    explaining_ = nullptr;
    started_ = false;
    sound_ = true;
    emptyLines_ = 0;
    lastExplained_ = -1;
    const auto opening = parseItemOpening(line, key, file_, place_, problems_);
    begun_ = opening.has_value();
    // What stands below a line that cannot be read is left out up to the next item.
    skipping_ = true;
    if (!opening) return;
    item_.kind = opening->kind;
    item_.heading = opening->heading;
  }

  // -- The lines with a key.

  void readContent(const SourceLine& line, const std::optional<KeyLine>& key) {
    if (!key) {
      readText(line);
    } else if (key->key == ItemKey::Explain) {
      if (!key->exact) reportExplain(line, *key);
      beginExplanation(line, key->written);
    } else if (!key->exact) {
      reportKey(line, *key);
    } else if (key->key == ItemKey::See) {
      readReference(line);
    } else {
      readLeadingLine(line, key->key);
    }
    emptyLines_ = 0;
  }

  void reportKey(const SourceLine& line, const KeyLine& key) {
    const std::string written = inQuotes(std::string(key.written) + ":");
    if (key.key == ItemKey::None) {
      report(line,
             said("{} is no key: there are item, id, about, hints, explain and see", written));
    } else if (key.written == wordOf(key.key)) {
      report(line, said("a blank must stand behind {} and something behind that", written));
    } else {
      report(line, said("{} is no key", written) + didYouMean(std::string(wordOf(key.key)) + ":"));
    }
    sound_ = false;
  }

  void reportExplain(const SourceLine& line, const KeyLine& key) {
    const bool colon = key.written.size() < line.text.size();
    const bool known = key.written.starts_with(explainOpener);
    if (!known) {
      report(line, said("{} is no key; did you mean \"explain:\" or \"explain NUMBER:\"?",
                        inQuotes(std::string(key.written) + ":")));
    } else if (colon) {
      report(line, said("an explanation begins on the line below"), key.written.size() + 1);
    } else {
      report(line, said("the colon behind {} is missing", inQuotes(key.written)),
             key.written.size());
    }
  }

  /// Lines that stand ahead of the question.
  void readLeadingLine(const SourceLine& line, ItemKey key) {
    if (started_) {
      report(line,
             said("{} stands ahead of the question", inQuotes(std::string(wordOf(key)) + ":")));
      sound_ = false;
      return;
    }
    if (key == ItemKey::Hints) {
      if (!item_.kind->hasHints())
        report(line, said("the kind \"{}\" has no hints", item_.kind->name()));
      hintsAt_ = placeOf(line);
      readHints(line);
    } else if (key == ItemKey::Id) {
      readId(line);
    } else {
      const Where where = placeOf(line, aboutOpener.size());
      item_.about = {sourceText(line.text.substr(aboutOpener.size()), where, "`@#^", problems_),
                     where};
    }
  }

  void readHints(const SourceLine& line) {
    std::size_t from = hintsOpener.size();
    while (true) {
      const std::size_t to = std::min(line.text.find(',', from), line.text.size());
      const std::string hint = sourceText(trim(line.text.substr(from, to - from)),
                                          placeOf(line, from), "@`*|_", problems_);
      if (hint.empty()) report(line, said("a hint is missing here"), from);
      item_.hints.push_back(hint);
      if (to == line.text.size()) return;
      from = to + 1;
    }
  }

  void readId(const SourceLine& line) {
    constexpr std::string_view allowed = "abcdefghijklmnopqrstuvwxyz0123456789-";
    item_.id = line.text.substr(idOpener.size());
    if (item_.id.find_first_not_of(allowed) == std::string::npos) return;
    report(line, said("an id is made of small letters, digits and \"-\""), idOpener.size());
    item_.id.clear();
  }

  // -- The question.

  void readText(const SourceLine& line) {
    if (explaining_ == nullptr && isForgottenExplanation(line)) {
      report(line, said("this reads like an explanation; \"explain:\" is missing ahead of it"));
      startExplanation(line, 0);
    }
    if (explaining_ != nullptr) {
      readExplanation(line);
      return;
    }
    const std::size_t before = problems_.all().size();
    readQuestion(line);
    started_ = true;
    if (problems_.all().size() > before) sound_ = false;
  }

  /// A Vietnamese paragraph without a blank below the question.
  [[nodiscard]] bool isForgottenExplanation(const SourceLine& line) const {
    if (!item_.kind->isExplained() || isOption(line) || !hasVietnameseLetters(line.text)) {
      return false;
    }
    const std::size_t options = item_.kind->options();
    if (options > 0) return item_.options.size() == options;
    return emptyLines_ > 0 && text_.braces > 0 && line.text.find('{') == std::string_view::npos;
  }

  [[nodiscard]] bool isOption(const SourceLine& line) const {
    return item_.kind->options() > 0 &&
           (line.text.starts_with(rightOpener) || line.text.starts_with(wrongOpener));
  }

  void readQuestion(const SourceLine& line) {
    if (item_.kind->hasSentences()) {
      readSentence(line);
    } else if (isOption(line)) {
      readOption(line);
    } else if (!item_.options.empty()) {
      report(line, said("behind the options only explanations may stand"));
    } else {
      if (started_) text_.stored.append(emptyLines_ + 1, '\r');
      parseItemLine(line.text, {file_, line.number, 1}, item_.kind->braces(), text_, problems_);
    }
  }

  void readOption(const SourceLine& line) {
    const std::string_view written = line.text.substr(rightOpener.size());
    const Where where = placeOf(line, rightOpener.size());
    const std::string option = sourceText(written, where, "@`*|{}+", problems_);
    checkBlanks(option, where, problems_);
    if (option.empty()) problems_.add(where, said("an option is missing here"));
    const bool twice = contains(item_.options, option);
    if (twice) problems_.add(where, said("the item has this option already"));
    item_.options.push_back(option);
    if (!line.text.starts_with(rightOpener)) return;
    if (item_.key != 0) report(line, said("there is a right option already"));
    item_.key = static_cast<int>(item_.options.size());
  }

  /// Ordering items keep their sentences among the options until they are finished.
  void readSentence(const SourceLine& line) {
    bool translation = line.text.starts_with(translationOpener);
    const std::size_t from = translation ? translationOpener.size() : 0;
    const Where where = placeOf(line, from);
    const std::string text = sourceText(line.text.substr(from), where, StreamMarks, problems_);
    checkBlanks(text, where, problems_);
    const bool waits = item_.translations.size() < item_.options.size();
    if (!translation && waits && hasVietnameseLetters(line.text)) {
      report(line, said("a translation begins with \"= \""));
      translation = true;
    }
    if (translation) {
      if (!waits) report(line, said("this translation has no sentence"));
      if (text.empty()) problems_.add(where, said("a text is missing here"));
      item_.translations.push_back(text);
      return;
    }
    expectTranslation();
    if (std::count(text.begin(), text.end(), ' ') < fewestBlanksBetweenWords)
      report(line, said("a sentence to be ordered has at least four words"));
    sentenceAt_ = where;
    item_.options.push_back(text);
  }

  void expectTranslation() {
    if (item_.translations.size() >= item_.options.size()) return;
    problems_.add(sentenceAt_, said("this sentence needs a translation below it (\"= ...\")"));
    item_.translations.resize(item_.options.size());
  }

  // -- Explanations.

  void beginExplanation(const SourceLine& line, std::string_view written) {
    std::string_view number = trim(written.substr(std::min(written.find(' '), written.size())));
    if (written.starts_with(explainOpener)) number = trim(written.substr(explainOpener.size()));
    int value = 0;
    if (!number.empty()) {
      const auto [end, failure] =
          std::from_chars(number.data(), number.data() + number.size(), value);
      if (failure != std::errc() || end != number.data() + number.size() || value < 1) {
        report(line, said("this must read \"explain:\" or \"explain NUMBER:\""));
        value = 1;
      }
    }
    if (!item_.kind->isExplained())
      report(line, said("the kind \"{}\" has no explanations", item_.kind->name()));
    if (value <= lastExplained_)
      report(line, said("explanations stand in rising order, each once"));
    if (value > 0 && item_.kind->isTyped() && help_ == BlankHelp::VerbLessons)
      report(line, said("in this bank the program explains each blank with the lessons 2 to 69"));
    if (value > explainable() && item_.kind->isExplained() && sound_)
      report(line, said("the item has only {} to explain", explainable()));
    startExplanation(line, value);
  }

  void startExplanation(const SourceLine& line, int number) {
    finishExplanation();
    started_ = true;
    lastExplained_ = std::max(lastExplained_, number);
    explaining_ = number == 0 ? &item_.general : &item_.explanations[number];
    explainedNumber_ = number;
    explainedAt_ = placeOf(line);
  }

  void finishExplanation() {
    if (explaining_ == nullptr || !explaining_->empty()) return;
    problems_.add(explainedAt_, explainedNumber_ == 0
                                    ? said("the general explanation is empty")
                                    : said("explanation {} is empty", explainedNumber_));
  }

  [[nodiscard]] int explainable() const {
    const std::size_t options = item_.kind->options();
    return options > 0 ? static_cast<int>(options) : text_.braces;
  }

  void addEmptyLines() {
    for (; emptyLines_ > 0 && !explaining_->empty(); --emptyLines_)
      explaining_->push_back({});
  }

  void readReference(const SourceLine& line) {
    if (explaining_ == nullptr) {
      report(line,
             said("\"see:\" stands in an explanation; \"explain NUMBER:\" is missing ahead of it"));
      sound_ = false;
      return;
    }
    if (explainedNumber_ == 0) report(line, said("the general explanation cannot lead to lessons"));
    addEmptyLines();
    const Where where = placeOf(line, referenceOpener.size());
    const std::string title =
        sourceText(line.text.substr(referenceOpener.size()), where, "`@#^", problems_);
    explaining_->push_back({{title, std::vector<bool>(title.size()), std::nullopt}, true, where});
  }

  void readExplanation(const SourceLine& line) {
    addEmptyLines();
    const Where where = placeOf(line);
    const std::size_t before = problems_.all().size();
    const MarkedLine text = parseMarkedLine(line.text, where, LineKind::Explanation, problems_);
    const bool coloured = text.blueFrom || std::count(text.red.begin(), text.red.end(), true) > 0;
    if (explainedNumber_ == 0 && coloured && problems_.all().size() == before)
      report(line, said("the general explanation has no colours"));
    explaining_->push_back({text, false, where});
  }

  // -- The whole item.

  void finishItem() {
    if (!std::exchange(begun_, false)) return;
    finishExplanation();
    if (item_.kind->hasSentences()) expectTranslation();
    if (sound_) item_.kind->check(item_, text_, hintsAt_, problems_);
    item_.kind->finish(item_, text_);
    items_.push_back(std::move(item_));
  }

  const std::string& file_;
  ItemPlace place_;
  BlankHelp help_;
  Problems& problems_;
  std::vector<Item> items_;
  Item item_;
  ItemText text_;
  Where hintsAt_;
  Where sentenceAt_;                       ///< of the last sentence to be ordered
  ExplanationLines* explaining_ = nullptr; ///< what the next lines belong to
  Where explainedAt_;
  int explainedNumber_ = 0;
  int lastExplained_ = -1;
  std::size_t emptyLines_ = 0; ///< since the last line with content
  bool begun_ = false;         ///< an item is being read
  bool skipping_ = false;      ///< lines outside of an item have been reported
  bool started_ = false;       ///< its question has begun
  bool sound_ = true;          ///< its question has had no mistake so far
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
