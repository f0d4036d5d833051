#include "surface/TextBuffer.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <stdexcept>
#include <utility>

namespace talvora {

namespace {

/// Carets are numbers of type int, and room to grow is added to lengths.
constexpr int MostCharacters = std::numeric_limits<int>::max() / 2;
constexpr int LeastGap = 64;

int fitting(std::size_t wanted, int most) {
  return static_cast<int>(std::min(wanted, static_cast<std::size_t>(most)));
}

void copy(char* into, std::string_view text) {
  if (!text.empty()) std::memcpy(into, text.data(), text.size());
}

/// `std::make_unique_for_overwrite`, which not every standard library has.
std::unique_ptr<char[]> uninitialised(int size) {
  return std::unique_ptr<char[]>(new char[static_cast<std::size_t>(size)]); // NOLINT: owned at once
}

} // namespace

std::string TextBuffer::between(int from, int to) const {
  std::string text;
  text.reserve(static_cast<std::size_t>(to - from));
  for (const std::string_view piece : pieces(from, to))
    text += piece;
  return text;
}

std::string_view TextBuffer::view(int from, int to, std::string& joined) const {
  const auto [ahead, behind] = pieces(from, to);
  if (behind.empty()) return ahead;
  if (ahead.empty()) return behind;
  joined.assign(ahead).append(behind);
  return joined;
}

bool TextBuffer::equals(std::string_view text) const noexcept {
  if (text.size() != static_cast<std::size_t>(length_)) return false;
  const auto [first, second] = pieces(0, length_);
  return text.substr(0, first.size()) == first && text.substr(first.size()) == second;
}

int TextBuffer::room(std::size_t wanted, int dropped) const noexcept {
  return fitting(wanted, MostCharacters - (length_ - dropped));
}

void TextBuffer::assign(std::string_view text) {
  const int length = fitting(text.size(), MostCharacters);
  if (length > capacity_ || length < capacity_ / 4) {
    own_ = uninitialised(length + LeastGap);
    capacity_ = length + LeastGap;
  }
  copy(own_.get(), text.substr(0, static_cast<std::size_t>(length)));
  file_.reset();
  data_ = own_.get();
  length_ = gapAt_ = length;
  gapSize_ = capacity_ - length;
}

void TextBuffer::adopt(std::shared_ptr<const MappedFile> file) {
  own_.reset();
  capacity_ = 0;
  file_ = std::move(file);
  data_ = file_->text().data();
  length_ = gapAt_ = fitting(file_->text().size(), MostCharacters);
  gapSize_ = 0;
}

void TextBuffer::replace(int from, int to, std::string_view text) {
  const auto added = static_cast<int>(text.size());
  const int length = length_ - (to - from) + added;
  if (file_ != nullptr || length > capacity_) reallocate(length + std::max(length / 2, LeastGap));
  moveGap(from);
  // The gap now swallows what goes, and gives its front to what comes.
  copy(own_.get() + from, text);
  gapAt_ = from + added;
  gapSize_ += to - from - added;
  length_ = length;
}

std::array<std::string_view, 2> TextBuffer::pieces(int from, int to) const noexcept {
  const auto piece = [this](int start, int end, int skip) {
    return start < end
               ? std::string_view(data_ + start + skip, static_cast<std::size_t>(end - start))
               : std::string_view();
  };
  return {piece(from, std::min(to, gapAt_), 0), piece(std::max(from, gapAt_), to, gapSize_)};
}

void TextBuffer::reallocate(int capacity) {
  std::unique_ptr<char[]> larger = uninitialised(capacity);
  const auto [first, second] = pieces(0, length_);
  const int gap = capacity - length_;
  copy(larger.get(), first);
  copy(larger.get() + gapAt_ + gap, second);
  own_ = std::move(larger);
  file_.reset();
  data_ = own_.get();
  capacity_ = capacity;
  gapSize_ = gap;
}

void TextBuffer::moveGap(int place) {
  char* const text = own_.get();
  if (place < gapAt_) {
    std::memmove(text + place + gapSize_, text + place, static_cast<std::size_t>(gapAt_ - place));
  } else if (place > gapAt_) {
    std::memmove(text + gapAt_, text + gapAt_ + gapSize_, static_cast<std::size_t>(place - gapAt_));
  }
  gapAt_ = place;
}

void TextBuffer::Check() const {
  if (length_ < 0 || gapSize_ < 0) throw std::logic_error("a text's size is below 0");
  if (gapAt_ < 0 || gapAt_ > length_) throw std::logic_error("the gap is outside the text");
  if (file_ != nullptr && gapSize_ != 0) throw std::logic_error("a mapped text has a gap");
  if (file_ == nullptr && length_ + gapSize_ != capacity_) {
    throw std::logic_error("text and gap do not fill the buffer");
  }
}

} // namespace talvora
