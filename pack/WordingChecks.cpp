// Looking for what is written otherwise, line by line.
#include "pack/WordingChecks.h"

#include "pack/ExerciseSource.h"
#include "pack/MarkedLine.h"
#include "pack/Message.h"
#include "pack/SmallLetters.h"
#include "pack/SourceFile.h"
#include "pack/Weekdays.h"
#include "text/CharClass.h"
#include "text/Contains.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace talvora::pack {

namespace {

// "may" and "march" are also verbs.
constexpr std::array<std::string_view, 10> months = {"january",  "february", "april",     "june",
                                                     "july",     "august",   "september", "october",
                                                     "november", "december"};
constexpr std::array<std::string_view, 8> tens = {"twenty", "thirty",  "forty",  "fifty",
                                                  "sixty",  "seventy", "eighty", "ninety"};
constexpr std::array<std::string_view, 18> units = {
    "one",   "two",    "three", "four",   "five",  "six",   "seven",   "eight",  "nine",
    "first", "second", "third", "fourth", "fifth", "sixth", "seventh", "eighth", "ninth"};

/// Whether a byte of UTF-8 belongs to a word; quotation marks and dashes begin with the byte 0xE2.
bool isWordByte(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  return code < 0x80 ? Letters.has(byte) : code != 0xE2;
}

/// The places at which a word or two stand in a line as words of their own.
std::vector<std::size_t> placesOf(std::string_view line, std::string_view words) {
  constexpr std::size_t markLength = 3; // of a quotation mark
  std::vector<std::size_t> places;
  for (std::size_t at = line.find(words); at != std::string_view::npos;
       at = line.find(words, at + 1)) {
    const std::size_t end = at + words.size();
    const bool behindMark = at >= markLength && line[at - markLength] == '\xE2';
    const bool opens = at == 0 || behindMark || !isWordByte(line[at - 1]);
    if (opens && (end == line.size() || !isWordByte(line[end]))) places.push_back(at);
  }
  return places;
}

/// The line with a small letter at the start of each sentence.
std::string smallOpenings(std::string_view line) {
  std::string small(line);
  bool opens = true;
  for (char& character : small) {
    if (Letters.has(character)) {
      if (opens) character = lower(character);
      opens = false;
    } else if (std::string_view(".?!").find(character) != std::string_view::npos) {
      opens = true;
    }
  }
  return small;
}

/// The spelling with a capital where what stands for it has one.
std::string likeCapital(std::string_view used, std::string_view found) {
  std::string word(used);
  const bool capital = !found.empty() && found.front() >= 'A' && found.front() <= 'Z';
  if (capital && word.front() >= 'a' && word.front() <= 'z')
    word.front() = static_cast<char>(word.front() - 'a' + 'A');
  return word;
}

struct Stretch {
  std::size_t at = 0;
  std::string_view text;
};

std::vector<Stretch> wordsOf(std::string_view line) {
  std::vector<Stretch> words;
  for (std::size_t at = 0; at < line.size(); ++at) {
    if (!Letters.has(line[at])) continue;
    std::size_t end = at;
    while (end < line.size() && Letters.has(line[end]))
      ++end;
    words.push_back({at, line.substr(at, end - at)});
    at = end;
  }
  return words;
}

/// The first of some phrases that stands in a line; empty without one.
std::string firstOf(const std::vector<std::string>& phrases, std::string_view line) {
  const auto found = std::ranges::find_if(
      phrases, [line](const std::string& phrase) { return !placesOf(line, phrase).empty(); });
  return found == phrases.end() ? std::string() : *found;
}

/// Where the translation begins in a line "= ..." or "> Sentence. = ..."; behind it without one.
std::size_t translationIn(std::string_view line) {
  if (line.starts_with("= ")) return 0;
  return std::min(line.find(" = "), line.size());
}

/// Checks one source.
class WordingChecker {
 public:
  WordingChecker(const std::string& file, const WordingList& list, WordingUse use,
                 Problems& problems)
      : file_(file), list_(list), use_(use), problems_(problems), north_(list.regions.size()),
        south_(list.regions.size()) {}

  void read(const SourceLine& line) {
    line_ = line;
    if (line.text.starts_with("//")) return;
    if (above_.empty()) ownTwin_ = twinOpening(line.text);
    checkVietnamese();
    if (use_ != WordingUse::Lessons) checkEnglish();
    if (use_ == WordingUse::Texts) checkText();
    above_ = line.text;
  }

  void finish() {
    for (std::size_t row = 0; row < north_.size(); ++row) {
      const Regional& north = north_[row];
      const Regional& south = south_[row];
      if (north.word.empty() || south.word.empty()) continue;
      problems_.add({file_, std::max(north.line, south.line), 1},
                    said("\"{}\" of the north and \"{}\" of the south stand in one text, here "
                         "and in line {}",
                         north.word, south.word, std::min(north.line, south.line)));
    }
  }

 private:
  /// A word of one region, and where it stands first.
  struct Regional {
    std::string word;
    int line = 0;
  };

  /// The unused spelling that an entry of the dictionary is about; empty for another one.
  [[nodiscard]] std::string twinOpening(std::string_view block) const {
    std::string head = lower(block.substr(0, block.find(' ')));
    const bool twin = std::ranges::find(list_.english, head, &Twin::unused) != list_.english.end();
    return twin && use_ == WordingUse::Dictionary ? head : std::string();
  }

  void report(std::size_t at, std::string message) {
    problems_.add(placeIn(line_.text, at, {file_, line_.number, 1}), std::move(message));
  }

  void reportTwin(std::size_t at, const Twin& twin) {
    const std::string_view found = line_.text.substr(at, twin.unused.size());
    report(at, said("\"{}\" is written \"{}\" here", found, likeCapital(twin.used, found)));
  }

  void checkVietnamese() {
    const std::string small = smallUtf8(line_.text);
    const std::size_t translation = translationIn(line_.text);
    for (const Twin& twin : list_.everywhere) {
      // Of "chủ nhật" and "Chủ nhật" the capital is the matter.
      const bool capital = smallUtf8(twin.used) == twin.unused;
      for (const std::size_t at : placesOf(capital ? line_.text : small, twin.unused))
        reportTwin(at, twin);
    }
    for (const Twin& twin : list_.translations) {
      for (const std::size_t at : placesOf(small, twin.unused))
        if (at > translation) reportTwin(at, twin);
    }
    for (const Weekday& day : Weekdays)
      checkWeekday(day, small);
  }

  void checkWeekday(const Weekday& day, std::string_view small) {
    const auto isThere = [this](std::string_view word) {
      return !word.empty() && (line_.text.find(word) != std::string_view::npos ||
                               above_.find(word) != std::string_view::npos);
    };
    if (!isThere(day.english) || isThere(day.ordinal)) return;
    // The first letter is that of any word; the capital is the second one's.
    const std::string_view capital = day.vietnamese.substr(day.vietnamese.find(' '));
    for (const std::size_t at : placesOf(small, smallUtf8(day.vietnamese))) {
      if (!line_.text.substr(0, at + day.vietnamese.size()).ends_with(capital))
        reportTwin(at, {std::string(day.vietnamese), std::string(day.vietnamese)});
    }
  }

  void checkEnglish() {
    const std::string small = smallUtf8(line_.text);
    for (const Twin& twin : list_.english) {
      if (!ownTwin_.empty() && twin.unused.starts_with(ownTwin_)) continue;
      for (const std::size_t at : placesOf(small, twin.unused))
        reportTwin(at, twin);
    }
  }

  void checkText() {
    const std::string small = smallOpenings(line_.text);
    for (const Twin& twin : list_.texts) {
      for (const std::size_t at : placesOf(small, twin.unused))
        reportTwin(at, twin);
    }
    if (line_.text.starts_with('=')) {
      collectRegional(smallUtf8(line_.text));
    } else {
      checkNumbers();
      checkCapitals();
    }
  }

  /// "thirty five", but not the "twenty" of the year "twenty twenty-five".
  void checkNumbers() {
    const auto words = wordsOf(line_.text);
    for (std::size_t at = 0; at + 1 < words.size(); ++at) {
      const Stretch& ten = words[at];
      const Stretch& unit = words[at + 1];
      const bool beside = unit.at == ten.at + ten.text.size() + 1 && line_.text[unit.at - 1] == ' ';
      if (!beside || !contains(tens, lower(ten.text)) || !contains(units, lower(unit.text)))
        continue;
      report(ten.at, said("a number has a hyphen: \"{}-{}\"", ten.text, unit.text));
    }
  }

  void checkCapitals() {
    for (const Stretch& word : wordsOf(line_.text)) {
      if (weekdayNamed(word.text) != nullptr || contains(months, word.text))
        report(word.at, said("\"{}\" begins with a capital", word.text));
    }
  }

  void collectRegional(std::string_view small) {
    for (std::size_t row = 0; row < list_.regions.size(); ++row) {
      const auto note = [&](Regional& first, const std::vector<std::string>& phrases) {
        if (!first.word.empty()) return;
        first = {firstOf(phrases, small), line_.number};
      };
      note(north_[row], list_.regions[row].north);
      note(south_[row], list_.regions[row].south);
    }
  }

  const std::string& file_;
  const WordingList& list_;
  WordingUse use_;
  Problems& problems_;
  SourceLine line_;
  std::string ownTwin_;         ///< the unused spelling that the block may have
  std::string above_;           ///< the line above
  std::vector<Regional> north_; ///< by the row of the list; empty where the text has none
  std::vector<Regional> south_;
};

} // namespace

void checkWording(std::string_view text, const std::string& file, const WordingList& list,
                  WordingUse use, Problems& problems) {
  WordingChecker checker(file, list, use, problems);
  for (const SourceLine& line : linesOf(text))
    checker.read(line);
  checker.finish();
}

void checkWordings(const std::filesystem::path& source, Problems& problems) {
  const WordingList list = readWordingList(source / WordingFile, problems);
  constexpr std::array<std::pair<std::string_view, WordingUse>, 6> folders = {
      {{"reading", WordingUse::Texts},
       {"speaking", WordingUse::Texts},
       {"listening", WordingUse::Texts},
       {"dictionary", WordingUse::Dictionary},
       {"lessons", WordingUse::Lessons},
       {"analysis", WordingUse::Lessons}}};
  const auto checkFile = [&](const std::filesystem::path& path, WordingUse use) {
    checkWording(readText(path, problems), path.string(), list, use, problems);
  };
  for (const auto& [folder, use] : folders) {
    for (const auto& path : textFilesIn(source / folder, problems))
      checkFile(path, use);
  }
  for (const std::string_view bank : BankNames) {
    for (const auto& path : textFilesIn(source / "exercises" / bank, problems))
      checkFile(path, WordingUse::Lessons);
  }
  checkFile(source / "guide.txt", WordingUse::Lessons);
}

} // namespace talvora::pack
