#include "pack/KeptDictionary.h"

#include "formats/PackFiles.h"
#include "pack/DictionaryCheck.h"
#include "pack/Digest.h"
#include "pack/SourceFile.h"

#include <algorithm>
#include <array>
#include <link.h>

namespace talvora::pack {

namespace {

/// The files that the dictionary's sources give.
constexpr std::array<std::string_view, 7> dictionaryFiles = {
    packfile::Words,         packfile::WordRecords, packfile::Entries,       packfile::SideWords,
    packfile::SidePositions, packfile::SideEntries, Pronunciations::FileName};

/// What compiles: this program, and the voice's libraries, which know how words are said.
std::vector<std::filesystem::path> compilerFiles() {
  std::vector<std::filesystem::path> files{"/proc/self/exe"};
  ::dl_iterate_phdr(
      [](dl_phdr_info* library, std::size_t, void* found) {
        const std::filesystem::path path = library->dlpi_name;
        if (path.filename().string().find("flite") != std::string::npos) {
          static_cast<std::vector<std::filesystem::path>*>(found)->push_back(path);
        }
        return 0;
      },
      &files);
  return files;
}

std::vector<std::filesystem::path> filesIn(const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> files;
  std::error_code error;
  for (const auto& entry : std::filesystem::directory_iterator(folder, error)) {
    if (entry.is_regular_file()) files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

/// A file by its name and its bytes; one that is missing is another one than an empty one.
void addFile(Digest& digest, const std::filesystem::path& path) {
  digest.add(path.filename().string());
  const auto bytes = readWhole(path);
  digest.add(bytes ? "there" : "missing");
  digest.add(bytes.value_or(""));
}

std::string digestOfSources(const Options& options) {
  Digest digest;
  for (const auto& files : {compilerFiles(), filesIn(options.source / "dictionary"),
                            filesIn(options.wordNet), options.wordLists}) {
    digest.add(std::to_string(files.size()));
    for (const auto& path : files)
      addFile(digest, path);
  }
  addFile(digest, options.source / "pronunciation.txt");
  addFile(digest, options.source / AcceptedFile);
  addFile(digest, options.wordNetLicence);
  return digest.digits();
}

/// The note: what the dictionary was made of, and what was made.
std::string noteOf(const std::string& sources, Digest& made) {
  return "sources " + sources + "\nfiles " + made.digits() + "\n";
}

} // namespace

KeptDictionary::KeptDictionary(const Options& options) {
  if (!options.earlierPack || options.smallWordList) return;
  folder_ = *options.earlierPack;
  sources_ = digestOfSources(options);
}

bool KeptDictionary::stands() const {
  if (folder_.empty()) return false;
  const auto note = readWhole(folder_ / NoteName);
  if (!note || !note->starts_with("sources " + sources_)) return false;
  Digest made;
  for (const std::string_view name : dictionaryFiles) {
    const auto bytes = readWhole(folder_ / name);
    if (!bytes) return false;
    made.add(*bytes);
  }
  return *note == noteOf(sources_, made);
}

Pronunciations KeptDictionary::pronunciations() const {
  return Pronunciations::read(readWhole(folder_ / Pronunciations::FileName).value_or(""));
}

void KeptDictionary::addNote(std::vector<PackFile>& dictionary) const {
  if (folder_.empty()) return;
  Digest made;
  for (const std::string_view name : dictionaryFiles) {
    const auto file = std::find_if(dictionary.begin(), dictionary.end(),
                                   [name](const PackFile& each) { return each.name == name; });
    if (file == dictionary.end()) return;
    made.add(file->bytes);
  }
  dictionary.push_back({std::string(NoteName), noteOf(sources_, made)});
}

} // namespace talvora::pack
