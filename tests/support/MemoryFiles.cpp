#include "tests/support/MemoryFiles.h"

#include <algorithm>
#include <set>

namespace talvora::test {

namespace {

using Bytes = MemoryFiles::Bytes;

class CopiedMapping final : public FileMapping {
 public:
  explicit CopiedMapping(Bytes bytes) : bytes_(std::move(bytes)) {}
  [[nodiscard]] std::span<const unsigned char> bytes() const noexcept override { return bytes_; }

 private:
  Bytes bytes_;
};

class MemoryFile final : public OpenFile {
 public:
  explicit MemoryFile(std::shared_ptr<Bytes> bytes) : bytes_(std::move(bytes)) {}

  FileStatus status(std::error_code& error) override {
    error.clear();
    return {FileStatus::Kind::File, bytes_->size()};
  }
  std::size_t read(std::size_t offset, std::span<unsigned char> into,
                   std::error_code& error) override {
    error.clear();
    if (offset >= bytes_->size()) return 0;
    const std::size_t count = std::min(into.size(), bytes_->size() - offset);
    std::copy_n(bytes_->begin() + static_cast<std::ptrdiff_t>(offset), count, into.begin());
    return count;
  }
  std::error_code write(std::size_t offset, std::span<const unsigned char> bytes) override {
    bytes_->resize(std::max(bytes_->size(), offset + bytes.size()));
    std::copy(bytes.begin(), bytes.end(), bytes_->begin() + static_cast<std::ptrdiff_t>(offset));
    return {};
  }
  std::error_code truncate(std::size_t size) override {
    bytes_->resize(size);
    return {};
  }
  std::error_code sync() override { return {}; }
  std::error_code dressAs(const FileStatus&) override { return {}; }
  std::unique_ptr<FileMapping> map(std::size_t size, std::error_code& error) override {
    error.clear();
    Bytes copy = *bytes_;
    copy.resize(size);
    return std::make_unique<CopiedMapping>(std::move(copy));
  }
  std::error_code lock() override { return {}; }

 private:
  std::shared_ptr<Bytes> bytes_;
};

} // namespace

void MemoryFiles::put(const std::string& path, std::span<const unsigned char> bytes) {
  files_[path] = std::make_shared<Bytes>(bytes.begin(), bytes.end());
}

std::unique_ptr<OpenFile> MemoryFiles::open(const std::string& path, OpenFor purpose,
                                            std::error_code& error) {
  error.clear();
  const auto found = files_.find(path);
  const bool there = found != files_.end();
  if (!there && purpose == OpenFor::Reading)
    error = std::make_error_code(std::errc::no_such_file_or_directory);
  if (there && purpose == OpenFor::CreatingNew)
    error = std::make_error_code(std::errc::file_exists);
  if (error) return nullptr;
  if (!there) put(path, {});
  return std::make_unique<MemoryFile>(files_[path]);
}

FileStatus MemoryFiles::status(const std::string& path, std::error_code& error) {
  error.clear();
  const auto found = files_.find(path);
  if (found != files_.end()) return {FileStatus::Kind::File, found->second->size()};
  const auto below = files_.lower_bound(path + "/");
  const bool folder = below != files_.end() && below->first.starts_with(path + "/");
  return {folder ? FileStatus::Kind::Folder : FileStatus::Kind::Missing};
}

std::string MemoryFiles::followLinks(const std::string& path, std::error_code& error) {
  error.clear();
  return path;
}

std::error_code MemoryFiles::rename(const std::string& from, const std::string& to) {
  auto moved = files_.extract(from);
  if (moved.empty()) return std::make_error_code(std::errc::no_such_file_or_directory);
  files_[to] = std::move(moved.mapped());
  return {};
}

std::error_code MemoryFiles::remove(const std::string& path) {
  files_.erase(path);
  return {};
}

std::error_code MemoryFiles::makeFolder(const std::string&) {
  return {};
}

std::vector<std::string> MemoryFiles::list(const std::string& folder, std::error_code& error) {
  error.clear();
  std::set<std::string> names;
  const std::string below = folder + "/";
  for (auto file = files_.lower_bound(below); file != files_.end(); ++file) {
    if (!file->first.starts_with(below)) break;
    const std::string rest = file->first.substr(below.size());
    names.insert(rest.substr(0, rest.find('/')));
  }
  return {names.begin(), names.end()};
}

} // namespace talvora::test
