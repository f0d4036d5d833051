// Files as the program reads and writes them, on whatever file system it is given.
#pragma once

#include "platform/FileSystem.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace talvora {

/// True when the path exists and is not a directory; one that cannot be examined counts as absent.
[[nodiscard]] bool TonTaiFile(const std::string& path, FileSystem& files = systemFiles());

/// What went wrong with a file, in words that name it.
[[nodiscard]] std::string fileProblem(const std::string& path, std::string_view what,
                                      const std::error_code& error);

/// The whole content of a file; nothing when it is not there or cannot be read, and `error` tells
/// which.
[[nodiscard]] std::optional<std::vector<unsigned char>>
readWhole(FileSystem& files, const std::string& path, std::error_code& error);

/// Replaces a file's whole content: writes a new file beside it, syncs it, renames it over the old
/// one and syncs the folder. A link is followed, permissions and owner are kept. A kill at any
/// moment leaves the old or the new content, whole.
/// Returns what went wrong, naming the file, or nothing. With a problem the old content stands,
/// unless it is the folder that could not be synced.
[[nodiscard]] std::optional<std::string> replaceFile(FileSystem& files, const std::string& path,
                                                     std::span<const unsigned char> content);

/// What is told of a file that became shorter while it was read.
[[nodiscard]] std::string shrunkFileProblem(const std::string& path);

/// Whether a name in a folder is that of a new file which a killed `replaceFile` of `name` left.
[[nodiscard]] bool isLeftOver(std::string_view entry, std::string_view name);

/// The folder that a path lies in.
[[nodiscard]] std::string folderOf(const std::string& path);

/// The bytes of a text, and a text of bytes.
[[nodiscard]] inline std::span<const unsigned char> bytesOfText(std::string_view text) {
  return {reinterpret_cast<const unsigned char*>(text.data()), text.size()};
}
[[nodiscard]] inline std::string textOfBytes(std::span<const unsigned char> bytes) {
  return {bytes.begin(), bytes.end()};
}

/// A file held for reading. It stays valid as long as any holder keeps it. A small file is read
/// into memory, so that whatever becomes of it on disk changes nothing; a large one is mapped.
class MappedFile {
 public:
  /// Files from this size on are mapped: in a course the texts and the words, of which one sitting
  /// reads little.
  static constexpr std::size_t LargeFile = std::size_t{1} << 17;

  /// An empty file gives an empty span.
  /// Throws FatalFailure naming the file when it is missing or cannot be read.
  [[nodiscard]] static std::shared_ptr<const MappedFile> open(const std::string& path,
                                                              FileSystem& files = systemFiles());

  explicit MappedFile(std::vector<unsigned char> content) : content_(std::move(content)) {}
  explicit MappedFile(std::unique_ptr<FileMapping> mapping) : mapping_(std::move(mapping)) {}

  [[nodiscard]] std::span<const unsigned char> bytes() const noexcept {
    return mapping_ ? mapping_->bytes() : std::span<const unsigned char>(content_);
  }
  /// The bytes from an offset on: all of them where they lie in memory, else as many as there is
  /// room for, which are read into it.
  [[nodiscard]] std::span<const unsigned char> from(std::size_t offset,
                                                    std::span<unsigned char> room) const noexcept {
    return mapping_ ? mapping_->from(offset, room)
                    : bytes().subspan(std::min(offset, content_.size()));
  }
  [[nodiscard]] std::string_view text() const noexcept {
    return {reinterpret_cast<const char*>(bytes().data()), bytes().size()};
  }
  /// Gives the memory back that reading a large file has taken up; what is read again comes from
  /// the file again.
  void letMemoryGo() const noexcept {
    if (mapping_) mapping_->letMemoryGo();
  }

 private:
  std::vector<unsigned char> content_;
  std::unique_ptr<FileMapping> mapping_;
};

} // namespace talvora
