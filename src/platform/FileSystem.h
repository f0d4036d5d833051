// A file system: every call on files that the program makes. One thing a call, so that whatever
// stands behind it, a machine's own, another front's or one that fails, is met in one place.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <system_error>
#include <vector>

namespace talvora {

/// What is known of a file.
struct FileStatus {
  enum class Kind { Missing, File, Folder, Other };

  Kind kind = Kind::Missing;
  std::size_t size = 0;   ///< bytes
  std::uint32_t mode = 0; ///< permission bits
  std::uint32_t owner = 0;
  std::uint32_t group = 0;
};

/// The bytes of a file, given back with this object.
class FileMapping {
 public:
  FileMapping() = default;
  FileMapping(const FileMapping&) = delete;
  FileMapping& operator=(const FileMapping&) = delete;
  virtual ~FileMapping() = default;

  /// All of them, in memory.
  [[nodiscard]] virtual std::span<const unsigned char> bytes() const noexcept = 0;
  /// Those from an offset on: all of them where they lie in memory, else as many as there is room
  /// for, which are read into it.
  [[nodiscard]] virtual std::span<const unsigned char>
  from(std::size_t offset, std::span<unsigned char>) const noexcept {
    const std::span<const unsigned char> all = bytes();
    return all.subspan(std::min(offset, all.size()));
  }
  /// Gives up the memory that reading has taken; what is read again comes from the file again.
  virtual void letMemoryGo() const noexcept {}
};

/// A file that is open; it is closed with this object.
class OpenFile {
 public:
  OpenFile() = default;
  OpenFile(const OpenFile&) = delete;
  OpenFile& operator=(const OpenFile&) = delete;
  virtual ~OpenFile() = default;

  [[nodiscard]] virtual FileStatus status(std::error_code& error) = 0;
  /// Reads at an offset until the span is full or the file ends; gives how many bytes it read.
  [[nodiscard]] virtual std::size_t read(std::size_t offset, std::span<unsigned char> into,
                                         std::error_code& error) = 0;
  /// Writes all of the bytes at an offset; the file grows as needed.
  [[nodiscard]] virtual std::error_code write(std::size_t offset,
                                              std::span<const unsigned char> bytes) = 0;
  [[nodiscard]] virtual std::error_code truncate(std::size_t size) = 0;
  /// Returns when what was written has reached the disk.
  [[nodiscard]] virtual std::error_code sync() = 0;
  /// Takes the permissions of another file, and its owner where that is allowed.
  [[nodiscard]] virtual std::error_code dressAs(const FileStatus& other) = 0;
  /// Maps the first `size` bytes for reading; null when that fails.
  [[nodiscard]] virtual std::unique_ptr<FileMapping> map(std::size_t size,
                                                         std::error_code& error) = 0;
  /// Locks the file against every other program that locks it; the lock goes with this object and
  /// with the program. An error of `std::errc::resource_unavailable_try_again` means that another
  /// one has it.
  [[nodiscard]] virtual std::error_code lock() = 0;
};

/// What a file is opened for.
enum class OpenFor {
  Reading,
  Writing,     ///< and reading; it is created empty when it is missing
  CreatingNew, ///< and writing; nothing of that name may be there, not even a link
};

class FileSystem {
 public:
  FileSystem() = default;
  FileSystem(const FileSystem&) = delete;
  FileSystem& operator=(const FileSystem&) = delete;
  virtual ~FileSystem() = default;

  /// Null when it cannot be opened.
  [[nodiscard]] virtual std::unique_ptr<OpenFile> open(const std::string& path, OpenFor purpose,
                                                       std::error_code& error) = 0;
  /// What a path leads to, through links. A path that leads nowhere is `Missing` and no error.
  [[nodiscard]] virtual FileStatus status(const std::string& path, std::error_code& error) = 0;
  /// The path of what a path leads to: links in its last part are followed, also to where nothing
  /// is yet.
  [[nodiscard]] virtual std::string followLinks(const std::string& path,
                                                std::error_code& error) = 0;
  [[nodiscard]] virtual std::error_code rename(const std::string& from, const std::string& to) = 0;
  /// Removes a file, or a folder with nothing in it; what is not there is no error.
  [[nodiscard]] virtual std::error_code remove(const std::string& path) = 0;
  /// Returns when what was renamed or created in a folder has reached the disk.
  [[nodiscard]] virtual std::error_code syncFolder(const std::string& folder) = 0;
  /// Makes a folder and those above it; one that is there is no error.
  [[nodiscard]] virtual std::error_code makeFolder(const std::string& folder) = 0;
  /// The names in a folder, without "." and "..", sorted.
  [[nodiscard]] virtual std::vector<std::string> list(const std::string& folder,
                                                      std::error_code& error) = 0;
  /// Whether files may be created in a folder.
  [[nodiscard]] virtual bool mayCreateIn(const std::string& folder) = 0;
};

/// The file system of the machine.
[[nodiscard]] FileSystem& systemFiles();

/// What happened to a mapped file since this was last asked: the path of one that has become
/// shorter while it was read, or an empty text. What was missing reads as 0 from then on.
[[nodiscard]] std::string takeShrunkFile();

} // namespace talvora
