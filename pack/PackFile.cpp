// Writing of compiled files.
#include "pack/PackFile.h"

#include "platform/Files.h"

namespace talvora::pack {

std::optional<std::string> store(const PackFile& file, const std::filesystem::path& folder) {
  const auto path = folder / file.name;
  if (file.owner == Owner::Learner && std::filesystem::exists(path)) return std::nullopt;
  return replaceFile(systemFiles(), path.string(), bytesOfText(file.bytes));
}

} // namespace talvora::pack
