#include "exercises/ExplanationMarkup.h"

#include "text/Text.h"

#include <utility>

namespace talvora {

namespace {

constexpr std::size_t MostSpans = 300;

/// One kind of span: those that are closed, and the one that is open.
class Spans {
 public:
  [[nodiscard]] bool isOpen() const noexcept { return open_; }
  void open(std::size_t at) {
    open_ = all_.size() < MostSpans;
    if (open_) all_.push_back({static_cast<int>(at), 0});
  }
  void grow() {
    if (open_) ++all_.back().length;
  }
  void close() { open_ = false; }
  /// A span that its own mark closes loses its last character.
  void closeByOwnMark() {
    if (open_) --all_.back().length;
    open_ = false;
  }
  std::vector<ExplanationSpan> take() {
    std::erase_if(all_, [](const ExplanationSpan& span) { return span.length <= 0; });
    return std::move(all_);
  }

 private:
  std::vector<ExplanationSpan> all_;
  bool open_ = false;
};

class ExplanationWalk {
 public:
  explicit ExplanationWalk(std::string_view text) : text_(text) {}

  ExplanationText run() {
    for (at_ = 0; at_ < text_.size(); ++at_) {
      const char character = text_[at_];
      if (takeMark(character)) continue;
      closeAt(character);
      if (character != ' ' || !isSuperfluousBlank()) copy(character);
    }
    return {std::move(shown_), blue_.take(), links_.take(), red_.take()};
  }

 private:
  /// True for a mark, which is not shown.
  bool takeMark(char character) {
    switch (character) {
    case '`':
      red_.close();
      blue_.close();
      toggle(links_);
      return true;
    case '&':
      if (links_.isOpen()) return true;
      red_.close();
      toggle(blue_);
      return true;
    case '#':
      links_.close();
      blue_.close();
      toggle(red_);
      return true;
    default:
      return false;
    }
  }

  void toggle(Spans& spans) {
    if (spans.isOpen()) {
      spans.closeByOwnMark();
    } else {
      spans.open(shown_.size());
    }
  }

  void closeAt(char character) {
    switch (character) {
    case '\r':
      links_.close();
      blue_.close();
      red_.close();
      break;
    case ':':
      blue_.close();
      break;
    case ' ':
    case '.':
    case ',':
      red_.close();
      break;
    default:
      break;
    }
  }

  [[nodiscard]] bool isSuperfluousBlank() const {
    if (shown_.ends_with(' ') || shown_.ends_with('(')) return true;
    return at_ + 1 < text_.size() && text_[at_ + 1] == ')';
  }

  void copy(char character) {
    for (Spans* spans : {&blue_, &links_, &red_})
      spans->grow();
    shown_ += character;
  }

  std::string_view text_;
  std::size_t at_ = 0;
  std::string shown_;
  Spans blue_;
  Spans links_;
  Spans red_;
};

} // namespace

ExplanationText layOutExplanation(std::string_view text) {
  if (!text.empty()) text.remove_prefix(1);
  return ExplanationWalk(trim(text)).run();
}

} // namespace talvora
