// The English word list: its lines, where each word's entry lies, and where each letter begins.
// Both files stay mapped; no string is made for a word.
#pragma once

#include "formats/Limits.h"
#include "platform/Files.h"
#include "stores/Stores.h"
#include "surface/Variables.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace talvora {

class WordList {
 public:
  /// The number of words that the list is built for.
  static constexpr int WordCount = limit::Words;
  /// A list may have one line more than words.
  static constexpr int MostLines = WordCount + 1;
  static constexpr int LetterSlots = 27;
  /// A line whose end is lost counts as a word of so many characters.
  static constexpr std::size_t LongestWord = 1000;
  /// Bytes of a line that are always borne; from twice as many on no line is.
  static constexpr std::size_t LongestLine = std::size_t{1} << 16;
  /// The load is cut into strides of so many lines, with one tick of the progress for each.
  static constexpr int Stride = 48135;

  /// Loads the whole list from a directory; `TienTrinhNap` is called at each tick of the progress.
  /// Throws FatalFailure naming the file when one is missing, and the line too when the list has
  /// more lines or more letter marks than there is room for.
  void NapTuDien(const std::string& directory, const std::function<void()>& TienTrinhNap,
                 FileSystem& files = systemFiles());

  /// Number of lines of the list.
  [[nodiscard]] int count() const noexcept { return count_; }
  /// Line i, from 1, as the list spells it; empty outside the list. The text lives as long as the
  /// list.
  [[nodiscard]] std::string_view Chu(int i) const noexcept;
  /// Record number in file 5 of the first byte of word i's entry; 0 where nothing is stored.
  [[nodiscard]] std::int32_t ViTriNghia(int i) const noexcept { return position(i, EntryPart); }
  /// Caret, in the text of the list, at which the line after word i begins; 0 where nothing is
  /// stored, so also for the word 0.
  [[nodiscard]] std::int32_t ViTriDanhSach(int i) const noexcept { return position(i, ListPart); }

  /// Finds out how far the carets of `ViTriDanhSach` rise, so that `lineAt` need not walk there.
  void examineCarets();
  /// The first word from 1 whose `ViTriDanhSach` lies behind a caret; `WordCount` if there is none.
  [[nodiscard]] int lineAt(int caret) const;

  /// The file of the lines.
  [[nodiscard]] const std::shared_ptr<const MappedFile>& file() const noexcept { return file_; }
  /// Where the paragraphs of its text start: its lines, and the empty one behind the last line end.
  [[nodiscard]] std::vector<int> paragraphStarts() const;

  void declare(Variables& variables) const;

  /// Slot k holds the number of the line on which the section of letter k, from 0, begins; the last
  /// slot holds the number of lines plus 1.
  std::array<std::int32_t, LetterSlots> ChiSoChu{};

 private:
  static constexpr int EntryPart = 0;
  static constexpr int ListPart = 1;
  static constexpr int PartsOfRecord = 2;

  /// A part of record i of "data.mtd"; 0 for what the list is not built for.
  [[nodiscard]] std::int32_t position(int i, int part) const noexcept {
    if (i < 1 || i > WordCount) return 0;
    return positions_.integer(std::int64_t{PartsOfRecord} * (i - 1) + part + 1);
  }
  void NapViTriTu(const std::function<void()>& TienTrinhNap);
  void findLines(const std::string& path);
  void findLetters(const std::string& path, const std::function<void()>& TienTrinhNap);

  /// The first line of a stretch that is short enough for a letter mark; behind `last` if none is.
  [[nodiscard]] int nextShortLine(int from, int last) const noexcept;

  RecordFile positions_;
  std::shared_ptr<const MappedFile> file_;
  std::string_view text_;
  /// Element i - 1 is where line i starts, from 0; one more element is the text's end.
  std::vector<int> starts_;
  int count_ = 0;
  int risingTo_ = 0; ///< the carets of the words 1 to this one never fall
};

} // namespace talvora
