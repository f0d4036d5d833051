#include "PackCopy.h"

#include "formats/Integers.h"

#include <cstdint>
#include <fstream>

namespace talvora::bench {

namespace {

void writeSettings(const std::filesystem::path& path) {
  std::ofstream file(path, std::ios::binary);
  for (const std::int32_t record : {0, 1, 0, 5}) {
    for (const unsigned char byte : bytesOf(record))
      file.put(static_cast<char>(byte));
  }
}

} // namespace

PackCopy::PackCopy(const std::filesystem::path& pack) {
  for (const auto& entry : std::filesystem::directory_iterator(pack)) {
    const auto name = entry.path().filename();
    if (name == "data.c" || name == "data.Kcu" || name == "Yes1") continue;
    std::filesystem::create_symlink(std::filesystem::absolute(entry.path()), folder_.path() / name);
  }
  std::ofstream(folder_.path() / "Yes1").flush();
  writeSettings(folder_.path() / "data.Kcu");
}

} // namespace talvora::bench
