#include "learner/FindFolders.h"

#include "formats/LearnerFiles.h"
#include "formats/PackFiles.h"
#include "platform/Files.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace talvora {

namespace {

constexpr std::string_view OwnName = "/talvora";

bool holds(FileSystem& files, const std::string& folder, std::string_view name) {
  return TonTaiFile(folder + "/" + std::string(name), files);
}

bool isPack(FileSystem& files, const std::string& folder) {
  constexpr std::array<std::string_view, 3> wanted = {packfile::ReadingPositions,
                                                      packfile::ReadingTexts, packfile::Words};
  return std::all_of(wanted.begin(), wanted.end(),
                     [&](std::string_view name) { return holds(files, folder, name); });
}

bool isLearnersOwn(FileSystem& files, const std::string& folder) {
  constexpr std::array wanted = {learnerfile::Words, learnerfile::Settings, learnerfile::FirstRun};
  return files.mayCreateIn(folder) &&
         std::any_of(wanted.begin(), wanted.end(),
                     [&](std::string_view name) { return holds(files, folder, name); });
}

std::vector<std::string> placesOfPacks(const FolderSearch& search) {
  if (!search.pack.empty()) return {search.pack};
  std::vector<std::string> places = {search.current};
  if (!search.program.empty()) {
    places.push_back(search.program);
    places.push_back(search.program + "/pack");
    places.push_back(search.program + "/../share" + std::string(OwnName));
  }
  for (const std::string& shared : search.sharedFolders)
    places.push_back(shared + std::string(OwnName));
  return places;
}

} // namespace

FoundFolders findFolders(FileSystem& files, const FolderSearch& search) {
  FoundFolders found;
  found.lookedIn = placesOfPacks(search);
  const auto pack = std::find_if(found.lookedIn.begin(), found.lookedIn.end(),
                                 [&](const std::string& folder) { return isPack(files, folder); });
  if (pack == found.lookedIn.end()) return found;
  std::string learner = search.learner;
  if (learner.empty()) {
    const bool asBefore = search.ownData.empty() || isLearnersOwn(files, *pack);
    learner = asBefore ? *pack : search.ownData + std::string(OwnName);
  }
  found.folders.emplace(*pack, std::move(learner));
  return found;
}

} // namespace talvora
