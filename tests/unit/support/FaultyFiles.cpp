#include "support/FaultyFiles.h"

#include <utility>

namespace talvora::test {

namespace {

class FaultyFile final : public OpenFile {
 public:
  FaultyFile(std::unique_ptr<OpenFile> under, FaultyFiles& files, std::string path)
      : under_(std::move(under)), files_(files), path_(std::move(path)) {}

  FileStatus status(std::error_code& problem) override { return under_->status(problem); }
  std::size_t read(std::size_t offset, std::span<unsigned char> into,
                   std::error_code& problem) override {
    return under_->read(offset, into, problem);
  }
  std::error_code write(std::size_t offset, std::span<const unsigned char> bytes) override {
    const auto fault = files_.faultAt("write", path_);
    if (!fault) return under_->write(offset, bytes);
    // A disk that fills up takes what there is room for.
    static_cast<void>(under_->write(offset, bytes.first(bytes.size() / 2)));
    return fault;
  }
  std::error_code truncate(std::size_t size) override {
    const auto fault = files_.faultAt("truncate", path_);
    return fault ? fault : under_->truncate(size);
  }
  std::error_code sync() override {
    const auto fault = files_.faultAt("sync", path_);
    return fault ? fault : under_->sync();
  }
  std::error_code dressAs(const FileStatus& other) override {
    const auto fault = files_.faultAt("dressAs", path_);
    return fault ? fault : under_->dressAs(other);
  }
  std::unique_ptr<FileMapping> map(std::size_t size, std::error_code& problem) override {
    return under_->map(size, problem);
  }
  std::error_code lock() override { return under_->lock(); }

 private:
  std::unique_ptr<OpenFile> under_;
  FaultyFiles& files_;
  std::string path_;
};

} // namespace

std::unique_ptr<OpenFile> FaultyFiles::open(const std::string& path, OpenFor purpose,
                                            std::error_code& problem) {
  if (purpose != OpenFor::Reading) {
    problem = faultAt("open", path);
    if (problem) return nullptr;
  }
  auto file = under_.open(path, purpose, problem);
  if (file == nullptr) return nullptr;
  return std::make_unique<FaultyFile>(std::move(file), *this, path);
}

std::error_code FaultyFiles::faultAt(const std::string& call, const std::string& path) {
  if (counts && !counts(call, path)) return {};
  ++calls;
  if (before) before(calls);
  const bool fails = failFrom > 0 && calls >= failFrom && calls <= failTo;
  return fails ? std::make_error_code(error) : std::error_code();
}

} // namespace talvora::test
