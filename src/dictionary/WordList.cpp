#include "dictionary/WordList.h"

#include "formats/Integers.h"
#include "formats/PackFiles.h"
#include "platform/FatalFailure.h"
#include "surface/LineEnds.h"
#include "text/CharClass.h"
#include "text/Text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>

namespace talvora {

namespace {

constexpr CharClass Marker("[a-z,A-Z]");
// Line ends are sought in pieces of so many characters, so that a list that is too long is found
// out before much memory is spent on it. A piece without a line end is a line that would take too
// long to lay out.
constexpr std::size_t PieceSize = WordList::LongestLine;

[[noreturn]] void failAtLine(const std::string& path, int line, const std::string& what) {
  throw FatalFailure(path + ": line " + std::to_string(line) + ": " + what);
}

} // namespace

void WordList::NapTuDien(const std::string& directory, const std::function<void()>& TienTrinhNap,
                         FileSystem& files) {
  positions_ = RecordFile(MappedFile::open(pathBelow(directory, packfile::WordRecords), files));
  NapViTriTu(TienTrinhNap);
  const std::string path = pathBelow(directory, packfile::Words);
  file_ = MappedFile::open(path, files);
  text_ = file_->text();
  findLines(path);
  findLetters(path, TienTrinhNap);
  // A look-up reads a few lines of all that the load has gone through.
  file_->letMemoryGo();
}

void WordList::NapViTriTu(const std::function<void()>& TienTrinhNap) {
  risingTo_ = 0;
  TienTrinhNap();
  // The records are read where they lie, when they are asked for; the pace stays.
  for (int i = Stride; i <= WordCount; i += Stride)
    TienTrinhNap();
  TienTrinhNap();
}

void WordList::findLines(const std::string& path) {
  if (text_.size() > static_cast<std::size_t>(std::numeric_limits<int>::max())) {
    throw FatalFailure(path + ": is too long for a word list");
  }
  starts_.clear();
  starts_.reserve(std::min(text_.size(), std::size_t{MostLines}) + 1);
  if (!text_.empty()) starts_.push_back(0);
  for (std::size_t from = 0; from < text_.size(); from += PieceSize) {
    const std::string_view piece = text_.substr(from, PieceSize);
    const std::size_t linesAhead = starts_.size();
    appendLineStarts(piece, static_cast<int>(from), starts_);
    const std::size_t to = from + piece.size();
    if (to < text_.size() && endsLine(piece.back(), text_[to])) {
      starts_.push_back(static_cast<int>(to));
    }
    if (starts_.size() > std::size_t{MostLines}) {
      failAtLine(path, MostLines + 1,
                 "the word list has more than " + std::to_string(MostLines) + " lines");
    }
    if (starts_.size() == linesAhead && piece.size() == PieceSize) {
      failAtLine(path, static_cast<int>(linesAhead), "the line is too long for a word");
    }
  }
  count_ = static_cast<int>(starts_.size());
  starts_.push_back(static_cast<int>(text_.size()));
}

void WordList::findLetters(const std::string& path, const std::function<void()>& TienTrinhNap) {
  ChiSoChu.fill(0);
  std::size_t letters = 0;
  for (int first = 1; first <= count_; first += Stride) {
    TienTrinhNap();
    const int last = std::min(first + Stride - 1, count_);
    for (int n = nextShortLine(first, last); n <= last; n = nextShortLine(n + 1, last)) {
      const std::string_view word = Chu(n);
      if (word.size() != 1 || !Marker.has(word[0])) continue;
      if (letters == LetterSlots) {
        failAtLine(path, n,
                   "the word list has more than " + std::to_string(LetterSlots) +
                       " lines of one letter");
      }
      ChiSoChu[letters++] = n;
    }
  }
  ChiSoChu.back() = count_ + 1;
}

int WordList::nextShortLine(int from, int last) const noexcept {
  // One character and a line end of at most two.
  constexpr int LongestMarkerLine = 3;
  const int* start = starts_.data() + (from - 1);
  while (from <= last && start[1] - start[0] > LongestMarkerLine) {
    ++from;
    ++start;
  }
  return from;
}

std::string_view WordList::Chu(int i) const noexcept {
  if (i < 1 || i > count_) return {};
  const auto line = static_cast<std::size_t>(i - 1);
  const auto from = static_cast<std::size_t>(starts_[line]);
  const auto to = static_cast<std::size_t>(starts_[line + 1]);
  return withoutLineEnd({text_.data() + from, to - from}).substr(0, LongestWord);
}

std::vector<int> WordList::paragraphStarts() const {
  std::vector<int> starts = starts_;
  if (!text_.empty() && !endsLine(text_.back(), '\0')) starts.pop_back();
  return starts;
}

void WordList::examineCarets() {
  // All of them are gone through while the list opens: each is read once, where it lies.
  constexpr std::size_t Record = IntegerSize * PartsOfRecord;
  const std::span<const unsigned char> bytes = positions_.bytes();
  const auto whole = static_cast<int>(std::min<std::size_t>(bytes.size() / Record, WordCount));
  risingTo_ = 1;
  for (std::int32_t before = ViTriDanhSach(1); risingTo_ < whole; ++risingTo_) {
    const auto record = static_cast<std::size_t>(risingTo_) * Record;
    const std::int32_t next = integerAt(bytes.data() + record + IntegerSize * ListPart);
    if (next < before) break;
    before = next;
  }
  // Behind the end of the file all are 0.
  while (risingTo_ < WordCount && ViTriDanhSach(risingTo_ + 1) >= ViTriDanhSach(risingTo_))
    ++risingTo_;
  positions_.letMemoryGo();
}

void WordList::declare(Variables& variables) const {
  variables.addTable("ChiSoChu", &ChiSoChu);
  variables.add("Tu", [this] {
    VariableValue::Table words;
    for (int i = 0; i <= MostLines; ++i) {
      words.emplace_back(VariableValue::Record{{"Chu", std::string(Chu(i))},
                                               {"ViTriNghia", ViTriNghia(i)},
                                               {"ViTriDanhSach", ViTriDanhSach(i)}});
    }
    return VariableValue(std::move(words));
  });
}

int WordList::lineAt(int caret) const {
  int low = 1;
  int high = risingTo_ + 1;
  while (low < high) {
    const int middle = low + (high - low) / 2;
    if (ViTriDanhSach(middle) > caret) {
      high = middle;
    } else {
      low = middle + 1;
    }
  }
  // Behind the rising carets, which end early in a short list, there is no order to go by.
  while (low < WordCount && ViTriDanhSach(low) <= caret)
    ++low;
  return std::min(low, WordCount);
}

} // namespace talvora
