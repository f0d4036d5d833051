// A content source as its lines, and the folders that sources lie in.
#pragma once

#include "pack/Problems.h"

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// A line of a source, without its line end.
struct SourceLine {
  std::string_view text;
  int number = 0;
};

/// The lines of a text, which has to outlive them; a line end is LF or CR LF.
[[nodiscard]] std::vector<SourceLine> linesOf(std::string_view text);
std::vector<SourceLine> linesOf(std::string&& text) = delete;

/// The whole of a file; empty when it cannot be read.
[[nodiscard]] std::optional<std::string> readWhole(const std::filesystem::path& path);

/// The same, with a problem instead when it cannot be read.
[[nodiscard]] std::string readSource(const std::filesystem::path& path, Problems& problems);

/// The same for a text that somebody writes: a byte order mark at its start is skipped and letters
/// with their marks behind them are put together.
[[nodiscard]] std::string readText(const std::filesystem::path& path, Problems& problems);

/// Reports what lies in a folder and is no ".txt" file, hidden files apart, with a hint.
void reportStrangers(const std::filesystem::path& folder, const std::string& hint,
                     Problems& problems);

/// The regular ".txt" files of a folder, sorted by name; none when there is no such folder. One
/// that is there and cannot be listed is a problem: what lies in it would be taken for gone.
[[nodiscard]] std::vector<std::filesystem::path> textFilesIn(const std::filesystem::path& folder,
                                                             Problems& problems);

} // namespace talvora::pack
