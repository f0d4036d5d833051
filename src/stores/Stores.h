// The program's side files: their table, how a record is read, how a text is cut out of a stream,
// and the small settings store.
#pragma once

#include "formats/Limits.h"
#include "formats/Settings.h"
#include "platform/Files.h"
#include "stores/SettingsFile.h"
#include "surface/State.h"

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace talvora {

/// File numbers, by which stores are addressed. A stream's number is its position table's plus 1.
namespace file {
inline constexpr int TextPositions = 1;
inline constexpr int Texts = 2;
inline constexpr int Settings = 3;
inline constexpr int Vocabulary = 4;
inline constexpr int Dictionary = 5;
inline constexpr int LessonPositions = 6;
inline constexpr int Lessons = 7;
inline constexpr int VietnameseSide = 8;
inline constexpr int ItemPositions = 20;
inline constexpr int Items = 21;
inline constexpr int SpeakingPositions = 22;
inline constexpr int SpeakingTexts = 23;
inline constexpr int AnalysisPositions = 24;
inline constexpr int Analyses = 25;
} // namespace file

/// A read-only file of fixed-length records, numbered from 1. Reading past its end, or ahead of its
/// first record, gives 0 or nothing.
class RecordFile {
 public:
  RecordFile() = default;
  /// `lastPiece` is where readers of the file note what they read last; null when nobody asks.
  explicit RecordFile(std::shared_ptr<const MappedFile> mapped,
                      std::string_view* lastPiece = nullptr)
      : mapped_(std::move(mapped)), lastPiece_(lastPiece) {}

  [[nodiscard]] bool isOpen() const noexcept { return mapped_ != nullptr; }
  /// A 4-byte record, signed and little-endian.
  [[nodiscard]] std::int32_t integer(std::int64_t record) const noexcept;
  /// The same file for a reader that is nobody's business: what it reads is not noted.
  [[nodiscard]] RecordFile quiet() const { return RecordFile(mapped_); }
  [[nodiscard]] std::span<const unsigned char> bytes() const noexcept {
    return mapped_ ? mapped_->bytes() : std::span<const unsigned char>();
  }
  /// The 1-byte records from one on: all of them where they lie in memory, else as many as there is
  /// room for, which are read into it.
  [[nodiscard]] std::span<const unsigned char> from(std::int64_t record,
                                                    std::span<unsigned char> room) const noexcept;
  /// Tells that a reader has come upon a piece.
  void notePiece(std::string_view piece) const noexcept {
    if (lastPiece_ != nullptr) *lastPiece_ = piece;
  }
  /// Gives the memory back that reading all of the file has taken up.
  void letMemoryGo() const noexcept {
    if (mapped_) mapped_->letMemoryGo();
  }

 private:
  std::shared_ptr<const MappedFile> mapped_;
  std::string_view* lastPiece_ = nullptr;
};

/// The most bytes that are read of a text whose end mark is lost; carets and positions in a text
/// have 16 bits.
inline constexpr std::int64_t LongestText = limit::TextBytes;
/// The same of a title.
inline constexpr std::int64_t LongestTitle = limit::TitleBytes;
/// Bytes of a file that is shown whole as one page. A guide takes a fiftieth of it.
inline constexpr std::size_t LongestPage = std::size_t{1} << 20;

/// Reads a stream piece by piece from a record on; each piece is what one stored byte stands for.
class PieceReader {
 public:
  /// `record` is that of the first byte fetched, `most` the number of bytes to fetch at most.
  PieceReader(const RecordFile& stream, std::int64_t record, std::int64_t most = LongestText)
      : stream_(stream), next_(record), left_(most) {}
  PieceReader(const PieceReader&) = delete;
  PieceReader& operator=(const PieceReader&) = delete;

  /// The next piece; empty at the end of the file, and behind the most that may be read, so that no
  /// text without its terminator runs on.
  [[nodiscard]] std::optional<std::string_view> next();
  /// Record number of the byte that `next` fetches next.
  [[nodiscard]] std::int64_t nextRecord() const noexcept { return next_; }

 private:
  /// Most entries of the dictionary have room there.
  static constexpr std::size_t Room = 256;

  const RecordFile& stream_;
  std::int64_t next_;
  std::int64_t left_;
  std::span<const unsigned char> ahead_; ///< fetched, and not read yet
  std::array<unsigned char, Room> room_;
};

/// The folder in a learner's own that holds the course's dictionary merged with brought ones.
inline constexpr std::string_view MergedDictionaryFolder = "dictionary";

/// The folder of the dictionary's files among a pack and a learner's folder.
[[nodiscard]] std::string dictionaryFolderOf(const std::string& pack, const std::string& learner,
                                             FileSystem& files);

class Stores {
 public:
  /// Of the course; the learner's own come behind them.
  static constexpr int ReadingTexts = limit::ReadingTexts;
  static constexpr int SpeakingTexts = limit::SpeakingTexts;
  static constexpr int AnalysedTexts = limit::AnalysedTexts;

  explicit Stores(const Places& places, FileSystem& files = systemFiles())
      : places_(places), fileSystem_(files), settings_(files) {}
  Stores(const Stores&) = delete;
  Stores& operator=(const Stores&) = delete;

  /// Closes every open file, then opens all that stay open for the run.
  /// The dictionary's are those of `dictionaryFolder`.
  /// Throws FatalFailure naming a read-only file that is missing. The learner's files are created,
  /// or where that cannot be, done without.
  void MoDuLieu();
  void closeAll();
  [[nodiscard]] bool areOpen() const noexcept { return files_[file::Texts].isOpen(); }
  /// The folder of the dictionary's files: the learner's, where one that was merged with brought
  /// dictionaries is whole there, else the pack.
  [[nodiscard]] std::string dictionaryFolder() const;
  /// Where a file of the pack lies.
  [[nodiscard]] std::string pathOf(std::string_view storedName) const;
  /// Holds a file of the pack. Throws FatalFailure naming it when it is missing.
  [[nodiscard]] std::shared_ptr<const MappedFile> hold(std::string_view storedName) const;
  /// The same of a file that is shown whole as one page. Throws FatalFailure naming it also when it
  /// is longer than any page.
  [[nodiscard]] std::shared_ptr<const MappedFile> holdPage(std::string_view storedName) const;
  /// Whether the pack has a file of that name.
  [[nodiscard]] bool has(std::string_view storedName) const;
  /// Opens a file that does not stay open for the run. Throws FatalFailure naming it when it is
  /// missing.
  [[nodiscard]] RecordFile open(std::string_view storedName);

  /// Chooses the store whose position table has that file number, 1 or 22, and sets `SoBai` from
  /// the current section.
  void ChonKho(int positionsFile);
  /// Copies the current store's position table into `ViTriBai`. Section 5 reads the same table as
  /// section 1, though it shows fewer texts.
  void NapViTriBai();

  /// Number of the course's and the learner's own reading texts.
  [[nodiscard]] int readingTexts() const noexcept { return readingTexts_; }
  /// Number of texts whose titles and translations the current store's table holds.
  [[nodiscard]] int textsInTable() const noexcept;
  [[nodiscard]] const RecordFile& fileOf(int number) const;
  /// What all files are read and written with.
  [[nodiscard]] FileSystem& fileSystem() const noexcept { return fileSystem_; }

  /// A record of data.Kcu; 0 past its end.
  [[nodiscard]] std::int32_t readSetting(int record) const;
  /// Holds at once, and is written through; what cannot be written is forgotten with the run.
  void writeSetting(int record, std::int32_t value);

  void declare(Variables& variables) const;

  /// What the byte stands for that was read last from any stream.
  std::string_view ChuoiByte;
  int FileChiSo = 0;  ///< file number of the current store's position table
  int FileVanBan = 0; ///< file number of its stream
  int SoBai = 0;      ///< number of texts that the current section shows
  /// The current store's position table, record k in element k; element 0 stays 0.
  std::array<std::int32_t, CurrentList::MaxLines + 1> ViTriBai{};

 private:
  static constexpr int FileCount = 26;

  /// The course's reading texts and the learner's own.
  void openTexts();

  const Places& places_;
  FileSystem& fileSystem_;
  std::array<RecordFile, FileCount> files_;
  SettingsFile settings_;
  int readingTexts_ = ReadingTexts;
};

} // namespace talvora
