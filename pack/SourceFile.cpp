// Reading of sources.
#include "pack/SourceFile.h"

#include <algorithm>
#include <fstream>
#include <sstream>
#include <utility>

namespace talvora::pack {

std::vector<SourceLine> linesOf(std::string_view text) {
  std::vector<SourceLine> lines;
  int number = 0;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    lines.push_back({line, ++number});
    text.remove_prefix(std::min(end + 1, text.size()));
  }
  return lines;
}

std::optional<std::string> readWhole(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  if (!file || std::filesystem::is_directory(path)) return std::nullopt;
  std::ostringstream text;
  text << file.rdbuf();
  if (file.bad()) return std::nullopt;
  return std::move(text).str();
}

std::string readSource(const std::filesystem::path& path, Problems& problems) {
  auto text = readWhole(path);
  if (!text) problems.add({path.string()}, "cannot be read");
  return text.value_or("");
}

std::vector<std::filesystem::path> textFilesIn(const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> files;
  std::error_code failure;
  for (const auto& entry : std::filesystem::directory_iterator(folder, failure)) {
    if (entry.is_regular_file() && entry.path().extension() == ".txt")
      files.push_back(entry.path());
  }
  std::sort(files.begin(), files.end());
  return files;
}

} // namespace talvora::pack
