#include "platform/Files.h"

#include "platform/FatalFailure.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>

namespace talvora {

namespace {

[[noreturn]] void fail(const std::string& path, const std::string& what) {
  throw FatalFailure(path + ": " + what + ": " + std::strerror(errno));
}

/// Closes a handle at the end of a scope.
class OpenHandle {
 public:
  explicit OpenHandle(int handle) : handle_(handle) {}
  OpenHandle(const OpenHandle&) = delete;
  OpenHandle& operator=(const OpenHandle&) = delete;
  ~OpenHandle() {
    if (handle_ >= 0) ::close(handle_);
  }
  [[nodiscard]] int get() const { return handle_; }

 private:
  int handle_;
};

std::size_t sizeOf(int handle, const std::string& path) {
  struct stat status {};
  if (::fstat(handle, &status) != 0) fail(path, "cannot be examined");
  if (S_ISDIR(status.st_mode)) throw FatalFailure(path + ": is a directory");
  return static_cast<std::size_t>(status.st_size);
}

} // namespace

namespace {

bool writeAll(int handle, std::span<const unsigned char> content) {
  while (!content.empty()) {
    const ssize_t put = ::write(handle, content.data(), content.size());
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) return false;
    content = content.subspan(static_cast<std::size_t>(put));
  }
  return true;
}

std::string folderOf(const std::string& path) {
  const auto slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

void syncFolder(const std::string& folder) {
  const OpenHandle handle(::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (handle.get() >= 0) ::fsync(handle.get());
}

} // namespace

std::optional<std::string> replaceFile(const std::string& path,
                                       std::span<const unsigned char> content) {
  const std::string beside = path + ".new";
  const auto problem = [&](const char* what) {
    std::string text = path + ": " + what + ": " + std::strerror(errno);
    ::unlink(beside.c_str());
    return text;
  };
  {
    const OpenHandle handle(::open(beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644));
    if (handle.get() < 0) return problem("cannot be written");
    if (!writeAll(handle.get(), content)) return problem("cannot be written");
    if (::fsync(handle.get()) != 0) return problem("cannot be synced");
  }
  if (::rename(beside.c_str(), path.c_str()) != 0) return problem("cannot be replaced");
  syncFolder(folderOf(path));
  return std::nullopt;
}

bool TonTaiFile(const std::string& path) noexcept {
  struct stat status {};
  return ::stat(path.c_str(), &status) == 0 && !S_ISDIR(status.st_mode);
}

std::shared_ptr<const MappedFile> MappedFile::open(const std::string& path) {
  const OpenHandle handle(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
  if (handle.get() < 0) fail(path, "cannot be opened");
  const std::size_t size = sizeOf(handle.get(), path);
  const unsigned char* data = nullptr;
  if (size > 0) {
    void* mapped = ::mmap(nullptr, size, PROT_READ, MAP_PRIVATE, handle.get(), 0);
    if (mapped == MAP_FAILED) fail(path, "cannot be mapped");
    data = static_cast<const unsigned char*>(mapped);
  }
  return std::shared_ptr<const MappedFile>(new MappedFile(data, size));
}

void MappedFile::letMemoryGo() const noexcept {
  if (data_ != nullptr) ::madvise(const_cast<unsigned char*>(data_), size_, MADV_DONTNEED);
}

MappedFile::~MappedFile() {
  if (data_ != nullptr) ::munmap(const_cast<unsigned char*>(data_), size_);
}

ReadWriteFile::ReadWriteFile(const std::string& path)
    : path_(path), handle_(::open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0644)) {
  if (handle_ < 0) fail(path, "cannot be opened for writing");
}

ReadWriteFile::~ReadWriteFile() {
  ::close(handle_);
}

std::size_t ReadWriteFile::size() const {
  return sizeOf(handle_, path_);
}

void ReadWriteFile::read(std::size_t offset, std::span<unsigned char> into) const {
  std::fill(into.begin(), into.end(), static_cast<unsigned char>(0));
  std::size_t done = 0;
  while (done < into.size()) {
    const ssize_t got =
        ::pread(handle_, into.data() + done, into.size() - done, static_cast<off_t>(offset + done));
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) fail(path_, "cannot be read");
    if (got == 0) return;
    done += static_cast<std::size_t>(got);
  }
}

void ReadWriteFile::write(std::size_t offset, std::span<const unsigned char> bytes) {
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t put = ::pwrite(handle_, bytes.data() + done, bytes.size() - done,
                                 static_cast<off_t>(offset + done));
    if (put < 0 && errno == EINTR) continue;
    if (put < 0) fail(path_, "cannot be written");
    done += static_cast<std::size_t>(put);
  }
}

} // namespace talvora
