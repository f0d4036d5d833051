#include "SystemCalls.h"

#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <utility>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/mman.h>
#include <sys/stat.h>
#include <unistd.h>

namespace talvora::test {

namespace {

constexpr std::size_t MostWritten = 7; // bytes of a call in a storm

SignalStorm* storm = nullptr;
FailingCall* failing = nullptr;

} // namespace

SignalStorm::SignalStorm() {
  storm = this;
}
SignalStorm::~SignalStorm() {
  storm = nullptr;
}

FailingCall::FailingCall(std::string call, int error, int from)
    : call_(std::move(call)), error_(error), from_(from) {
  failing = this;
}
FailingCall::~FailingCall() {
  failing = nullptr;
}

/// What becomes of a call of the system.
struct SystemCall {
  /// Whether it fails as a test wants it; `errno` is set then.
  static bool fails(const char* name) {
    if (failing == nullptr || failing->call_ != name) return false;
    if (++failing->times_ < failing->from_) return false;
    errno = failing->error_;
    return true;
  }
  /// The same of a call that a signal may break off; every other one is.
  static bool isCutShort(const char* name) {
    if (fails(name)) return true;
    if (storm == nullptr) return false;
    storm->met_.insert(name);
    bool& broken = storm->broken_[name];
    broken = !broken;
    if (broken) errno = EINTR;
    return broken;
  }
  static std::size_t taken(std::size_t size) {
    return storm == nullptr ? size : std::min(size, MostWritten);
  }
  /// What a failing write says that it has written.
  static ssize_t written() { return errno == 0 ? 0 : -1; }

  template <class Call>
  static Call systems(const char* name) {
    return reinterpret_cast<Call>(::dlsym(RTLD_NEXT, name));
  }
};

} // namespace talvora::test

using talvora::test::SystemCall;

extern "C" {

int open(const char* path, int flags, ...) {
  va_list rest;
  va_start(rest, flags);
  const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(rest, mode_t) : 0;
  va_end(rest);
  if (SystemCall::isCutShort("open")) return -1;
  return SystemCall::systems<int (*)(const char*, int, ...)>("open")(path, flags, mode);
}

ssize_t pread(int file, void* into, size_t size, off_t offset) {
  if (SystemCall::isCutShort("pread")) return -1;
  return SystemCall::systems<decltype(&pread)>("pread")(file, into, size, offset);
}

ssize_t pwrite(int file, const void* bytes, size_t size, off_t offset) {
  if (SystemCall::isCutShort("pwrite")) return SystemCall::written();
  return SystemCall::systems<decltype(&pwrite)>("pwrite")(file, bytes, SystemCall::taken(size),
                                                          offset);
}

int fsync(int file) {
  if (SystemCall::isCutShort("fsync")) return -1;
  return SystemCall::systems<decltype(&fsync)>("fsync")(file);
}

int ftruncate(int file, off_t size) noexcept {
  if (SystemCall::isCutShort("ftruncate")) return -1;
  return SystemCall::systems<int (*)(int, off_t)>("ftruncate")(file, size);
}

int fchmod(int file, mode_t mode) noexcept {
  if (SystemCall::isCutShort("fchmod")) return -1;
  return SystemCall::systems<int (*)(int, mode_t)>("fchmod")(file, mode);
}

int fchown(int file, uid_t owner, gid_t group) noexcept {
  if (SystemCall::isCutShort("fchown")) return -1;
  return SystemCall::systems<int (*)(int, uid_t, gid_t)>("fchown")(file, owner, group);
}

int flock(int file, int operation) noexcept {
  if (SystemCall::isCutShort("flock")) return -1;
  return SystemCall::systems<int (*)(int, int)>("flock")(file, operation);
}

// No signal breaks these off.

int fstat(int file, struct stat* found) noexcept {
  if (SystemCall::fails("fstat")) return -1;
  return SystemCall::systems<int (*)(int, struct stat*)>("fstat")(file, found);
}

int stat(const char* path, struct stat* found) noexcept {
  if (SystemCall::fails("stat")) return -1;
  return SystemCall::systems<int (*)(const char*, struct stat*)>("stat")(path, found);
}

ssize_t readlink(const char* path, char* to, size_t size) noexcept {
  if (SystemCall::fails("readlink")) return -1;
  return SystemCall::systems<ssize_t (*)(const char*, char*, size_t)>("readlink")(path, to, size);
}

int rename(const char* from, const char* to) noexcept {
  if (SystemCall::fails("rename")) return -1;
  return SystemCall::systems<int (*)(const char*, const char*)>("rename")(from, to);
}

int unlink(const char* path) noexcept {
  if (SystemCall::fails("unlink")) return -1;
  return SystemCall::systems<int (*)(const char*)>("unlink")(path);
}

int mkdir(const char* path, mode_t mode) noexcept {
  if (SystemCall::fails("mkdir")) return -1;
  return SystemCall::systems<int (*)(const char*, mode_t)>("mkdir")(path, mode);
}

void* mmap(void* at, size_t size, int rights, int flags, int file, off_t offset) noexcept {
  if (SystemCall::fails("mmap")) return MAP_FAILED;
  return SystemCall::systems<void* (*)(void*, size_t, int, int, int, off_t)>("mmap")(
      at, size, rights, flags, file, offset);
}

DIR* opendir(const char* path) {
  if (SystemCall::fails("opendir")) return nullptr;
  return SystemCall::systems<DIR* (*)(const char*)>("opendir")(path);
}

dirent* readdir(DIR* folder) {
  if (SystemCall::fails("readdir")) return nullptr;
  return SystemCall::systems<dirent* (*)(DIR*)>("readdir")(folder);
}
}
