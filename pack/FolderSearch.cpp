#include "pack/FolderSearch.h"

#include "text/Text.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace talvora::pack {

namespace {

std::string environment(const char* name) {
  const char* const value = std::getenv(name);
  return value == nullptr ? "" : value;
}

/// The folder of the user's data, below which the learner's own lies.
std::string ownData() {
  const std::string data = environment("XDG_DATA_HOME");
  return data.empty() ? environment("HOME") + "/.local/share" : data;
}

std::vector<std::string> sharedFolders() {
  const std::string folders = environment("XDG_DATA_DIRS");
  return split(folders.empty() ? "/usr/local/share:/usr/share" : folders, ':');
}

std::string programFolder() {
  std::error_code error;
  const auto program = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? "" : program.parent_path().string();
}

} // namespace

LearnersPlaces placesFor(const std::string& pack, const std::string& learner) {
  std::error_code error;
  FolderSearch search;
  search.pack = pack;
  search.learner = learner;
  search.current = std::filesystem::current_path(error).string();
  search.program = programFolder();
  search.sharedFolders = sharedFolders();
  search.ownData = ownData();
  const FoundFolders found = findFolders(systemFiles(), search);
  if (found.folders) return {found.folders->pack, found.folders->learner};
  return {"", learner.empty() ? search.ownData + "/talvora" : learner};
}

} // namespace talvora::pack
