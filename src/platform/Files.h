// Files as the program reads and writes them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace talvora {

/// True when the path exists and is not a directory; one that cannot be examined counts as absent.
[[nodiscard]] bool TonTaiFile(const std::string& path) noexcept;

/// Replaces a file's whole content: writes a new file beside it, syncs it, renames it over the old
/// one and syncs the folder. A kill at any moment leaves the old or the new content, whole.
/// Returns what went wrong, naming the file, or nothing; then the old content stands.
[[nodiscard]] std::optional<std::string> replaceFile(const std::string& path,
                                                     std::span<const unsigned char> content);

/// A file mapped into memory for reading. It stays valid as long as any holder keeps it.
class MappedFile {
 public:
  /// Maps a file. An empty file maps to an empty span.
  /// Throws FatalFailure naming the file when it is missing or cannot be read.
  [[nodiscard]] static std::shared_ptr<const MappedFile> open(const std::string& path);

  MappedFile(const MappedFile&) = delete;
  MappedFile& operator=(const MappedFile&) = delete;
  ~MappedFile();

  [[nodiscard]] std::span<const unsigned char> bytes() const noexcept { return {data_, size_}; }
  [[nodiscard]] std::string_view text() const noexcept {
    return {reinterpret_cast<const char*>(data_), size_};
  }
  /// Gives the memory back that reading has taken up; what is read again comes from the file again.
  void letMemoryGo() const noexcept;

 private:
  MappedFile(const unsigned char* data, std::size_t size) : data_(data), size_(size) {}

  const unsigned char* data_;
  std::size_t size_;
};

/// A file open for reading and writing at places, kept for the run.
class ReadWriteFile {
 public:
  /// Opens a file, and creates it empty when it is missing.
  /// Throws FatalFailure naming the file when neither is possible.
  explicit ReadWriteFile(const std::string& path);
  ReadWriteFile(const ReadWriteFile&) = delete;
  ReadWriteFile& operator=(const ReadWriteFile&) = delete;
  ~ReadWriteFile();

  [[nodiscard]] std::size_t size() const;
  /// Reads at an offset; what lies past the end reads as 0.
  void read(std::size_t offset, std::span<unsigned char> into) const;
  /// Writes at an offset, through to the system; the file grows as needed.
  void write(std::size_t offset, std::span<const unsigned char> bytes);

 private:
  std::string path_;
  int handle_;
};

} // namespace talvora
