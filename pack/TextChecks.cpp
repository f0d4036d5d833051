// The rules for sentences, line by line.
#include "pack/TextChecks.h"

#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "pack/TextWords.h"
#include "pack/TranslationRules.h"
#include "text/CharClass.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <optional>

namespace talvora::pack {

namespace {

constexpr CharClass capitals("[A-Z]");
constexpr CharClass hyphenated("[a-zA-Z'-]");
constexpr CharClass digits("[0-9]");
constexpr std::string_view opening = "“";
constexpr std::string_view closing = "”";
constexpr std::string_view points = ".?!";

constexpr std::array<std::string_view, 8> tens = {"twenty", "thirty",  "forty",  "fifty",
                                                  "sixty",  "seventy", "eighty", "ninety"};

/// True for "twenty-one" to "ninety-nine", which are spelled with a hyphen and have no entry.
bool isNumber(std::string_view word) {
  return std::any_of(tens.begin(), tens.end(), [word](std::string_view ten) {
    return word.starts_with(ten) && word.substr(ten.size()).starts_with('-');
  });
}

bool isSentence(std::string_view line) {
  return !line.empty() && !line.starts_with("//") && !line.starts_with('=') &&
         !line.starts_with("title:");
}

bool endsClosed(std::string_view line) {
  if (line.ends_with(closing)) line.remove_suffix(closing.size());
  return !line.empty() && points.find(line.back()) != std::string_view::npos;
}

bool opensSentence(std::string_view rest) {
  return rest.size() > 1 && rest.front() == ' ' &&
         (capitals.has(rest[1]) || rest.substr(1).starts_with(opening));
}

/// Where a second sentence begins. What somebody says may be several sentences: only a point
/// outside it counts, or the full stop that closes it ahead of a new sentence.
std::optional<std::size_t> secondSentence(std::string_view line) {
  bool inside = false;
  for (std::size_t at = 0; at < line.size(); ++at) {
    const std::string_view rest = line.substr(at);
    if (rest.starts_with(opening)) inside = true;
    if (rest.starts_with(closing)) inside = false;
    if (points.find(line[at]) == std::string_view::npos) continue;
    if (!inside && opensSentence(rest.substr(1))) return at + 2;
    const bool closesSpeech = line[at] == '.' && rest.substr(1).starts_with(closing);
    if (closesSpeech && opensSentence(rest.substr(1 + closing.size())))
      return at + closing.size() + 2;
  }
  return std::nullopt;
}

/// Where a quotation opens with the mark that closes one, or the other way round.
std::optional<std::size_t> wrongQuotationMark(std::string_view line) {
  for (std::size_t at = 0; at < line.size(); ++at) {
    const std::string_view rest = line.substr(at);
    const bool behindBlank = at == 0 || line[at - 1] == ' ';
    if (rest.starts_with(closing) && behindBlank) return at;
    if (rest == opening || rest.starts_with(std::string(opening) + " ")) return at;
  }
  return std::nullopt;
}

/// Checks one text.
class TextChecker {
 public:
  TextChecker(const std::string& file, TextUse use, const std::unordered_set<std::string>& heads,
              Problems& problems)
      : file_(file), use_(use), heads_(heads), problems_(problems) {}

  void read(const SourceLine& line) {
    if (line.text.empty()) newParagraph_ = true;
    if (line.text.starts_with('=')) checkTranslation(line);
    if (!isSentence(line.text)) return;
    if (newParagraph_) ++paragraphs_;
    newParagraph_ = false;
    asks_ = asks_ || line.text.find('?') != std::string_view::npos;
    line_ = line.number;
    checkSentence(line.text);
    checkHyphens(line.text);
    sentence_ = line.text;
    if (use_ == TextUse::Speaking) checkSpoken(line.text);
  }

  void finish() {
    if (use_ == TextUse::Speaking && asks_ && paragraphs_ == 1) {
      problems_.add({file_}, said("somebody asks here and all is one paragraph: each turn of a "
                                  "conversation is a paragraph of its own"));
    }
  }

 private:
  void report(std::size_t at, std::string message) {
    problems_.add({file_, line_, static_cast<int>(at) + 1}, std::move(message));
  }

  void checkSentence(std::string_view line) {
    if (!endsClosed(line)) {
      report(line.size(),
             said("the sentence has no closing point; dictation drops its last letter"));
    }
    if (const auto second = secondSentence(line))
      report(*second, said("a second sentence begins here; each has a line of its own"));
    checkQuotationMarks(line);
  }

  void checkQuotationMarks(std::string_view line) {
    if (const auto wrong = wrongQuotationMark(line))
      report(*wrong, said("a quotation opens with “ and closes with ”"));
  }

  void checkTranslation(const SourceLine& line) {
    line_ = line.number;
    if (!endsClosed(line.text))
      report(line.text.size(), said("the translation has no closing point"));
    checkQuotationMarks(line.text);
    for (std::string& fault : translationFaults(sentence_, line.text, Surroundings::Text))
      report(0, std::move(fault));
  }

  void checkHyphens(std::string_view line) {
    std::size_t at = 0;
    while (at < line.size()) {
      std::size_t end = at;
      while (end < line.size() && hyphenated.has(line[end]))
        ++end;
      checkHyphen(lower(line.substr(at, end - at)), at);
      at = end + 1;
    }
  }

  // A click looks up the word with its hyphen, and the list has its lines without.
  void checkHyphen(const std::string& word, std::size_t at) {
    if (word.find('-') == std::string::npos || isNumber(word)) return;
    std::string parted = word;
    std::replace(parted.begin(), parted.end(), '-', ' ');
    if (heads_.count(word) != 0 || heads_.count(parted) != 0) return;
    report(at, said("\"{}\" has a hyphen and no entry; write it in another way", word));
  }

  void checkSpoken(std::string_view line) {
    for (std::size_t at = 0; at < line.size(); ++at) {
      const std::string_view rest = line.substr(at);
      const bool quote =
          rest.front() == '"' || rest.starts_with(opening) || rest.starts_with(closing);
      if (quote || rest.front() == ';' || rest.front() == ':') {
        report(at, said("a mark that the voice passes over; use a comma or two sentences"));
      } else if (digits.has(rest.front())) {
        report(at, said("numbers are written out in a text to speak"));
        break;
      }
    }
    const auto words = textWords(line).size();
    if (words > MostWordsToSpeak) {
      report(0, said("the line has {} words; at most {} can be said after the voice", words,
                     MostWordsToSpeak));
    }
  }

  const std::string& file_;
  TextUse use_;
  const std::unordered_set<std::string>& heads_;
  Problems& problems_;
  std::string_view sentence_; ///< the one that was read last
  int line_ = 0;
  int paragraphs_ = 0;
  bool newParagraph_ = true;
  bool asks_ = false;
};

} // namespace

void checkText(std::string_view source, const std::string& file, TextUse use,
               const std::unordered_set<std::string>& heads, Problems& problems) {
  TextChecker checker(file, use, heads, problems);
  for (const SourceLine& line : linesOf(source))
    checker.read(line);
  checker.finish();
}

void checkTexts(const std::filesystem::path& folder, TextUse use,
                const std::unordered_set<std::string>& heads, Problems& problems) {
  for (const auto& path : textFilesIn(folder, problems)) {
    const std::string name = path.filename().string();
    const bool guide = use == TextUse::Reading && name.starts_with("002-");
    if (guide || name == "headings.txt") continue;
    checkText(readSource(path, problems), path.string(), use, heads, problems);
  }
}

} // namespace talvora::pack
