// Where the pack and what the learner owns are looked for.
#pragma once

#include "platform/FileSystem.h"

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace talvora {

/// Where the program finds what it shows, and where it keeps what is the learner's.
struct Folders {
  /// One folder for both.
  Folders(std::string both) : pack(both), learner(std::move(both)) {} // NOLINT: one is the usual
  Folders(std::string packFolder, std::string learnerFolder)
      : pack(std::move(packFolder)), learner(std::move(learnerFolder)) {}

  std::string pack;    ///< only read
  std::string learner; ///< made when it is missing
};

/// What a search starts from. Paths are absolute; empty is unknown.
struct FolderSearch {
  std::string pack;                       ///< as somebody asked for it
  std::string learner;                    ///< the same
  std::string current;                    ///< current directory
  std::string program;                    ///< folder of the program itself
  std::vector<std::string> sharedFolders; ///< of the system's data
  std::string ownData;                    ///< folder of the user's data
};

struct FoundFolders {
  std::optional<Folders> folders;    ///< nothing when there is no pack
  std::vector<std::string> lookedIn; ///< for the pack, in order
};

/// The folders asked for. Without a wish the pack is the one in the current directory, else beside
/// the program, else in the system's shared data; the learner's folder is the pack's when it may be
/// written and holds a learner's files already, else one in the user's data. Writes nothing.
[[nodiscard]] FoundFolders findFolders(FileSystem& files, const FolderSearch& search);

} // namespace talvora
