// Reading and writing of coloured lines.
#include "pack/MarkedLine.h"

#include "pack/Message.h"
#include "pack/StreamText.h"

#include <algorithm>

namespace talvora::pack {

namespace {

constexpr std::string_view blueLine = "> ";
constexpr std::string_view blueRest = ">> ";
constexpr std::string_view lessonMarks = "`~@";
constexpr std::string_view explanationMarks = "`@#^&";
/// In a lesson these do not end red, so that they take the colour of the word that they stand
/// behind.
constexpr std::string_view marksBehindRed = ";!?)";

/// The characters that end a red word by themselves.
std::string_view redEnds(LineKind kind) {
  return kind == LineKind::Lesson ? " ,.:" : " ,.";
}

/// Red as it can be seen: not on the characters that end a word, but words with one blank between
/// them are one stretch.
void settleRed(MarkedLine& line, LineKind kind) {
  for (std::size_t at = 0; at < line.text.size(); ++at) {
    if (redEnds(kind).find(line.text[at]) != std::string_view::npos) line.red[at] = false;
  }
  for (std::size_t at = 1; at + 1 < line.text.size(); ++at) {
    if (line.text[at] == ' ' && line.red[at - 1] && line.red[at + 1] && line.blueFrom != at + 1) {
      line.red[at] = true;
    }
  }
}

/// Collects a line stretch by stretch.
class LineParser {
 public:
  LineParser(std::string_view utf8, const Where& where, LineKind kind, Problems& problems)
      : utf8_(utf8), where_(where), kind_(kind), problems_(problems) {}

  MarkedLine run() {
    std::size_t at = 0;
    if (utf8_.starts_with(blueLine)) {
      line_.blueFrom = 0;
      at = blueLine.size();
    }
    while (at < utf8_.size()) {
      if (utf8_[at] == '*') {
        at = toggleRed(at);
      } else if (utf8_.substr(at).starts_with(">>")) {
        at = beginBlue(at);
      } else {
        at = addStretch(at);
      }
    }
    if (inRed_) problems_.add(placeOf(redAt_), said("this \"*\" is not closed"));
    checkText();
    settleRed(line_, kind_);
    return std::move(line_);
  }

 private:
  [[nodiscard]] Where placeOf(std::size_t at) const { return placeIn(utf8_, at, where_); }

  /// Returns the place behind the star and the marks that turn red with the word ahead of them.
  std::size_t toggleRed(std::size_t at) {
    if (inRed_ && isOpening(at)) {
      problems_.add(placeOf(redAt_), said("this \"*\" is not closed"));
      inRed_ = false;
    }
    inRed_ = !inRed_;
    if (inRed_) {
      redAt_ = at;
      redFrom_ = line_.text.size();
      return at + 1;
    }
    return closeRed(at);
  }

  /// A star ahead of a word and behind a blank can only open.
  [[nodiscard]] bool isOpening(std::size_t at) const {
    return utf8_[at - 1] == ' ' && at + 1 < utf8_.size() && utf8_[at + 1] != ' ' &&
           line_.text.size() > redFrom_ + 1;
  }

  std::size_t closeRed(std::size_t at) {
    std::size_t behind = at + 1;
    if (kind_ == LineKind::Lesson) {
      while (behind < utf8_.size() && marksBehindRed.find(utf8_[behind]) != std::string_view::npos)
        ++behind;
    }
    const bool ended =
        behind == utf8_.size() || redEnds(kind_).find(utf8_[behind]) != std::string_view::npos;
    if (line_.text.size() == redFrom_) {
      problems_.add(placeOf(at), said("there is nothing between the two \"*\""));
    } else if (line_.text.back() == ' ' || line_.text[redFrom_] == ' ') {
      problems_.add(placeOf(at),
                    said("a red stretch begins and ends with a word, not with a blank"));
    } else if (kind_ == LineKind::Lesson && !ended) {
      problems_.add(placeOf(at), said("behind the closing \"*\" a blank, one of , . : ; ! ? ) or "
                                      "the line's end must stand"));
    } else if (kind_ == LineKind::Explanation && !ended && utf8_[at + 1] == '*') {
      problems_.add(placeOf(at), said("something must stand between two red stretches"));
    }
    line_.text += utf8_.substr(at + 1, behind - at - 1);
    line_.red.resize(line_.text.size(), true);
    return behind;
  }

  std::size_t beginBlue(std::size_t at) {
    const bool blanks = at > 0 && utf8_[at - 1] == ' ' && utf8_.substr(at).starts_with(blueRest) &&
                        utf8_.size() > at + blueRest.size();
    if (!blanks || inRed_) {
      problems_.add(placeOf(at), said("\">>\" stands between two blanks, outside of red, behind "
                                      "some text and ahead of some"));
    } else if (line_.blueFrom) {
      problems_.add(placeOf(at), said("the line is blue already"));
    }
    line_.blueFrom = line_.blueFrom.value_or(line_.text.size());
    return std::min(at + blueRest.size(), utf8_.size());
  }

  std::size_t addStretch(std::size_t at) {
    std::size_t end = at + 1;
    while (end < utf8_.size() && utf8_[end] != '*' && !utf8_.substr(end).starts_with(">>"))
      ++end;
    const auto marks = kind_ == LineKind::Lesson ? lessonMarks : explanationMarks;
    line_.text += sourceText(utf8_.substr(at, end - at), placeOf(at), marks, problems_);
    line_.red.resize(line_.text.size(), inRed_);
    return end;
  }

  void checkText() {
    if (line_.blueFrom && line_.text.empty()) problems_.add(where_, said("a text is missing here"));
    checkBlanks(line_.text, where_, problems_);
    if (kind_ == LineKind::Lesson && line_.text.starts_with('&') && line_.blueFrom != 0U) {
      problems_.add(where_, said("a line cannot begin with \"&\"; \"> \" makes it blue"));
    }
    if (kind_ == LineKind::Explanation && line_.text.starts_with('?')) {
      problems_.add(where_, said("a line cannot begin with \"?\"; \"see: \" leads to a lesson"));
    }
  }

  std::string_view utf8_;
  const Where& where_;
  LineKind kind_;
  Problems& problems_;
  MarkedLine line_;
  bool inRed_ = false;
  std::size_t redAt_ = 0;
  std::size_t redFrom_ = 0;
};

std::string encodeLesson(const MarkedLine& line) {
  std::string stored;
  bool redHolds = false;
  for (std::size_t at = 0; at < line.text.size(); ++at) {
    const char character = line.text[at];
    if (line.blueFrom == at) stored += at == 0 ? '&' : '~';
    if (redEnds(LineKind::Lesson).find(character) != std::string_view::npos) {
      redHolds = false;
    } else if (line.red[at] && !redHolds) {
      stored += '`';
      redHolds = true;
    }
    stored += character;
  }
  return stored;
}

/// Writes an explanation: the colours end each other, and red may end behind the character that
/// follows it, since its own mark takes the last character off it.
std::string encodeExplanation(const MarkedLine& line) {
  enum class Open { None, Red, Blue };
  std::string stored;
  Open open = Open::None;
  for (std::size_t at = 0; at < line.text.size(); ++at) {
    const char character = line.text[at];
    const bool blue = line.blueFrom && at >= *line.blueFrom;
    const bool endsRed = redEnds(LineKind::Explanation).find(character) != std::string_view::npos;
    if (line.blueFrom == at) {
      stored += '&';
      open = Open::Blue;
    }
    bool closeBehind = false;
    if (line.red[at] && !endsRed) {
      if (open != Open::Red) stored += '#';
      open = Open::Red;
    } else if (!line.red[at] && blue) {
      if (open != Open::Blue) stored += '&';
      open = Open::Blue;
    } else if (!line.red[at] && open == Open::Red) {
      closeBehind = !endsRed;
      open = Open::None;
    }
    stored += character;
    if (closeBehind) stored += '#';
    if (endsRed && open == Open::Red) open = Open::None;
    if (character == ':' && open == Open::Blue) open = Open::None;
  }
  return stored;
}

MarkedLine decodeLesson(std::string_view stored) {
  MarkedLine line;
  bool red = false;
  for (std::size_t at = 0; at < stored.size(); ++at) {
    const char character = stored[at];
    if (character == '`') {
      red = true;
    } else if (character == '~' || (character == '&' && at == 0)) {
      red = false;
      line.blueFrom = line.blueFrom.value_or(line.text.size());
    } else {
      if (redEnds(LineKind::Lesson).find(character) != std::string_view::npos) red = false;
      line.text += character;
      line.red.push_back(red);
    }
  }
  return line;
}

MarkedLine decodeExplanation(std::string_view stored) {
  MarkedLine line;
  bool red = false;
  for (const char character : stored) {
    if (character == '#') {
      if (red && !line.red.empty()) line.red.back() = false;
      red = !red;
    } else if (character == '&') {
      red = false;
      line.blueFrom = line.blueFrom.value_or(line.text.size());
    } else {
      if (redEnds(LineKind::Explanation).find(character) != std::string_view::npos) red = false;
      line.text += character;
      line.red.push_back(red);
    }
  }
  return line;
}

} // namespace

MarkedLine parseMarkedLine(std::string_view utf8, const Where& where, LineKind kind,
                           Problems& problems) {
  return LineParser(utf8, where, kind, problems).run();
}

std::string writeMarkedLine(const MarkedLine& line) {
  std::string utf8;
  bool red = false;
  for (std::size_t at = 0; at < line.text.size(); ++at) {
    if (red && !line.red[at]) utf8 += '*';
    if (line.blueFrom == at) utf8 += at == 0 ? blueLine : blueRest;
    if (!red && line.red[at]) utf8 += '*';
    red = line.red[at];
    utf8 += utf8Of(line.text.substr(at, 1));
  }
  return red ? utf8 + '*' : utf8;
}

std::string encodeMarkedLine(const MarkedLine& line, LineKind kind) {
  return kind == LineKind::Lesson ? encodeLesson(line) : encodeExplanation(line);
}

MarkedLine decodeMarkedLine(std::string_view stored, LineKind kind) {
  MarkedLine line = kind == LineKind::Lesson ? decodeLesson(stored) : decodeExplanation(stored);
  settleRed(line, kind);
  return line;
}

void checkBlanks(std::string_view text, const Where& where, Problems& problems) {
  if (text.starts_with(' ') || text.ends_with(' ')) problems.add(where, said("a blank at an end"));
  for (const std::string_view pair : {"  ", "( ", " )"}) {
    if (text.find(pair) == std::string_view::npos) continue;
    problems.add(where, said("a blank stands behind another one, behind \"(\" or before \")\""));
    return;
  }
}

Where placeIn(std::string_view utf8, std::size_t offset, const Where& where) {
  Where place = where;
  for (const char byte : utf8.substr(0, offset)) {
    // The later bytes of a character do not count.
    if ((static_cast<unsigned char>(byte) & 0xC0U) != 0x80U) ++place.column;
  }
  return place;
}

} // namespace talvora::pack
