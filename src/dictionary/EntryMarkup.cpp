#include "dictionary/EntryMarkup.h"

#include <array>

namespace talvora {

namespace {

/// The stretches of one kind: a table, and whether its last stretch is still open.
class SpanTable {
 public:
  [[nodiscard]] bool isOpen() const noexcept { return open_; }
  /// Characters put into the text since the last stretch was opened.
  [[nodiscard]] int running() const noexcept { return running_; }
  /// The place in the table of the stretch opened last.
  [[nodiscard]] std::size_t last() const noexcept { return count_ - 1; }

  /// Opens a stretch, unless the table is full. Its length stays what the table holds.
  void open(std::size_t start) {
    if (count_ == spans_.size()) return;
    spans_[count_++].start = static_cast<int>(start);
    open_ = true;
    running_ = 0;
  }
  void close(int length) {
    spans_[last()].length = length;
    open_ = false;
  }
  /// Ends the open stretch and leaves its length as the table holds it.
  void abandon() noexcept { open_ = false; }
  void setLength(std::size_t place, int length) noexcept { spans_[place].length = length; }
  void count(std::size_t characters) noexcept {
    if (open_) running_ += static_cast<int>(characters);
  }
  [[nodiscard]] std::vector<EntrySpan> spans() const {
    return {spans_.begin(), spans_.begin() + static_cast<std::ptrdiff_t>(count_)};
  }

 private:
  std::array<EntrySpan, ShownEntry::MostSpans> spans_{};
  std::size_t count_ = 0;
  bool open_ = false;
  int running_ = 0;
};

class MarkupReader {
 public:
  explicit MarkupReader(std::string_view entry) : entry_(entry) { text_.reserve(entry.size()); }

  ShownEntry read() {
    for (at_ = 0; at_ < entry_.size(); ++at_) {
      const std::string_view shown = take();
      if (shown == " " && isDropped()) continue;
      blue_.count(shown.size());
      redItalic_.count(shown.size());
      text_ += shown;
    }
    return {std::move(text_), blue_.spans(), redItalic_.spans()};
  }

 private:
  /// Lets the character at hand take effect, and gives what it shows as.
  std::string_view take() {
    switch (entry_[at_]) {
    case '#':
      takeHash();
      return " ";
    case '^':
      takeCaret();
      return " ";
    case '~':
      return " ";
    case '_':
      return "\r - ";
    case ' ':
      if (redItalic_.isOpen()) redItalic_.close(redItalic_.running());
      return " ";
    default:
      return entry_.substr(at_, 1);
    }
  }

  void takeHash() {
    if (redItalic_.isOpen()) redItalic_.close(redItalic_.running());
    if (blue_.isOpen()) {
      blue_.close(blue_.running() - 1);
    } else {
      blue_.open(text_.size());
    }
  }

  void takeCaret() {
    if (blue_.isOpen()) {
      // The length goes into the other table, at the same place; that is meant.
      redItalic_.setLength(blue_.last(), blue_.running());
      blue_.abandon();
    }
    if (redItalic_.isOpen()) {
      redItalic_.close(redItalic_.running() - 1);
    } else {
      redItalic_.open(text_.size());
    }
  }

  /// Whether a blank at hand is one too many.
  [[nodiscard]] bool isDropped() const {
    if (!text_.empty() && (text_.back() == ' ' || text_.back() == '(')) return true;
    return at_ + 1 < entry_.size() && entry_[at_ + 1] == ')';
  }

  std::string_view entry_;
  std::size_t at_ = 0;
  std::string text_;
  SpanTable blue_;
  SpanTable redItalic_;
};

} // namespace

ShownEntry readMarkup(std::string_view entry) {
  return MarkupReader(entry).read();
}

} // namespace talvora
