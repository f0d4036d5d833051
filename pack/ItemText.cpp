// Reading and writing of blanks and phrases.
#include "pack/ItemText.h"

#include "pack/MarkedLine.h"
#include "pack/Message.h"
#include "pack/StreamText.h"
#include "text/Bytes.h"

#include <algorithm>

namespace talvora::pack {

namespace {

constexpr std::string_view questionMarks = "@`*|}";
constexpr std::size_t mostForms = 2;
constexpr char rightQuote = chr(0x92);

bool isWordCharacter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
         (character >= '0' && character <= '9') || asc(character) >= 0x80;
}

bool isTypable(char character) {
  return asc(character) >= 0x20 && asc(character) < 0x7F;
}

class ItemLineParser {
 public:
  ItemLineParser(std::string_view utf8, const Where& where, BraceUse use, ItemText& text,
                 Problems& problems)
      : utf8_(utf8), where_(where), use_(use), text_(text), problems_(problems) {}

  void run() {
    if (utf8_.starts_with('+')) report(0, said("a line of a question cannot begin with \"+\""));
    if (utf8_.starts_with(' ') || utf8_.ends_with(' ')) report(0, said("a blank at an end"));
    std::size_t at = 0;
    while (at < utf8_.size()) {
      const std::size_t brace = std::min(utf8_.find('{', at), utf8_.size());
      addPlain(at, brace);
      if (brace == utf8_.size()) return;
      const std::size_t end = utf8_.find('}', brace);
      if (end == std::string_view::npos || utf8_.find('{', brace + 1) < end) {
        report(brace, said("this \"{{\" is not closed on its line"));
        return;
      }
      at = use_ == BraceUse::Answer ? addAnswer(brace, end) : addPhrase(brace, end);
    }
  }

 private:
  void report(std::size_t at, const std::string& message) {
    problems_.add(placeIn(utf8_, at, where_), message);
  }

  std::string bytes(std::size_t from, std::size_t to, std::string_view forbidden) {
    return sourceText(utf8_.substr(from, to - from), placeIn(utf8_, from, where_), forbidden,
                      problems_);
  }

  void addPlain(std::size_t from, std::size_t to) {
    const std::string plain = bytes(from, to, questionMarks);
    if (plain.find('_') != std::string::npos) {
      if (use_ == BraceUse::Answer) report(from, said("\"_\" stands only right behind a \"}}\""));
      text_.hasGap = true;
    }
    text_.stored += plain;
  }

  std::size_t addAnswer(std::size_t brace, std::size_t end) {
    if (text_.stored.ends_with('_')) report(brace, said("something must stand between two blanks"));
    text_.stored += '*';
    if (hasEmptyForm(brace + 1, end))
      report(brace,
             said("an answer is missing beside the \"|\"; a blank that stays empty is \"{{}}\""));
    std::size_t from = brace + 1;
    for (std::size_t form = 1;; ++form) {
      const std::size_t to = std::min(utf8_.find('|', from), end);
      if (form > mostForms) report(from, said("at most two answers are accepted"));
      addForm(from, to);
      if (to == end) break;
      text_.stored += '\\';
      from = to + 1;
    }
    std::size_t behind = end + 1;
    while (behind < utf8_.size() && utf8_[behind] == '_')
      ++behind;
    const std::size_t room = behind - end - 1;
    text_.stored.append(room > 0 ? room : UsualRoom, '_');
    ++text_.braces;
    return behind;
  }

  /// Whether a part beside a "|" is empty.
  [[nodiscard]] bool hasEmptyForm(std::size_t from, std::size_t end) const {
    const std::string_view forms = utf8_.substr(from, end - from);
    return forms.starts_with('|') || forms.ends_with('|') ||
           forms.find("||") != std::string_view::npos;
  }

  void addForm(std::size_t from, std::size_t to) {
    const std::string form = bytes(from, to, "_@`*{\\");
    if (!std::all_of(form.begin(), form.end(), isTypable)) {
      report(from, form.find(rightQuote) == std::string::npos
                       ? said("an answer is typed in plain English letters")
                       : said("an answer is typed in plain English letters; use ' for ’"));
    }
    checkBlanks(form, placeIn(utf8_, from, where_), problems_);
    text_.stored += form;
  }

  std::size_t addPhrase(std::size_t brace, std::size_t end) {
    std::size_t from = brace + 1;
    ++text_.braces;
    if (from < end && utf8_[from] == '!') {
      ++from;
      ++text_.marks;
      text_.marked = text_.braces;
    }
    const std::string phrase = bytes(from, end, "_@`*|{");
    if (phrase.empty()) report(from, said("a phrase is missing here"));
    checkBlanks(phrase, placeIn(utf8_, from, where_), problems_);
    openPhrase(brace);
    text_.stored += '*' + phrase + '_';
    return behindPhrase(end + 1);
  }

  /// The marks of a phrase are shown as blanks, so that one between it and a word falls away.
  void openPhrase(std::size_t brace) {
    std::string& stored = text_.stored;
    if (stored.ends_with('_')) report(brace, said("something must stand between two phrases"));
    if (!stored.empty() && isWordCharacter(stored.back())) {
      report(brace, said("a phrase cannot touch a letter"));
    }
    const bool merges =
        stored.size() > 1 && stored.back() == ' ' && isWordCharacter(stored[stored.size() - 2]);
    if (merges) stored.pop_back();
  }

  std::size_t behindPhrase(std::size_t at) {
    if (at < utf8_.size() && isWordCharacter(utf8_[at])) {
      report(at, said("a phrase cannot touch a letter"));
    }
    if (at < utf8_.size() && utf8_[at] == '_') report(at, said("a gap cannot touch a phrase"));
    // The program marks one character more than a candidate has, which is so a blank.
    const bool merges = use_ == BraceUse::Phrase && at + 1 < utf8_.size() && utf8_[at] == ' ' &&
                        isWordCharacter(utf8_[at + 1]);
    return merges ? at + 1 : at;
  }

  std::string_view utf8_;
  const Where& where_;
  BraceUse use_;
  ItemText& text_;
  Problems& problems_;
};

std::string writtenForms(std::string_view key) {
  std::string forms;
  for (const char character : key)
    forms += character == '\\' ? "|" : utf8Of({&character, 1});
  return forms;
}

} // namespace

void parseItemLine(std::string_view utf8, const Where& where, BraceUse use, ItemText& text,
                   Problems& problems) {
  ItemLineParser(utf8, where, use, text, problems).run();
}

std::string writeItemText(std::string_view stored, BraceUse use, int marked) {
  std::string source;
  int number = 0;
  while (!stored.empty()) {
    const std::size_t star = std::min(stored.find('*'), stored.size());
    for (const char character : stored.substr(0, star))
      source += character == '\r' ? "\n" : utf8Of({&character, 1});
    if (star == stored.size()) break;
    const bool touches = star > 0 && isWordCharacter(stored[star - 1]);
    stored.remove_prefix(star + 1);
    const std::size_t keyEnd = std::min(stored.find('_'), stored.size());
    const std::size_t roomEnd = std::min(stored.find_first_not_of('_', keyEnd), stored.size());
    const std::string_view key = stored.substr(0, keyEnd);
    ++number;
    if (use == BraceUse::Answer) {
      source += '{' + writtenForms(key) + '}';
      const std::size_t room = roomEnd - keyEnd;
      if (room != UsualRoom) source.append(room, '_');
      stored.remove_prefix(roomEnd);
    } else {
      if (touches) source += ' ';
      source += (number == marked ? "{!" : "{") + utf8Of(key) + '}';
      stored.remove_prefix(std::min(keyEnd + 1, stored.size()));
      if (!stored.empty() && isWordCharacter(stored.front())) source += ' ';
    }
  }
  return source;
}

} // namespace talvora::pack
