#include "core/WebFiles.h"

#include <algorithm>
#include <optional>
#include <set>
#include <sstream>

extern "C" {
// The pack: files by number. What has not been fetched yet is waited for.
int talvoraPackFind(const char* name, std::size_t length);
int talvoraPackSize(int file);
void talvoraPackRead(int file, std::size_t offset, unsigned char* into, std::size_t size);
// The learner's files: by name; less than 0 is a failure.
int talvoraOwnSize(const char* name, std::size_t length);
int talvoraOwnCreate(const char* name, std::size_t length);
int talvoraOwnRead(const char* name, std::size_t length, std::size_t offset, unsigned char* into,
                   std::size_t size);
int talvoraOwnWrite(const char* name, std::size_t length, std::size_t offset,
                    const unsigned char* from, std::size_t size);
int talvoraOwnTruncate(const char* name, std::size_t length, std::size_t size);
int talvoraOwnSync(const char* name, std::size_t length);
int talvoraOwnRename(const char* from, std::size_t fromLength, const char* to,
                     std::size_t toLength);
int talvoraOwnRemove(const char* name, std::size_t length);
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

class HeldBytes final : public FileMapping {
 public:
  explicit HeldBytes(std::vector<unsigned char> bytes) : bytes_(std::move(bytes)) {}
  [[nodiscard]] std::span<const unsigned char> bytes() const noexcept override { return bytes_; }

 private:
  std::vector<unsigned char> bytes_;
};

/// The bytes of a file of the pack, which may still be on its way: whoever looks at them first
/// waits.
class ComingBytes final : public FileMapping {
 public:
  ComingBytes(int file, std::size_t size) : file_(file), size_(size) {}
  [[nodiscard]] std::span<const unsigned char> bytes() const noexcept override {
    if (bytes_.size() != size_) {
      bytes_.resize(size_);
      talvoraPackRead(file_, 0, bytes_.data(), size_);
    }
    return bytes_;
  }

 private:
  int file_;
  std::size_t size_;
  mutable std::vector<unsigned char> bytes_;
};

FileStatus fileOfSize(int size) {
  FileStatus status;
  status.kind = FileStatus::Kind::File;
  status.size = static_cast<std::size_t>(size);
  return status;
}

/// Reads what there is of a stretch of a file.
class SizedFile : public OpenFile {
 public:
  [[nodiscard]] FileStatus status(std::error_code& error) override {
    error = outcome(size());
    return error ? FileStatus() : fileOfSize(size());
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
    std::vector<unsigned char> bytes(size);
    if (read(0, bytes, error) < size) return nullptr;
    return std::make_unique<HeldBytes>(std::move(bytes));
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
    return std::make_unique<ComingBytes>(number_, size);
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
    return outcome(talvoraOwnWrite(name_.data(), name_.size(), offset, bytes.data(), bytes.size()));
  }
  [[nodiscard]] std::error_code truncate(std::size_t size) override {
    return outcome(talvoraOwnTruncate(name_.data(), name_.size(), size));
  }
  [[nodiscard]] std::error_code sync() override {
    return outcome(talvoraOwnSync(name_.data(), name_.size()));
  }

 private:
  [[nodiscard]] int size() const override { return talvoraOwnSize(name_.data(), name_.size()); }
  [[nodiscard]] int take(std::size_t offset, std::span<unsigned char> into) const override {
    return talvoraOwnRead(name_.data(), name_.size(), offset, into.data(), into.size());
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
  const bool there = name && talvoraOwnSize(name->data(), name->size()) >= 0;
  if (!name || (!there && purpose == OpenFor::Reading)) {
    error = errorOf(std::errc::no_such_file_or_directory);
  } else if (there && purpose == OpenFor::CreatingNew) {
    error = errorOf(std::errc::file_exists);
  } else if (!there) {
    error = outcome(talvoraOwnCreate(name->data(), name->size()));
  }
  return error ? nullptr : std::make_unique<OwnFile>(*name);
}

FileStatus WebFiles::status(const std::string& path, std::error_code& error) {
  error = {};
  if (isFolder(path)) {
    FileStatus folder;
    folder.kind = FileStatus::Kind::Folder;
    return folder;
  }
  if (const auto name = below(PackFolder, path)) {
    const int number = talvoraPackFind(name->data(), name->size());
    return number < 0 ? FileStatus() : fileOfSize(talvoraPackSize(number));
  }
  const auto name = below(LearnerFolder, path);
  const int size = name ? talvoraOwnSize(name->data(), name->size()) : -1;
  return size < 0 ? FileStatus() : fileOfSize(size);
}

std::string WebFiles::followLinks(const std::string& path, std::error_code& error) {
  error = {};
  return path;
}

std::error_code WebFiles::rename(const std::string& from, const std::string& to) {
  const auto one = below(LearnerFolder, from);
  const auto other = below(LearnerFolder, to);
  if (!one || !other) return errorOf(std::errc::read_only_file_system);
  return outcome(talvoraOwnRename(one->data(), one->size(), other->data(), other->size()));
}

std::error_code WebFiles::remove(const std::string& path) {
  const auto name = below(LearnerFolder, path);
  if (!name) return errorOf(std::errc::read_only_file_system);
  if (isFolder(path)) return errorOf(std::errc::directory_not_empty);
  return outcome(talvoraOwnRemove(name->data(), name->size()));
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
