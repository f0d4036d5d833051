#include "pack/import/DictionaryImport.h"

#include "dictionary/WordList.h"
#include "formats/LearnerFiles.h"
#include "pack/LooseText.h"
#include "pack/SourceFile.h"
#include "pack/import/DictionaryFiles.h"
#include "platform/Files.h"
#include "stores/Stores.h"

#include <ostream>
#include <system_error>

namespace talvora::pack {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t mostLostLetters = 12;

fs::path folderIn(const std::string& learner) {
  return fs::path(learner) / MergedDictionaryFolder;
}

/// The folder beside it under another ending.
fs::path besideIn(const std::string& learner, const char* ending) {
  return fs::path(folderIn(learner).string() + ending);
}

ListResult tellProblems(const Problems& problems, std::ostream& out) {
  for (const Problem& problem : problems.all())
    out << describe(problem) << "\n";
  out << "Không có gì thay đổi.\n";
  return ListResult::Impossible;
}

std::string aboutOf(const std::vector<ImportedDictionary>& dictionaries) {
  std::string about;
  for (const ImportedDictionary& each : dictionaries)
    about += each.name + "\t" + std::to_string(each.entries.size()) + "\n";
  return about;
}

/// Writes all files into a folder of its own, which then takes the place of the old one: no moment
/// shows half of it.
std::optional<std::string> put(const std::string& learner, std::vector<PackFile> files) {
  const fs::path fresh = besideIn(learner, ".new");
  const fs::path old = besideIn(learner, ".old");
  std::error_code error;
  fs::remove_all(fresh, error);
  fs::remove_all(old, error);
  error.clear();
  fs::create_directories(fresh, error);
  if (error) return fileProblem(fresh.string(), "cannot be made", error);
  for (const PackFile& file : files) {
    if (auto problem = store(file, fresh)) {
      fs::remove_all(fresh, error);
      return problem;
    }
  }
  const fs::path place = folderIn(learner);
  if (fs::exists(place, error)) fs::rename(place, old, error);
  if (!error) fs::rename(fresh, place, error);
  if (error) return fileProblem(place.string(), "cannot be replaced", error);
  if (const auto unsynced = systemFiles().syncFolder(learner))
    return fileProblem(learner, "cannot be written", unsynced);
  fs::remove_all(old, error);
  return std::nullopt;
}

void tell(const MergeReport& report, std::ostream& out) {
  out << report.added << " từ mới, " << report.joined << " từ đã có được viết thêm.\n";
  if (report.displaced > 0)
    out << report.displaced << " dòng dạng sở hữu và số nhiều nhường chỗ.\n";
  if (report.noRoom > 0) out << report.noRoom << " từ mới không còn chỗ trong danh sách.\n";
  if (report.notEnglish > 0) out << report.notEnglish << " mục không phải là từ tra được.\n";
  if (report.cut > 0) out << report.cut << " mục quá dài, chỉ lấy phần đầu.\n";
  if (!report.lost.empty()) {
    out << "Những chữ không có trong phông chữ đã bị bỏ: "
        << lostLetters(report.lost, mostLostLetters) << "\n";
  }
}

std::vector<ImportedDictionary> readAll(const ImportWish& wish, Problems& problems,
                                        const ImportProgress& progress) {
  std::vector<ImportedDictionary> dictionaries;
  for (const fs::path& path : wish.dictionaries) {
    progress(path.string());
    dictionaries.push_back(readImported(path, problems));
  }
  return dictionaries;
}

} // namespace

ListResult importDictionaries(const ImportWish& wish, std::ostream& out,
                              const ImportProgress& progress) {
  Problems problems;
  const auto dictionaries = readAll(wish, problems, progress);
  if (!problems.none()) return tellProblems(problems, out);
  const PackDictionary own(wish.pack, problems);
  if (!problems.none()) return tellProblems(problems, out);
  progress("gộp từ điển");
  MergedDictionary merged = merge(own, dictionaries, wish.order, talvora::WordList::WordCount);
  merged.files.push_back({std::string(learnerfile::DictionaryParts), aboutOf(dictionaries)});
  progress("ghi từ điển");
  if (const auto problem = put(wish.learner, std::move(merged.files))) {
    out << "Không ghi được: " << *problem << "\n";
    return ListResult::Impossible;
  }
  for (const ImportedDictionary& each : dictionaries) {
    out << each.name << ": " << each.entries.size() << " mục";
    if (each.unread > 0) out << ", " << each.unread << " mục không có chữ";
    out << "\n";
  }
  tell(merged.report, out);
  out << "Từ lần mở sau, Talvora tra cả những từ điển này.\n";
  return ListResult::Fine;
}

ListResult removeImported(const std::string& learner, std::ostream& out) {
  std::error_code error;
  const fs::path old = besideIn(learner, ".old");
  fs::remove_all(old, error);
  if (!fs::exists(folderIn(learner), error)) {
    out << "Chưa có từ điển nào được thêm.\n";
    return ListResult::Fine;
  }
  fs::rename(folderIn(learner), old, error);
  if (error) {
    out << "Không xóa được: " << fileProblem(folderIn(learner).string(), "cannot go", error)
        << "\n";
    return ListResult::Impossible;
  }
  fs::remove_all(old, error);
  out << "Từ lần mở sau, Talvora chỉ tra từ điển của mình.\n";
  return ListResult::Fine;
}

ListResult showImported(const std::string& learner, std::ostream& out) {
  const auto about = readWhole(folderIn(learner) / learnerfile::DictionaryParts);
  if (!about) {
    out << "Chưa có từ điển nào được thêm.\n";
    return ListResult::Fine;
  }
  for (const SourceLine& line : linesOf(*about)) {
    const std::size_t tab = line.text.find('\t');
    if (tab == std::string_view::npos) continue;
    out << line.text.substr(0, tab) << ": " << line.text.substr(tab + 1) << " mục\n";
  }
  return ListResult::Fine;
}

} // namespace talvora::pack
