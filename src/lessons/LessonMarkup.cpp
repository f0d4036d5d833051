#include "lessons/LessonMarkup.h"

#include "surface/Looks.h"

#include <optional>

namespace talvora {

namespace {

/// Walks a lesson character by character.
class LessonWalk {
 public:
  explicit LessonWalk(std::string_view text) : text_(text) {}

  std::vector<ColouredPiece> run() {
    for (at_ = 0; at_ < text_.size(); ++at_) {
      const char character = text_[at_];
      if (takeMark(character)) {
        // Behind a mark a blank stands, whatever was ahead of it.
        kept_.reset();
        continue;
      }
      changeColour(character);
      if (character != ' ' || !isSuperfluousBlank()) keep(character);
    }
    return std::move(pieces_);
  }

 private:
  /// True for a mark, which is not shown.
  bool takeMark(char character) {
    switch (character) {
    case '`':
      color_ = look::Red;
      return true;
    case '~':
      GiuMauNga_ = true;
      color_ = look::Blue;
      return true;
    case '&':
      if (kept_ != '\r') return false;
      GiuMauVa_ = true;
      color_ = look::Blue;
      return true;
    case '@':
      return true;
    default:
      return false;
    }
  }

  void changeColour(char character) {
    switch (character) {
    case '\r':
      GiuMauNga_ = false;
      GiuMauVa_ = false;
      color_ = look::Body;
      break;
    case ' ':
    case ',':
    case '.':
    case ':':
      color_ = GiuMauNga_ || GiuMauVa_ ? look::Blue : look::Body;
      break;
    default:
      break;
    }
  }

  [[nodiscard]] bool isSuperfluousBlank() const {
    if (kept_ == ' ' || kept_ == '(') return true;
    return at_ + 1 < text_.size() && text_[at_ + 1] == ')';
  }

  void keep(char character) {
    kept_ = character;
    if (pieces_.empty() || pieces_.back().color != color_) pieces_.push_back({"", color_});
    pieces_.back().text += character;
  }

  std::string_view text_;
  std::size_t at_ = 0;
  std::vector<ColouredPiece> pieces_;
  Colour color_ = look::Body;
  std::optional<char> kept_; ///< the character kept last; none behind a mark
  bool GiuMauNga_ = false;   ///< "~" holds the blue to the line's end
  bool GiuMauVa_ = false;    ///< "&" holds it
};

} // namespace

std::vector<ColouredPiece> layOutLesson(std::string_view text) {
  return LessonWalk(text).run();
}

} // namespace talvora
