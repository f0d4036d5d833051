// Reading of sources.
#include "pack/SourceFile.h"

#include "pack/Message.h"
#include "platform/Files.h"

#include <utf8proc.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <memory>
#include <sstream>
#include <utility>

namespace talvora::pack {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";

/// Whether a text has combining marks, U+0300 to U+036F.
bool hasLooseMarks(std::string_view utf8) {
  for (std::size_t at = 0; at + 1 < utf8.size(); ++at) {
    const auto lead = static_cast<unsigned char>(utf8[at]);
    if (lead == 0xCC || (lead == 0xCD && static_cast<unsigned char>(utf8[at + 1]) < 0xB0))
      return true;
  }
  return false;
}

/// The text in NFC; as it is when it is no UTF-8, which is reported where it is read.
std::string composed(std::string text) {
  utf8proc_uint8_t* raw = nullptr;
  const auto size =
      utf8proc_map(reinterpret_cast<const utf8proc_uint8_t*>(text.data()),
                   static_cast<utf8proc_ssize_t>(text.size()), &raw,
                   static_cast<utf8proc_option_t>(UTF8PROC_STABLE | UTF8PROC_COMPOSE));
  const std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> bytes(raw, &std::free);
  if (size < 0) return text;
  return {reinterpret_cast<const char*>(bytes.get()), static_cast<std::size_t>(size)};
}

} // namespace

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
  if (!text) problems.add({path.string()}, said("cannot be read"));
  return text.value_or("");
}

std::string readText(const std::filesystem::path& path, Problems& problems) {
  std::string text = readSource(path, problems);
  if (text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF")) {
    problems.add({path.string()}, said("is saved as UTF-16; save it as UTF-8"));
    return {};
  }
  if (text.starts_with(byteOrderMark)) text.erase(0, byteOrderMark.size());
  return hasLooseMarks(text) ? composed(std::move(text)) : text;
}

void reportStrangers(const std::filesystem::path& folder, const std::string& hint,
                     Problems& problems) {
  std::vector<std::string> strangers;
  std::error_code failure;
  for (const auto& entry : std::filesystem::directory_iterator(folder, failure)) {
    const auto& path = entry.path();
    const bool hidden = path.filename().string().starts_with('.');
    const bool text = entry.is_regular_file() && path.extension() == ".txt";
    if (!hidden && !text) strangers.push_back(path.string());
  }
  std::sort(strangers.begin(), strangers.end());
  for (const std::string& stranger : strangers)
    problems.add({stranger}, hint);
}

std::vector<std::filesystem::path> textFilesIn(const std::filesystem::path& folder,
                                               Problems& problems) {
  std::vector<std::filesystem::path> files;
  std::error_code error;
  for (const std::string& name : systemFiles().list(folder.string(), error)) {
    const auto path = folder / name;
    std::error_code unknown;
    if (path.extension() == ".txt" && std::filesystem::is_regular_file(path, unknown))
      files.push_back(path);
  }
  if (error && error != std::errc::no_such_file_or_directory)
    problems.add({folder.string()}, said("cannot be read"));
  return files;
}

} // namespace talvora::pack
