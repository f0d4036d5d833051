#include "platform/Files.h"

#include "platform/FatalFailure.h"

#include <array>
#include <random>

namespace talvora {

namespace {

constexpr std::string_view NewSuffix = ".new";
constexpr std::size_t RandomLetters = 12;
// A name that is taken is tried anew so often.
constexpr int MostNames = 16;

/// A name that nobody can have laid in wait for.
std::string randomPart() {
  constexpr std::string_view letters = "abcdefghijklmnopqrstuvwxyz012345";
  std::random_device random;
  std::string part;
  for (std::size_t letter = 0; letter < RandomLetters; ++letter)
    part += letters[random() % letters.size()];
  return part;
}

/// A new file beside the one that it is to replace; removed with this object unless it was renamed.
class Beside {
 public:
  Beside(FileSystem& files, const std::string& target) : files_(files) {
    for (int attempt = 0; attempt < MostNames; ++attempt) {
      path_ = target + "." + randomPart() + std::string(NewSuffix);
      file_ = files.open(path_, OpenFor::CreatingNew, error);
      if (error != std::errc::file_exists) return;
    }
  }
  Beside(const Beside&) = delete;
  Beside& operator=(const Beside&) = delete;
  ~Beside() {
    if (file_ == nullptr && !written_) return;
    file_.reset();
    if (!renamed_) static_cast<void>(files_.remove(path_));
  }

  [[nodiscard]] bool isOpen() const noexcept { return file_ != nullptr; }
  std::error_code fill(std::span<const unsigned char> content, const FileStatus& old) {
    if (old.kind == FileStatus::Kind::File) {
      if (const auto problem = file_->dressAs(old)) return problem;
    }
    if (const auto problem = file_->write(0, content)) return problem;
    if (const auto problem = file_->sync()) return problem;
    written_ = true;
    file_.reset();
    return {};
  }
  std::error_code renameTo(const std::string& target) {
    const auto problem = files_.rename(path_, target);
    renamed_ = !problem;
    return problem;
  }

  std::error_code error; ///< why it is not open

 private:
  FileSystem& files_;
  std::string path_;
  std::unique_ptr<OpenFile> file_;
  bool written_ = false;
  bool renamed_ = false;
};

std::optional<std::vector<unsigned char>> readAll(OpenFile& file, std::size_t size,
                                                  std::error_code& error) {
  std::vector<unsigned char> content(size);
  content.resize(file.read(0, content, error));
  if (error) return std::nullopt;
  return content;
}

} // namespace

bool TonTaiFile(const std::string& path, FileSystem& files) {
  std::error_code error;
  const FileStatus status = files.status(path, error);
  return !error && status.kind != FileStatus::Kind::Missing &&
         status.kind != FileStatus::Kind::Folder;
}

std::string fileProblem(const std::string& path, std::string_view what,
                        const std::error_code& error) {
  return path + ": " + std::string(what) + ": " + error.message();
}

std::string shrunkFileProblem(const std::string& path) {
  return path + ": has become shorter while the program was reading it";
}

std::string folderOf(const std::string& path) {
  const auto slash = path.rfind('/');
  if (slash == std::string::npos) return ".";
  return slash == 0 ? "/" : path.substr(0, slash);
}

bool isLeftOver(std::string_view entry, std::string_view name) {
  const std::size_t length = name.size() + 1 + RandomLetters + NewSuffix.size();
  return entry.size() == length && entry.starts_with(name) && entry[name.size()] == '.' &&
         entry.ends_with(NewSuffix);
}

std::optional<std::vector<unsigned char>> readWhole(FileSystem& files, const std::string& path,
                                                    std::error_code& error) {
  const auto file = files.open(path, OpenFor::Reading, error);
  if (file == nullptr) return std::nullopt;
  const FileStatus status = file->status(error);
  if (!error && status.kind != FileStatus::Kind::File)
    error = std::make_error_code(std::errc::invalid_argument);
  if (error) return std::nullopt;
  return readAll(*file, status.size, error);
}

std::optional<std::string> replaceFile(FileSystem& files, const std::string& path,
                                       std::span<const unsigned char> content) {
  std::error_code error;
  const std::string target = files.followLinks(path, error);
  if (error) return fileProblem(path, "cannot be followed", error);
  const FileStatus old = files.status(target, error);
  if (error) return fileProblem(path, "cannot be examined", error);
  if (old.kind == FileStatus::Kind::Folder || old.kind == FileStatus::Kind::Other) {
    return path + ": is not a file";
  }
  Beside beside(files, target);
  if (!beside.isOpen()) return fileProblem(path, "cannot be written", beside.error);
  if ((error = beside.fill(content, old))) return fileProblem(path, "cannot be written", error);
  if ((error = beside.renameTo(target))) return fileProblem(path, "cannot be replaced", error);
  if ((error = files.syncFolder(folderOf(target)))) {
    return fileProblem(path, "cannot be synced", error);
  }
  return std::nullopt;
}

std::shared_ptr<const MappedFile> MappedFile::open(const std::string& path, FileSystem& files) {
  std::error_code error;
  const auto fail = [&](std::string_view what) {
    throw FatalFailure(fileProblem(path, what, error));
  };
  const auto file = files.open(path, OpenFor::Reading, error);
  if (file == nullptr) fail("cannot be opened");
  const FileStatus status = file->status(error);
  if (error) fail("cannot be examined");
  if (status.kind == FileStatus::Kind::Folder) throw FatalFailure(path + ": is a directory");
  if (status.size < LargeFile) {
    auto content = readAll(*file, status.size, error);
    if (!content) fail("cannot be read");
    return std::make_shared<const MappedFile>(std::move(*content));
  }
  auto mapping = file->map(status.size, error);
  if (mapping == nullptr) fail("cannot be mapped");
  return std::make_shared<const MappedFile>(std::move(mapping));
}

} // namespace talvora
