#include "tests/support/FaultyFiles.h"

#include <utility>

namespace talvora::test {

// -- What is around every call.

std::error_code FaultyFiles::faultAt(const std::string& call, const std::string& path,
                                     bool onlyLooks) {
  counted_ = (looksCount || !onlyLooks) && (!counts || counts(call, path));
  if (!counted_) return {};
  ++calls;
  if (before) before(calls);
  const bool fails = failFrom > 0 && calls >= failFrom && calls <= failTo;
  return fails ? std::make_error_code(error) : std::error_code();
}

void FaultyFiles::done() {
  if (counted_ && after) after(calls);
}

std::error_code FaultyFiles::change(const std::string& call, const std::string& path,
                                    const std::function<std::error_code()>& work) {
  if (const auto fault = faultAt(call, path, false)) return fault;
  const auto problem = work();
  done();
  return problem;
}

template <class Work, class Result>
Result FaultyFiles::look(const std::string& call, const std::string& path, std::error_code& problem,
                         const Work& work, Result otherwise) {
  problem = faultAt(call, path, true);
  if (problem) return otherwise;
  Result result = work();
  done();
  return result;
}

// -- An open file.

class FaultyFile final : public OpenFile {
 public:
  FaultyFile(std::unique_ptr<OpenFile> under, FaultyFiles& files, std::string path)
      : under_(std::move(under)), files_(files), path_(std::move(path)) {}

  FileStatus status(std::error_code& problem) override {
    return files_.look(
        "status", path_, problem, [&] { return under_->status(problem); }, FileStatus());
  }
  std::size_t read(std::size_t offset, std::span<unsigned char> into,
                   std::error_code& problem) override {
    return files_.look(
        "read", path_, problem, [&] { return under_->read(offset, into, problem); },
        std::size_t{0});
  }
  std::error_code write(std::size_t offset, std::span<const unsigned char> bytes) override;
  std::error_code truncate(std::size_t size) override {
    return files_.change("truncate", path_, [&] { return under_->truncate(size); });
  }
  std::error_code sync() override {
    return files_.change("sync", path_, [&] { return under_->sync(); });
  }
  std::error_code dressAs(const FileStatus& other) override {
    return files_.change("dressAs", path_, [&] { return under_->dressAs(other); });
  }
  std::unique_ptr<FileMapping> map(std::size_t size, std::error_code& problem) override {
    return files_.look(
        "map", path_, problem, [&] { return under_->map(size, problem); },
        std::unique_ptr<FileMapping>());
  }
  std::error_code lock() override {
    std::error_code problem;
    const auto taken = files_.look(
        "lock", path_, problem, [&] { return under_->lock(); }, std::error_code());
    return problem ? problem : taken;
  }

 private:
  std::unique_ptr<OpenFile> under_;
  FaultyFiles& files_;
  std::string path_;
};

// A disk that fills up takes what there is room for.
std::error_code FaultyFile::write(std::size_t offset, std::span<const unsigned char> bytes) {
  const auto half = bytes.first(bytes.size() / 2);
  if (const auto fault = files_.faultAt("write", path_, false)) {
    static_cast<void>(under_->write(offset, half));
    return fault;
  }
  if (files_.counted_ && files_.within) {
    static_cast<void>(under_->write(offset, half));
    files_.within(files_.calls);
  }
  const auto problem = under_->write(offset, bytes);
  files_.done();
  return problem;
}

// -- The file system.

std::unique_ptr<OpenFile> FaultyFiles::open(const std::string& path, OpenFor purpose,
                                            std::error_code& problem) {
  problem = faultAt("open", path, purpose == OpenFor::Reading);
  if (problem) return nullptr;
  auto file = under_.open(path, purpose, problem);
  done();
  if (file == nullptr) return nullptr;
  return std::make_unique<FaultyFile>(std::move(file), *this, path);
}

FileStatus FaultyFiles::status(const std::string& path, std::error_code& problem) {
  return look(
      "status", path, problem, [&] { return under_.status(path, problem); }, FileStatus());
}

std::string FaultyFiles::followLinks(const std::string& path, std::error_code& problem) {
  return look(
      "followLinks", path, problem, [&] { return under_.followLinks(path, problem); }, path);
}

std::error_code FaultyFiles::rename(const std::string& from, const std::string& to) {
  return change("rename", to, [&] { return under_.rename(from, to); });
}

std::error_code FaultyFiles::remove(const std::string& path) {
  return change("remove", path, [&] { return under_.remove(path); });
}

std::error_code FaultyFiles::syncFolder(const std::string& folder) {
  return change("syncFolder", folder, [&] { return under_.syncFolder(folder); });
}

std::error_code FaultyFiles::makeFolder(const std::string& folder) {
  return change("makeFolder", folder, [&] { return under_.makeFolder(folder); });
}

std::vector<std::string> FaultyFiles::list(const std::string& folder, std::error_code& problem) {
  return look(
      "list", folder, problem, [&] { return under_.list(folder, problem); },
      std::vector<std::string>());
}

} // namespace talvora::test
