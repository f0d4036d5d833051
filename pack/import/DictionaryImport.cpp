#include "pack/import/DictionaryImport.h"

#include "dictionary/WordList.h"
#include "formats/LearnerFiles.h"
#include "pack/LooseText.h"
#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "pack/Telling.h"
#include "pack/import/DictionaryFiles.h"
#include "pack/import/MergedCourse.h"
#include "platform/Files.h"
#include "stores/Stores.h"

#include <ostream>
#include <system_error>

namespace talvora::pack {

namespace {

namespace fs = std::filesystem;

fs::path folderIn(const std::string& learner) {
  return fs::path(learner) / MergedDictionaryFolder;
}

/// The folder beside it under another ending.
fs::path besideIn(const std::string& learner, const char* ending) {
  return fs::path(folderIn(learner).string() + ending);
}

std::string aboutOf(const std::vector<ImportedDictionary>& dictionaries) {
  std::string about;
  for (const ImportedDictionary& each : dictionaries)
    about += each.name + "\t" + std::to_string(each.entries.size()) + "\n";
  return about;
}

/// Writes all files into a folder of its own, which then takes the place of the old one: no moment
/// shows half of it.
std::optional<std::string> put(const std::string& learner, const std::vector<PackFile>& files) {
  const fs::path fresh = besideIn(learner, ".new");
  const fs::path old = besideIn(learner, ".old");
  std::error_code error;
  fs::remove_all(fresh, error);
  fs::remove_all(old, error);
  error.clear();
  fs::create_directories(fresh, error);
  if (error) return fileProblem(fresh.string(), said("cannot be made"), error);
  for (const PackFile& file : files) {
    if (auto problem = store(file, fresh)) {
      fs::remove_all(fresh, error);
      return problem;
    }
  }
  const fs::path place = folderIn(learner);
  if (fs::exists(place, error)) fs::rename(place, old, error);
  if (!error) fs::rename(fresh, place, error);
  if (error) return fileProblem(place.string(), said("cannot be replaced"), error);
  if (const auto unsynced = systemFiles().syncFolder(learner))
    return fileProblem(learner, said("cannot be written"), unsynced);
  fs::remove_all(old, error);
  return std::nullopt;
}

void tell(const MergeReport& report, std::ostream& out) {
  out << said("{} new words; {} words that were there have more to tell.", report.added,
              report.joined)
      << "\n";
  if (report.displaced > 0)
    out << said("{} possessives and plurals make room for them.", report.displaced) << "\n";
  if (report.noRoom > 0)
    out << said("{} new words find no room in the list.", report.noRoom) << "\n";
  if (report.notEnglish > 0)
    out << said("{} entries are no words that can be looked up.", report.notEnglish) << "\n";
  if (report.cut > 0) out << said("{} entries are too long and were cut.", report.cut) << "\n";
  tellLost(report.lost, out);
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
  progress(said("merging the dictionaries"));
  MergedDictionary merged = merge(own, dictionaries, wish.order, talvora::WordList::WordCount);
  merged.files.push_back({std::string(learnerfile::DictionaryParts), aboutOf(dictionaries)});
  merged.files.push_back({std::string(MergedCourseFile), courseMark(wish.pack)});
  progress(said("writing the dictionary"));
  if (const auto problem = put(wish.learner, merged.files)) return tellUnwritten(*problem, out);
  for (const ImportedDictionary& each : dictionaries) {
    out << said("{}: {} entries", each.name, each.entries.size());
    if (each.unread > 0) out << said(", {} of them without text", each.unread);
    out << "\n";
  }
  tell(merged.report, out);
  out << said("When it is started next, the program looks words up in these dictionaries too.")
      << "\n";
  return ListResult::Fine;
}

ListResult removeImported(const std::string& learner, std::ostream& out) {
  std::error_code error;
  const fs::path old = besideIn(learner, ".old");
  fs::remove_all(old, error);
  if (!fs::exists(folderIn(learner), error)) {
    out << said("No dictionary has been added yet.") << "\n";
    return ListResult::Fine;
  }
  fs::rename(folderIn(learner), old, error);
  if (error) {
    out << fileProblem(folderIn(learner).string(), said("cannot be removed"), error) << "\n";
    return ListResult::Impossible;
  }
  fs::remove_all(old, error);
  out << said("When it is started next, the program looks words up in its own dictionary alone.")
      << "\n";
  return ListResult::Fine;
}

ListResult showImported(const std::string& learner, const std::string& pack, std::ostream& out) {
  const auto about = readWhole(folderIn(learner) / learnerfile::DictionaryParts);
  if (!about) {
    out << said("No dictionary has been added yet.") << "\n";
    return ListResult::Fine;
  }
  for (const SourceLine& line : linesOf(*about)) {
    const std::size_t tab = line.text.find('\t');
    if (tab == std::string_view::npos) continue;
    out << said("{}: {} entries", line.text.substr(0, tab), line.text.substr(tab + 1)) << "\n";
  }
  if (!pack.empty() && isMergedWithAnother(learner, pack)) out << mergedWithAnother() << "\n";
  return ListResult::Fine;
}

} // namespace talvora::pack
