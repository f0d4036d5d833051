// What the commands for learners have in common: how one ends, and what it tells of that.
#pragma once

#include "pack/Problems.h"

#include <iosfwd>
#include <map>
#include <string>

namespace talvora::pack {

/// What came of a command; the numbers are exit codes.
enum class ListResult { Fine = 0, Found = 1, Impossible = 2 };

/// Tells that the vocabulary of a learner's folder cannot be read.
[[nodiscard]] ListResult tellUnreadable(const std::string& learner, std::ostream& out);
/// Tells that the program is running, which must not write beside this one.
[[nodiscard]] ListResult tellRunning(std::ostream& out);
/// Tells a problem of the file handling.
[[nodiscard]] ListResult tellUnwritten(const std::string& problem, std::ostream& out);
/// Tells problems, and that they have kept everything as it was.
[[nodiscard]] ListResult tellProblems(const Problems& problems, std::ostream& out);
/// Tells that everything is as it was.
[[nodiscard]] ListResult tellUnchanged(std::ostream& out);
/// Tells which letters of what was brought the text font has not got; nothing without any.
void tellLost(const std::map<char32_t, std::size_t>& lost, std::ostream& out);

} // namespace talvora::pack
