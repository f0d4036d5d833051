// The file system of a POSIX machine. Calls that a signal breaks off are made again.
#include "platform/Files.h"
#include "platform/MappingGuard.h"

#include <algorithm>
#include <array>
#include <cerrno>

#include <dirent.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace talvora {

namespace {

constexpr mode_t NewFileMode = 0644;
constexpr mode_t NewFolderMode = 0755;
constexpr mode_t PermissionBits = 07777;
/// Links that lead to links: more are a circle.
constexpr int MostLinks = 40;

std::error_code lastError() {
  return {errno, std::generic_category()};
}

/// Makes a call until no signal breaks it off.
template <class Call>
auto retried(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR)
    result = call();
  return result;
}

std::error_code done(int result) {
  return result < 0 ? lastError() : std::error_code();
}

/// What a file system says of owners and permissions that it does not know, as that of a stick, of
/// a network or of a phone.
bool isNotKnown(int error) {
  return error == EPERM || error == ENOSYS || error == EOPNOTSUPP;
}

FileStatus statusFrom(const struct stat& found) {
  const auto kind = S_ISREG(found.st_mode)   ? FileStatus::Kind::File
                    : S_ISDIR(found.st_mode) ? FileStatus::Kind::Folder
                                             : FileStatus::Kind::Other;
  return {kind, static_cast<std::size_t>(found.st_size), found.st_mode & PermissionBits,
          found.st_uid, found.st_gid};
}

class PosixMapping final : public FileMapping {
 public:
  PosixMapping(void* data, std::size_t size, const std::string& path)
      : data_(data), size_(size), guard_(data, size, path) {}
  ~PosixMapping() override { ::munmap(data_, size_); }

  [[nodiscard]] std::span<const unsigned char> bytes() const noexcept override {
    return {static_cast<const unsigned char*>(data_), size_};
  }
  void letMemoryGo() const noexcept override { ::madvise(data_, size_, MADV_DONTNEED); }

 private:
  void* data_;
  std::size_t size_;
  MappingGuard guard_;
};

class PosixFile final : public OpenFile {
 public:
  PosixFile(int handle, std::string path) : handle_(handle), path_(std::move(path)) {}
  ~PosixFile() override { ::close(handle_); }

  FileStatus status(std::error_code& error) override {
    struct stat found {};
    error = done(::fstat(handle_, &found));
    return error ? FileStatus() : statusFrom(found);
  }
  std::size_t read(std::size_t offset, std::span<unsigned char> into,
                   std::error_code& error) override;
  std::error_code write(std::size_t offset, std::span<const unsigned char> bytes) override;
  std::error_code truncate(std::size_t size) override {
    return done(retried([&] { return ::ftruncate(handle_, static_cast<off_t>(size)); }));
  }
  std::error_code sync() override {
    return done(retried([&] { return ::fsync(handle_); }));
  }
  std::error_code dressAs(const FileStatus& other) override {
    // Only the owner of a machine may give files away; a guest's copy stays the guest's. A
    // container calls an owner that it does not know an invalid one.
    const int given = retried([&] { return ::fchown(handle_, other.owner, other.group); });
    if (given != 0 && !isNotKnown(errno) && errno != EINVAL) return lastError();
    const int changed = retried([&] { return ::fchmod(handle_, other.mode); });
    return changed != 0 && isNotKnown(errno) ? std::error_code() : done(changed);
  }
  std::unique_ptr<FileMapping> map(std::size_t size, std::error_code& error) override {
    void* const data = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, handle_, 0);
    error = data == MAP_FAILED ? lastError() : std::error_code();
    if (error) return nullptr;
    return std::make_unique<PosixMapping>(data, size, path_);
  }
  std::error_code lock() override {
    const int taken = retried([&] { return ::flock(handle_, LOCK_EX | LOCK_NB); });
    if (taken != 0 && errno == EWOULDBLOCK) {
      return std::make_error_code(std::errc::resource_unavailable_try_again);
    }
    return done(taken);
  }

 private:
  int handle_;
  std::string path_;
};

std::size_t PosixFile::read(std::size_t offset, std::span<unsigned char> into,
                            std::error_code& error) {
  std::size_t got = 0;
  error.clear();
  while (got < into.size()) {
    const ssize_t part = retried([&] {
      return ::pread(handle_, into.data() + got, into.size() - got,
                     static_cast<off_t>(offset + got));
    });
    if (part < 0) error = lastError();
    if (part <= 0) break;
    got += static_cast<std::size_t>(part);
  }
  return got;
}

std::error_code PosixFile::write(std::size_t offset, std::span<const unsigned char> bytes) {
  while (!bytes.empty()) {
    const ssize_t part = retried(
        [&] { return ::pwrite(handle_, bytes.data(), bytes.size(), static_cast<off_t>(offset)); });
    if (part < 0) return lastError();
    // A device that takes nothing and calls that no error would be written to for ever.
    if (part == 0) return std::make_error_code(std::errc::io_error);
    offset += static_cast<std::size_t>(part);
    bytes = bytes.subspan(static_cast<std::size_t>(part));
  }
  return {};
}

/// What `open` is asked for. Nothing that is no file, a pipe for one, makes it wait.
int flagsFor(OpenFor purpose) {
  constexpr int always = O_CLOEXEC | O_NONBLOCK | O_NOCTTY;
  if (purpose == OpenFor::Reading) return always | O_RDONLY;
  constexpr int writing = always | O_RDWR | O_CREAT;
  return purpose == OpenFor::CreatingNew ? writing | O_EXCL | O_NOFOLLOW : writing;
}

std::string parentOf(const std::string& path) {
  const auto slash = path.rfind('/');
  return slash == std::string::npos ? std::string() : path.substr(0, slash + 1);
}

class PosixFileSystem final : public FileSystem {
 public:
  std::unique_ptr<OpenFile> open(const std::string& path, OpenFor purpose,
                                 std::error_code& error) override {
    const int handle =
        retried([&] { return ::open(path.c_str(), flagsFor(purpose), NewFileMode); });
    error = done(handle);
    return error ? nullptr : std::make_unique<PosixFile>(handle, path);
  }
  FileStatus status(const std::string& path, std::error_code& error) override {
    struct stat found {};
    error = done(::stat(path.c_str(), &found));
    const bool missing = error == std::errc::no_such_file_or_directory;
    if (missing) error.clear();
    return missing || error ? FileStatus() : statusFrom(found);
  }
  std::string followLinks(const std::string& path, std::error_code& error) override;
  std::error_code rename(const std::string& from, const std::string& to) override {
    return done(::rename(from.c_str(), to.c_str()));
  }
  std::error_code remove(const std::string& path) override {
    if (::unlink(path.c_str()) == 0 || errno == ENOENT) return {};
    if (errno != EISDIR && errno != EPERM) return lastError();
    return done(::rmdir(path.c_str()));
  }
  std::error_code syncFolder(const std::string& folder) override;
  std::error_code makeFolder(const std::string& folder) override;
  std::vector<std::string> list(const std::string& folder, std::error_code& error) override;
  bool mayCreateIn(const std::string& folder) override {
    return ::access(folder.c_str(), W_OK | X_OK) == 0;
  }
};

std::string PosixFileSystem::followLinks(const std::string& path, std::error_code& error) {
  std::string at = path;
  error.clear();
  for (int links = 0; links < MostLinks; ++links) {
    std::array<char, 4096> to{};
    const ssize_t length = ::readlink(at.c_str(), to.data(), to.size());
    // What is no link, or not there, is the end of the way.
    if (length < 0 && (errno == EINVAL || errno == ENOENT)) return at;
    if (length < 0) {
      error = lastError();
      return at;
    }
    const std::string target(to.data(), static_cast<std::size_t>(length));
    at = target.starts_with('/') ? target : parentOf(at).append(target);
  }
  error = std::make_error_code(std::errc::too_many_symbolic_link_levels);
  return path;
}

std::error_code PosixFileSystem::syncFolder(const std::string& folder) {
  const int handle =
      retried([&] { return ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC); });
  if (handle < 0) return lastError();
  auto error = done(retried([&] { return ::fsync(handle); }));
  ::close(handle);
  // Some network and stick file systems know no such thing as a folder's own sync.
  if (error == std::errc::invalid_argument || error == std::errc::not_supported) error.clear();
  return error;
}

std::error_code PosixFileSystem::makeFolder(const std::string& folder) {
  for (std::size_t slash = folder.find('/', 1);; slash = folder.find('/', slash + 1)) {
    const std::string part = folder.substr(0, slash);
    const bool made = ::mkdir(part.c_str(), NewFolderMode) == 0;
    if (made) {
      // What comes to lie in it outlives a power cut only where its name does. A folder that cannot
      // be synced is a folder all the same.
      static_cast<void>(syncFolder(folderOf(part)));
    } else if (errno != EEXIST) {
      // A folder that is there already may lie in one that nobody may write.
      const auto problem = lastError();
      std::error_code unknown;
      if (status(part, unknown).kind != FileStatus::Kind::Folder) return problem;
    }
    if (slash == std::string::npos) break;
  }
  std::error_code error;
  if (status(folder, error).kind == FileStatus::Kind::Folder) return {};
  return error ? error : std::make_error_code(std::errc::not_a_directory);
}

std::vector<std::string> PosixFileSystem::list(const std::string& folder, std::error_code& error) {
  std::vector<std::string> names;
  const std::unique_ptr<DIR, int (*)(DIR*)> open(::opendir(folder.c_str()), ::closedir);
  error = open == nullptr ? lastError() : std::error_code();
  if (error) return names;
  errno = 0;
  while (const dirent* entry = ::readdir(open.get())) {
    const std::string name = entry->d_name;
    if (name != "." && name != "..") names.push_back(name);
    errno = 0;
  }
  if (errno != 0) error = lastError();
  std::sort(names.begin(), names.end());
  return names;
}

} // namespace

FileSystem& systemFiles() {
  static PosixFileSystem files;
  return files;
}

} // namespace talvora
