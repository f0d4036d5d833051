#include "pack/import/DictionaryFiles.h"

#include "pack/Gunzip.h"
#include "pack/Message.h"
#include "pack/SourceFile.h"
#include "pack/import/Dictd.h"
#include "pack/import/StarDict.h"
#include "pack/import/TabbedDictionary.h"
#include "text/Text.h"

#include <initializer_list>
#include <system_error>
#include <utility>

namespace talvora::pack {

namespace {

/// The first of the names beside a file that is there.
std::filesystem::path beside(const std::filesystem::path& file,
                             std::initializer_list<const char*> endings) {
  std::filesystem::path path = file;
  for (const char* const ending : endings) {
    path.replace_extension(ending);
    std::error_code error;
    if (std::filesystem::exists(path, error)) return path;
  }
  path.replace_extension(*endings.begin());
  return path;
}

ImportedDictionary readStarDictFiles(const std::filesystem::path& info, Problems& problems) {
  const auto indexPath = beside(info, {".idx", ".idx.gz"});
  const auto synonymsPath = beside(info, {".syn", ".syn.dz"});
  const std::string infoText = readPacked(info, problems);
  const std::string index = readPacked(indexPath, problems);
  const std::string articles = readPacked(beside(info, {".dict.dz", ".dict"}), problems);
  std::error_code error;
  const std::string synonyms =
      std::filesystem::exists(synonymsPath, error) ? readPacked(synonymsPath, problems) : "";
  if (!problems.none()) return {};
  const std::string name = indexPath.string();
  return readStarDict({infoText, index, synonyms, articles, name}, problems);
}

ImportedDictionary readDictdFiles(const std::filesystem::path& indexPath, Problems& problems) {
  const std::string index = readPacked(indexPath, problems);
  const std::string articles = readPacked(beside(indexPath, {".dict.dz", ".dict"}), problems);
  if (!problems.none()) return {};
  return readDictd(index, articles, indexPath.string(), problems);
}

} // namespace

std::string readPacked(const std::filesystem::path& path, Problems& problems) {
  std::error_code error;
  const auto size = std::filesystem::file_size(path, error);
  if (!error && size > LargestDictionaryFile) {
    problems.add({path.string()}, said("the file is too large"));
    return {};
  }
  const std::string packed = readSource(path, problems);
  Unpacked content = unpacked(packed, LargestDictionaryFile);
  if (!content.bytes) problems.add({path.string()}, content.problem);
  return std::move(content.bytes).value_or("");
}

ImportedDictionary readImported(const std::filesystem::path& path, Problems& problems) {
  const std::string ending = lower(path.extension().string());
  ImportedDictionary dictionary;
  if (ending == ".ifo") {
    dictionary = readStarDictFiles(path, problems);
  } else if (ending == ".index") {
    dictionary = readDictdFiles(path, problems);
  } else if (ending == ".tsv" || ending == ".txt" || ending == ".tab") {
    dictionary = readTabbed(readPacked(path, problems), path.string(), problems);
  } else {
    problems.add(
        {path.string()},
        said("a dictionary is a file \".ifo\", \".index\", \".tsv\", \".txt\" or \".tab\""));
  }
  if (problems.none() && dictionary.entries.empty())
    problems.add({path.string()}, said("the dictionary has no entries"));
  if (dictionary.name.empty()) dictionary.name = path.stem().string();
  return dictionary;
}

} // namespace talvora::pack
