#include "surface/RichText.h"

#include "text/Bytes.h"
#include "text/Contains.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace talvora {

namespace {

constexpr std::string_view Opening = "{\\rtf";
// Deeper groups than any writer makes; what lies deeper is read as if it stood on this depth.
constexpr std::size_t DeepestGroup = 256;
constexpr int LargestNumber = 1'000'000;
// Every run holds its font's name, so a name without end would cost many times the file's length.
constexpr std::size_t LongestFontName = 64;

/// What a group's characters are.
enum class Destination { Text, FontTable, ColourTable, Bullet, Skipped };

struct GroupState {
  Destination destination = Destination::Text;
  CharStyle character;
  ParagraphStyle paragraph;
  int font = -1; ///< number of the font that is being named, in the font table
};

struct ControlWord {
  std::string_view name;
  std::optional<int> number;
};

bool isLetter(char character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

int hexDigit(char character) {
  if (character >= '0' && character <= '9') return character - '0';
  if (character >= 'a' && character <= 'f') return character - 'a' + 10;
  if (character >= 'A' && character <= 'F') return character - 'A' + 10;
  return -1;
}

class RichTextReader {
 public:
  RichTextReader(std::string_view rtf, const FontSpec& defaults) : rtf_(rtf), defaults_(defaults) {
    state_.character.font = defaults;
  }

  StyledText read() {
    while (at_ < rtf_.size())
      takeNext();
    closeParagraph();
    return std::move(result_);
  }

 private:
  void takeNext() {
    const char character = rtf_[at_++];
    switch (character) {
    case '{':
      openGroup();
      break;
    case '}':
      closeGroup();
      break;
    case '\\':
      takeControl();
      break;
    case '\r':
    case '\n':
      break;
    default:
      takeCharacter(character);
      break;
    }
  }

  void openGroup() {
    if (groups_.size() < DeepestGroup) {
      groups_.push_back(state_);
    } else {
      ++tooDeep_;
    }
  }

  void closeGroup() {
    if (tooDeep_ > 0) {
      --tooDeep_;
    } else if (!groups_.empty()) {
      const ParagraphStyle paragraph = state_.paragraph;
      state_ = std::move(groups_.back());
      groups_.pop_back();
      // The last paragraph ends with the outermost group and looks as it did inside.
      if (groups_.empty()) state_.paragraph = paragraph;
    }
  }

  void takeControl() {
    if (at_ == rtf_.size()) return;
    if (isLetter(rtf_[at_])) {
      obey(readWord());
      return;
    }
    const char symbol = rtf_[at_++];
    switch (symbol) {
    case '\\':
    case '{':
    case '}':
      takeCharacter(symbol);
      break;
    case '~':
      takeCharacter(chr(160));
      break;
    case '*':
      // A destination that only some readers know.
      ignorable_ = true;
      break;
    case '\'':
      takeHexCharacter();
      break;
    case '\r':
    case '\n':
      endParagraph();
      break;
    default:
      break;
    }
  }

  ControlWord readWord() {
    const std::size_t start = at_;
    while (at_ < rtf_.size() && isLetter(rtf_[at_]))
      ++at_;
    ControlWord word{rtf_.substr(start, at_ - start), std::nullopt};
    const std::size_t numberStart = at_;
    if (at_ < rtf_.size() && rtf_[at_] == '-') ++at_;
    const std::size_t digits = at_;
    while (at_ < rtf_.size() && rtf_[at_] >= '0' && rtf_[at_] <= '9')
      ++at_;
    if (at_ == digits) {
      at_ = numberStart;
    } else {
      long long number = 0;
      const auto result = std::from_chars(rtf_.data() + numberStart, rtf_.data() + at_, number);
      if (result.ec != std::errc{})
        number = rtf_[numberStart] == '-' ? -LargestNumber : LargestNumber;
      word.number = static_cast<int>(std::clamp<long long>(number, -LargestNumber, LargestNumber));
    }
    if (at_ < rtf_.size() && rtf_[at_] == ' ') ++at_;
    return word;
  }

  void takeHexCharacter() {
    if (at_ + 2 > rtf_.size()) {
      at_ = rtf_.size();
      return;
    }
    const int high = hexDigit(rtf_[at_]);
    const int low = hexDigit(rtf_[at_ + 1]);
    if (high < 0 || low < 0) return;
    at_ += 2;
    takeCharacter(chr(high * 16 + low));
  }

  void takeCharacter(char character) {
    switch (state_.destination) {
    case Destination::Text:
      append(character);
      break;
    case Destination::FontTable:
      nameFont(character);
      break;
    case Destination::ColourTable:
      if (character == ';') {
        colours_.push_back(colour_);
        colour_ = 0;
      }
      break;
    case Destination::Bullet:
    case Destination::Skipped:
      break;
    }
  }

  void nameFont(char character) {
    if (state_.font < 0 || character == ';') return;
    std::string& name = fonts_[state_.font];
    if (name.size() < LongestFontName) name += character;
  }

  void append(char character) {
    const int at = static_cast<int>(result_.text.size());
    result_.text += character;
    if (!result_.runs.empty() && result_.runs.back().style == state_.character) {
      result_.runs.back().to = at + 1;
    } else {
      result_.runs.push_back({at, at + 1, state_.character});
    }
  }

  void endParagraph() {
    if (state_.destination != Destination::Text) return;
    append('\r');
    closeParagraph();
  }

  void closeParagraph() {
    const int end = static_cast<int>(result_.text.size());
    result_.paragraphs.push_back({paragraphStart_, end, state_.paragraph});
    paragraphStart_ = end;
  }

  void obey(const ControlWord& word) {
    const bool ignorable = std::exchange(ignorable_, false);
    if (word.name == "bin") {
      skipBinary(word.number.value_or(0));
      return;
    }
    if (obeyDestination(word) || obeyCharacter(word) || obeyParagraph(word)) return;
    if (ignorable) state_.destination = Destination::Skipped;
  }

  // Bytes of a picture stand as they are; what looks like a brace among them is none.
  void skipBinary(int count) {
    at_ += std::min(static_cast<std::size_t>(std::max(count, 0)), rtf_.size() - at_);
  }

  bool obeyDestination(const ControlWord& word) {
    constexpr std::array<std::string_view, 8> skipped = {
        "stylesheet", "info", "pict", "generator", "header", "footer", "object", "pntext"};
    if (word.name == "fonttbl") {
      state_.destination = Destination::FontTable;
    } else if (word.name == "colortbl") {
      state_.destination = Destination::ColourTable;
    } else if (word.name == "pn") {
      if (state_.destination == Destination::Text) state_.destination = Destination::Bullet;
    } else if (contains(skipped, word.name)) {
      state_.destination = Destination::Skipped;
    } else {
      return false;
    }
    return true;
  }

  bool obeyCharacter(const ControlWord& word) {
    const int number = word.number.value_or(1);
    CharStyle& style = state_.character;
    if (word.name == "f") {
      chooseFont(number);
    } else if (word.name == "fs") {
      style.font.size = std::clamp(number, 2, 1000) / 2.0;
    } else if (word.name == "b") {
      style.font.bold = number != 0;
    } else if (word.name == "i") {
      style.italic = number != 0;
    } else if (word.name == "ul") {
      style.underline = number != 0;
    } else if (word.name == "ulnone") {
      style.underline = false;
    } else if (word.name == "protect") {
      style.protectedText = number != 0;
    } else if (word.name == "cf") {
      const auto place = static_cast<std::size_t>(std::max(number, 0));
      style.color = place < colours_.size() ? colours_[place] : 0;
    } else if (word.name == "plain") {
      style = {};
      style.font = defaults_;
    } else if (word.name == "red" || word.name == "green" || word.name == "blue") {
      const int shift = word.name == "red" ? 0 : word.name == "green" ? 8 : 16;
      colour_ |= static_cast<Colour>(std::clamp(number, 0, 255)) << shift;
    } else if (word.name == "tab") {
      takeCharacter('\t');
    } else {
      return false;
    }
    return true;
  }

  void chooseFont(int number) {
    if (state_.destination == Destination::FontTable) {
      state_.font = number;
      return;
    }
    const auto font = fonts_.find(number);
    if (font != fonts_.end()) state_.character.font.name = font->second;
  }

  bool obeyParagraph(const ControlWord& word) {
    ParagraphStyle& style = state_.paragraph;
    if (word.name == "par" || word.name == "line") {
      endParagraph();
    } else if (word.name == "pard") {
      style = {};
    } else if (word.name == "ql" || word.name == "qj") {
      style.align = Alignment::Left;
    } else if (word.name == "qr") {
      style.align = Alignment::Right;
    } else if (word.name == "qc") {
      style.align = Alignment::Centred;
    } else if (word.name == "li") {
      style.indent = std::clamp(word.number.value_or(0), 0, 20000);
    } else if (word.name == "pnlvlblt") {
      style.bullet = true;
      // In a group of its own the word means the paragraph around it.
      if (state_.destination == Destination::Bullet && !groups_.empty()) {
        groups_.back().paragraph.bullet = true;
      }
    } else {
      return false;
    }
    return true;
  }

  std::string_view rtf_;
  FontSpec defaults_;
  std::size_t at_ = 0;
  GroupState state_;
  std::vector<GroupState> groups_;
  std::size_t tooDeep_ = 0;
  bool ignorable_ = false;
  std::map<int, std::string> fonts_;
  std::vector<Colour> colours_;
  Colour colour_ = 0;
  int paragraphStart_ = 0;
  StyledText result_;
};

} // namespace

bool looksLikeRichText(std::string_view text) noexcept {
  return text.starts_with(Opening);
}

StyledText readRichText(std::string_view rtf, const FontSpec& defaults) {
  return RichTextReader(rtf, defaults).read();
}

} // namespace talvora
