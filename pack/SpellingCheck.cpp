// Looking for listed spellings, line by line.
#include "pack/SpellingCheck.h"

#include "pack/ExerciseSource.h"
#include "pack/MarkedLine.h"
#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <utility>

namespace talvora::pack {

namespace {

constexpr std::string_view equals = " = ";

struct Weekday {
  std::string_view english;
  std::string_view unused;
  std::string_view used;
};

constexpr std::array<Weekday, 6> weekdays = {{{"Monday", "thứ hai", "thứ Hai"},
                                              {"Tuesday", "thứ ba", "thứ Ba"},
                                              {"Wednesday", "thứ tư", "thứ Tư"},
                                              {"Thursday", "thứ năm", "thứ Năm"},
                                              {"Friday", "thứ sáu", "thứ Sáu"},
                                              {"Saturday", "thứ bảy", "thứ Bảy"}}};

bool isAscii(std::string_view text) {
  return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// Whether a byte of UTF-8 belongs to a word; quotation marks and dashes begin with the byte 0xE2.
bool isWordByte(char byte) {
  const auto code = static_cast<unsigned char>(byte);
  if (code < 0x80) return lower(byte) >= 'a' && lower(byte) <= 'z';
  return code != 0xE2;
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

/// The spelling with a capital, for what begins with a letter of ASCII.
std::string capitalised(std::string_view text) {
  std::string word(text);
  if (!word.empty() && word.front() >= 'a' && word.front() <= 'z')
    word.front() = static_cast<char>(word.front() - 'a' + 'A');
  return word;
}

/// Checks one source.
class SpellingChecker {
 public:
  SpellingChecker(const std::string& file, const std::vector<Spelling>& spellings, Spelled spelled,
                  Problems& problems)
      : file_(file), spellings_(spellings), spelled_(spelled), problems_(problems) {}

  void read(const SourceLine& line) {
    line_ = line.number;
    if (line.text.starts_with("//")) return;
    if (above_.empty()) head_ = lower(line.text.substr(0, line.text.find(' ')));
    for (const Spelling& spelling : spellings_)
      checkWord(line.text, spelling);
    for (const Weekday& day : weekdays) {
      const bool named = line.text.find(day.english) != std::string_view::npos ||
                         above_.find(day.english) != std::string_view::npos;
      if (named) check(line.text, day.unused, day.used);
    }
    above_ = line.text;
  }

 private:
  void checkWord(std::string_view line, const Spelling& spelling) {
    if (isAscii(spelling.unused) && isAscii(spelling.used)) {
      const bool head = !head_.empty() && spelling.unused.starts_with(head_);
      const bool allowed = spelled_ == Spelled::Vietnamese || head;
      if (allowed) return;
    }
    check(line, spelling.unused, spelling.used);
  }

  void check(std::string_view line, std::string_view unused, std::string_view used) {
    report(line, unused, used);
    const std::string opening = capitalised(unused);
    if (opening != unused && opening != used) report(line, opening, capitalised(used));
  }

  void report(std::string_view line, std::string_view unused, std::string_view used) {
    for (const std::size_t at : placesOf(line, unused)) {
      problems_.add(placeIn(line, at, {file_, line_, 1}),
                    said("\"{}\" is spelled \"{}\" here", unused, used));
    }
  }

  const std::string& file_;
  const std::vector<Spelling>& spellings_;
  Spelled spelled_;
  Problems& problems_;
  std::string head_;  ///< the word that opens the block, in small letters
  std::string above_; ///< the line above
  int line_ = 0;
};

} // namespace

std::vector<Spelling> readSpellings(const std::filesystem::path& path, Problems& problems) {
  std::vector<Spelling> spellings;
  const std::string text = readWhole(path).value_or("");
  for (const SourceLine& line : linesOf(text)) {
    if (line.text.empty() || line.text.starts_with("//")) continue;
    const std::size_t middle = line.text.find(equals);
    if (middle == std::string_view::npos) {
      problems.add({path.string(), line.number, 1}, said("a spelling must be \"unused = used\""));
      continue;
    }
    spellings.push_back({std::string(trim(line.text.substr(0, middle))),
                         std::string(trim(line.text.substr(middle + equals.size())))});
  }
  return spellings;
}

void checkSpelling(std::string_view text, const std::string& file,
                   const std::vector<Spelling>& spellings, Spelled spelled, Problems& problems) {
  SpellingChecker checker(file, spellings, spelled, problems);
  for (const SourceLine& line : linesOf(text))
    checker.read(line);
}

void checkSpellings(const std::filesystem::path& source, Problems& problems) {
  const auto spellings = readSpellings(source / SpellingFile, problems);
  constexpr std::array<std::pair<std::string_view, Spelled>, 6> folders = {
      {{"reading", Spelled::InBoth},
       {"speaking", Spelled::InBoth},
       {"listening", Spelled::InBoth},
       {"dictionary", Spelled::InBoth},
       {"lessons", Spelled::Vietnamese},
       {"analysis", Spelled::Vietnamese}}};
  const auto checkFolder = [&](const std::filesystem::path& folder, Spelled spelled) {
    for (const auto& path : textFilesIn(folder))
      checkSpelling(readText(path, problems), path.string(), spellings, spelled, problems);
  };
  for (const auto& [folder, spelled] : folders)
    checkFolder(source / folder, spelled);
  for (const std::string_view bank : BankNames)
    checkFolder(source / "exercises" / bank, Spelled::Vietnamese);
  const auto guide = source / "guide.txt";
  checkSpelling(readText(guide, problems), guide.string(), spellings, Spelled::Vietnamese,
                problems);
}

} // namespace talvora::pack
