// Writing of compiled files.
#include "pack/PackFile.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace talvora::pack {

namespace {

std::string failureAt(const std::filesystem::path& path) {
  return path.string() + ": " + std::strerror(errno);
}

bool writeAll(int handle, const std::string& bytes) {
  std::size_t done = 0;
  while (done < bytes.size()) {
    const auto count = ::write(handle, bytes.data() + done, bytes.size() - done);
    if (count < 0 && errno != EINTR) return false;
    if (count > 0) done += static_cast<std::size_t>(count);
  }
  return ::fsync(handle) == 0;
}

} // namespace

std::optional<std::string> store(const PackFile& file, const std::filesystem::path& folder) {
  const auto path = folder / file.name;
  if (file.owner == Owner::Learner && std::filesystem::exists(path)) return std::nullopt;
  const auto beside = folder / (file.name + ".new");
  const int handle = ::open(beside.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
  if (handle < 0) return failureAt(beside);
  const bool written = writeAll(handle, file.bytes);
  if ((::close(handle) != 0) || !written) {
    std::string failure = failureAt(beside);
    ::unlink(beside.c_str());
    return failure;
  }
  if (::rename(beside.c_str(), path.c_str()) != 0) return failureAt(path);
  return std::nullopt;
}

} // namespace talvora::pack
