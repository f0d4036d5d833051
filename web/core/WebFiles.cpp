#include "core/WebFiles.h"

#include "platform/Files.h"

#include <algorithm>
#include <optional>
#include <set>
#include <sstream>

extern "C" {
// The pack: files by number. What has not been fetched yet is waited for.
int talvoraPackFind(const char* name, std::size_t length);
int talvoraPackSize(int file);
void talvoraPackRead(int file, std::size_t offset, unsigned char* into, std::size_t size);
// Does a deed of `OwnFiles` (own.js) to one of the learner's files; less than 0 is a failure. What
// is read is written into the bytes.
int talvoraOwn(const char* deed, const char* name, std::size_t length, std::size_t number,
               const unsigned char* bytes, std::size_t size);
int talvoraOwnList(char* into, std::size_t room);
}

namespace talvora::web {

namespace {

std::error_code errorOf(std::errc code) {
  return std::make_error_code(code);
}

/// What a call gave, as an error where it failed.
std::error_code outcome(int result) {
  return result < 0 ? errorOf(std::errc::io_error) : std::error_code();
}

int own(const char* deed, const std::string& name, std::size_t number = 0,
        std::span<const unsigned char> bytes = {}) {
  return talvoraOwn(deed, name.data(), name.size(), number, bytes.data(), bytes.size());
}

/// The part of a path below a folder; nothing when it lies elsewhere.
std::optional<std::string> below(std::string_view folder, const std::string& path) {
  const std::size_t size = folder.size();
  if (path.size() <= size + 1 || path.compare(0, size, folder) != 0 || path[size] != '/')
    return std::nullopt;
  return path.substr(size + 1);
}

/// The paths of all of the learner's files.
std::vector<std::string> ownPaths() {
  const int size = talvoraOwnList(nullptr, 0);
  std::string lines(static_cast<std::size_t>(std::max(0, size)), '\0');
  talvoraOwnList(lines.data(), lines.size());
  std::istringstream in(lines);
  std::vector<std::string> paths;
  for (std::string name; std::getline(in, name);)
    paths.push_back(std::string(LearnerFolder) + "/" + name);
  return paths;
}

/// Folders are nothing of their own: one is there when a file lies in it.
bool isFolder(const std::string& path) {
  const std::vector<std::string> paths = ownPaths();
  return path == PackFolder || path == LearnerFolder ||
         std::any_of(paths.begin(), paths.end(),
                     [&](const std::string& each) { return below(path, each).has_value(); });
}

/// The bytes of a file. One of the pack may still be on its way: whoever looks at it first waits. A
/// very large one, the entries of the dictionary, stays where it is kept.
class FileBytes final : public FileMapping {
 public:
  explicit FileBytes(std::vector<unsigned char> held)
      : size_(held.size()), bytes_(std::move(held)) {}
  FileBytes(int packFile, std::size_t size) : file_(packFile), size_(size) {}
  [[nodiscard]] std::span<const unsigned char> bytes() const noexcept override {
    if (bytes_.size() != size_) {
      bytes_.resize(size_);
      talvoraPackRead(file_, 0, bytes_.data(), size_);
    }
    return bytes_;
  }
  [[nodiscard]] std::span<const unsigned char>
  from(std::size_t offset, std::span<unsigned char> room) const noexcept override {
    if (size_ <= LargestHeld || bytes_.size() == size_) return FileMapping::from(offset, room);
    const auto part = room.first(std::min(room.size(), size_ - std::min(offset, size_)));
    if (!part.empty()) talvoraPackRead(file_, offset, part.data(), part.size());
    return part;
  }

 private:
  static constexpr std::size_t LargestHeld = std::size_t{8} << 20;

  int file_ = -1;
  std::size_t size_;
  mutable std::vector<unsigned char> bytes_;
};

/// Reads what there is of a stretch of a file.
class SizedFile : public OpenFile {
 public:
  [[nodiscard]] FileStatus status(std::error_code& error) override {
    const int bytes = size();
    error = outcome(bytes);
    if (error) return {};
    return {.kind = FileStatus::Kind::File, .size = static_cast<std::size_t>(bytes)};
  }
  [[nodiscard]] std::size_t read(std::size_t offset, std::span<unsigned char> into,
                                 std::error_code& error) override {
    error = outcome(size());
    const auto end = static_cast<std::size_t>(std::max(0, size()));
    const std::size_t count = offset < end ? std::min(into.size(), end - offset) : 0;
    if (count > 0) error = outcome(take(offset, into.first(count)));
    return error ? 0 : count;
  }
  [[nodiscard]] std::error_code dressAs(const FileStatus&) override { return {}; }
  [[nodiscard]] std::unique_ptr<FileMapping> map(std::size_t size,
                                                 std::error_code& error) override {
    std::vector<unsigned char> held(size);
    if (read(0, held, error) < size) return nullptr;
    return std::make_unique<FileBytes>(std::move(held));
  }
  /// The browser's own lock keeps a second page away before a program starts.
  [[nodiscard]] std::error_code lock() override { return {}; }

 protected:
  /// Less than 0 when the file is gone.
  [[nodiscard]] virtual int size() const = 0;
  [[nodiscard]] virtual int take(std::size_t offset, std::span<unsigned char> into) const = 0;
};

class PackFile final : public SizedFile {
 public:
  explicit PackFile(int number) : number_(number) {}
  [[nodiscard]] std::error_code write(std::size_t, std::span<const unsigned char>) override {
    return errorOf(std::errc::read_only_file_system);
  }
  [[nodiscard]] std::error_code truncate(std::size_t) override {
    return errorOf(std::errc::read_only_file_system);
  }
  [[nodiscard]] std::error_code sync() override { return {}; }
  [[nodiscard]] std::unique_ptr<FileMapping> map(std::size_t size, std::error_code&) override {
    return std::make_unique<FileBytes>(number_, size);
  }

 private:
  [[nodiscard]] int size() const override { return talvoraPackSize(number_); }
  [[nodiscard]] int take(std::size_t offset, std::span<unsigned char> into) const override {
    talvoraPackRead(number_, offset, into.data(), into.size());
    return 0;
  }

  int number_;
};

class OwnFile final : public SizedFile {
 public:
  explicit OwnFile(std::string name) : name_(std::move(name)) {}
  [[nodiscard]] std::error_code write(std::size_t offset,
                                      std::span<const unsigned char> bytes) override {
    return outcome(own("write", name_, offset, bytes));
  }
  [[nodiscard]] std::error_code truncate(std::size_t size) override {
    return outcome(own("truncate", name_, size));
  }
  [[nodiscard]] std::error_code sync() override { return outcome(own("sync", name_)); }

 private:
  [[nodiscard]] int size() const override { return own("size", name_); }
  [[nodiscard]] int take(std::size_t offset, std::span<unsigned char> into) const override {
    return own("read", name_, offset, into);
  }

  std::string name_;
};

} // namespace

std::unique_ptr<OpenFile> WebFiles::open(const std::string& path, OpenFor purpose,
                                         std::error_code& error) {
  error = {};
  if (const auto name = below(PackFolder, path)) {
    const int number = talvoraPackFind(name->data(), name->size());
    if (number >= 0 && purpose == OpenFor::Reading) return std::make_unique<PackFile>(number);
    error = errorOf(number < 0 ? std::errc::no_such_file_or_directory
                               : std::errc::read_only_file_system);
    return nullptr;
  }
  const auto name = below(LearnerFolder, path);
  const bool there = name && own("size", *name) >= 0;
  if (!name || (!there && purpose == OpenFor::Reading)) {
    error = errorOf(std::errc::no_such_file_or_directory);
  } else if (there && purpose == OpenFor::CreatingNew) {
    error = errorOf(std::errc::file_exists);
  } else if (!there) {
    error = outcome(own("create", *name));
  }
  return error ? nullptr : std::make_unique<OwnFile>(*name);
}

FileStatus WebFiles::status(const std::string& path, std::error_code& error) {
  error = {};
  FileStatus status;
  std::error_code missing;
  if (isFolder(path)) {
    status.kind = FileStatus::Kind::Folder;
  } else if (const auto file = open(path, OpenFor::Reading, missing)) {
    status = file->status(error);
  }
  return status;
}

std::string WebFiles::followLinks(const std::string& path, std::error_code& error) {
  error = {};
  return path;
}

std::error_code WebFiles::rename(const std::string& from, const std::string& to) {
  const auto one = below(LearnerFolder, from);
  const auto other = below(LearnerFolder, to);
  if (!one || !other) return errorOf(std::errc::read_only_file_system);
  return outcome(own("rename", *one, 0, bytesOfText(*other)));
}

std::error_code WebFiles::remove(const std::string& path) {
  const auto name = below(LearnerFolder, path);
  if (!name) return errorOf(std::errc::read_only_file_system);
  if (isFolder(path)) return errorOf(std::errc::directory_not_empty);
  return outcome(own("remove", *name));
}

std::vector<std::string> WebFiles::list(const std::string& folder, std::error_code& error) {
  error = {};
  std::set<std::string> names;
  for (const std::string& path : ownPaths()) {
    const auto name = below(folder, path);
    if (name) names.insert(name->substr(0, name->find('/')));
  }
  return {names.begin(), names.end()};
}

bool WebFiles::mayCreateIn(const std::string& folder) {
  return folder == LearnerFolder || below(LearnerFolder, folder);
}

} // namespace talvora::web
