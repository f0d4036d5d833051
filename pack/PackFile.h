// A compiled file of a pack, and how it reaches the disk.
#pragma once

#include <filesystem>
#include <optional>
#include <string>

namespace talvora::pack {

/// Whose a file is: the program's is replaced by every build, the learner's only ever created.
enum class Owner { Program, Learner };

struct PackFile {
  std::string name;
  std::string bytes;
  Owner owner = Owner::Program;
};

/// Writes a file beside its place, syncs it and renames it over the old one; a learner's file that
/// exists is left alone. Gives a message when that fails.
[[nodiscard]] std::optional<std::string> store(const PackFile& file,
                                               const std::filesystem::path& folder);

} // namespace talvora::pack
