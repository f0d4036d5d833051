#include "pack/FolderFile.h"

#include "formats/LearnerFiles.h"
#include "learner/LearnerLock.h"
#include "learner/LearnerWords.h"
#include "learner/WordJournal.h"
#include "pack/Message.h"
#include "pack/Telling.h"
#include "platform/Files.h"
#include "stores/OwnTexts.h"
#include "text/Contains.h"
#include "text/Text.h"

#include <array>
#include <ostream>
#include <utility>

namespace talvora::pack {

namespace {

/// The list comes last: with it the folder is the other one. The journal travels for the words that
/// could not be put into the list.
constexpr std::array topFiles = {learnerfile::FirstRun, learnerfile::Settings, OwnTextsFile,
                                 learnerfile::Lists,    learnerfile::Journal,  learnerfile::Rows,
                                 learnerfile::Words};

/// What a dated copy keeps.
constexpr std::array copiedFiles = {learnerfile::Words, learnerfile::Settings, learnerfile::Rows,
                                    learnerfile::Lists};

/// Whether a name is that of a file in a dated copy.
bool isOfCopy(std::string_view name) {
  const std::string copies = std::string(learnerfile::Copies) + "/";
  const std::size_t end = name.rfind('/');
  if (!name.starts_with(copies) || end < copies.size()) return false;
  return isCopyName(name.substr(copies.size(), end - copies.size())) &&
         contains(copiedFiles, name.substr(end + 1));
}

std::string inFolder(const std::string& folder, std::string_view name) {
  return folder + "/" + std::string(name);
}

std::string pathOf(const LearnersList& list, std::string_view name) {
  return inFolder(list.folder, name);
}

bool isTextSource(std::string_view name) {
  return name.starts_with(std::string(learnerfile::Texts) + "/");
}

/// The names of all files of the folder that travel.
std::vector<std::string> namesIn(const LearnersList& list) {
  std::vector<std::string> names;
  std::error_code error;
  const auto addAll = [&](const std::string& folder) {
    for (const std::string& each : list.files.list(pathOf(list, folder), error)) {
      std::string name = inFolder(folder, each);
      if (travels(name)) names.push_back(std::move(name));
    }
  };
  const std::string copies(learnerfile::Copies);
  for (const std::string& each : list.files.list(pathOf(list, copies), error))
    addAll(inFolder(copies, each));
  addAll(std::string(learnerfile::Texts));
  names.insert(names.end(), topFiles.begin(), topFiles.end());
  return names;
}

FolderContent contentOfFile(const LearnersList& list, const std::string& file) {
  std::error_code error;
  const FileStatus status = list.files.status(file, error);
  const bool isOne = status.kind == FileStatus::Kind::File && status.size <= folderLimits.bytes;
  const auto archive = isOne ? readWhole(list.files, file, error) : std::nullopt;
  if (!archive) return {std::nullopt, said("cannot be read")};
  return folderContentOf(textOfBytes(*archive));
}

/// Writes a file and the folder that it lies in; gives what went wrong, or nothing.
std::optional<std::string> put(const LearnersList& list, const std::string& name,
                               const std::string& content) {
  const std::string path = pathOf(list, name);
  if (const auto error = list.files.makeFolder(folderOf(path)))
    return fileProblem(path, said("cannot be written"), error);
  return replaceFile(list.files, path, bytesOfText(content));
}

/// What keeps words in the journal that no copy has; nothing when it is empty.
std::optional<std::string> unmerged(const LearnersList& list) {
  const std::string path = pathOf(list, learnerfile::Journal);
  const auto deeds = WordJournal(path, list.files).read();
  if (!deeds) return path + ": " + said("cannot be read");
  if (!deeds->empty()) return path + ": " + said("cannot be written");
  return std::nullopt;
}

/// Moves the sources of texts out of the way, into the newest copy of the words. Gives what went
/// wrong, or nothing.
std::optional<std::string> moveTextsIntoCopy(const LearnersList& list, const DatedCopies& copies) {
  const auto all = copies.all();
  const std::string copy = all.empty() ? "" : "/" + all.back().name;
  const std::string to =
      std::string(learnerfile::Copies) + copy + "/" + std::string(learnerfile::Texts);
  for (const std::string& name : namesIn(list)) {
    if (!isTextSource(name)) continue;
    std::error_code error = list.files.makeFolder(pathOf(list, to));
    const std::string moved = pathOf(list, to) + name.substr(name.rfind('/'));
    if (!error) error = list.files.rename(pathOf(list, name), moved);
    if (error) return fileProblem(moved, said("cannot be written"), error);
  }
  return std::nullopt;
}

/// Puts these files in place of those that are there; the list of words last. Gives what went
/// wrong, or nothing.
std::optional<std::string> replaceAll(const LearnersList& list,
                                      const std::map<std::string, std::string>& files) {
  // Made of texts that are in the copy by now.
  if (!files.contains(std::string(OwnTextsFile)))
    static_cast<void>(list.files.remove(pathOf(list, OwnTextsFile)));
  for (const auto& [name, bytes] : files) {
    if (name == learnerfile::Words) continue;
    if (auto problem = put(list, name, bytes)) return problem;
  }
  const std::string words(learnerfile::Words);
  return put(list, words, files.at(words));
}

} // namespace

bool travels(std::string_view name) {
  return contains(topFiles, name) || fits(name, "texts/###.txt") || isOfCopy(name);
}

FolderContent folderContentOf(std::string_view archive) {
  auto content = zipContentOf(archive, folderLimits);
  if (!content.entries) return {std::nullopt, content.problem};
  std::erase_if(*content.entries, [](const auto& entry) { return !travels(entry.first); });
  const auto words = content.entries->find(std::string(learnerfile::Words));
  if (words == content.entries->end() || words->second.size() % VocabularyWord::RecordSize != 0)
    return {std::nullopt, said("there are no words of Talvora in this file")};
  return {std::move(content.entries), ""};
}

ListResult exportFolder(const LearnersList& list, const std::string& file, std::ostream& out) {
  const LearnerLock lock(list.files, list.folder);
  if (lock.state() == LearnerLock::State::Taken) return tellRunning(out);
  // What the journal holds belongs to the list.
  LearnerWords(list.folder, list.files, list.calendar).open();
  std::vector<ZipEntry> entries;
  bool whole = true;
  for (const std::string& name : namesIn(list)) {
    std::error_code error;
    const auto content = readWhole(list.files, pathOf(list, name), error);
    if (content) entries.push_back({name, textOfBytes(*content)});
    if (content || error == std::errc::no_such_file_or_directory) continue;
    // What can be read is worth carrying away, from a disk that breaks more than from any other.
    out << fileProblem(pathOf(list, name), said("cannot be read"), error) << "\n";
    whole = false;
  }
  if (const auto problem = replaceFile(list.files, file, bytesOfText(zipOf(entries))))
    return tellUnwritten(*problem, out);
  out << said("{} files written into {}.", entries.size(), file) << "\n";
  return whole ? ListResult::Fine : ListResult::Found;
}

ListResult importFolder(const LearnersList& list, const std::string& file, std::ostream& out) {
  const FolderContent content = contentOfFile(list, file);
  if (!content.files) {
    out << file << ": " << content.problem << "\n";
    return ListResult::Impossible;
  }
  const LearnerLock lock(list.files, list.folder);
  if (lock.state() == LearnerLock::State::Taken) return tellRunning(out);
  LearnerWords words(list.folder, list.files, list.calendar);
  words.open();
  if (const auto problem = unmerged(list)) return tellUnwritten(*problem, out);
  if (const auto problem = words.copies().keep()) return tellUnwritten(*problem, out);
  if (const auto problem = moveTextsIntoCopy(list, words.copies()))
    return tellUnwritten(*problem, out);
  if (const auto problem = replaceAll(list, *content.files)) return tellUnwritten(*problem, out);
  const std::string& now = content.files->at(std::string(learnerfile::Words));
  out << saidOf(now.size() / VocabularyWord::RecordSize,
                "{} word received; those that were there stand in the copies.",
                "{} words received; those that were there stand in the copies.")
      << "\n";
  return ListResult::Fine;
}

} // namespace talvora::pack
