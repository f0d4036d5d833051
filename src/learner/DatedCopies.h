// Dated copies of what the learner owns, each in a folder of its own below "backups".
#pragma once

#include "platform/Calendar.h"
#include "platform/FileSystem.h"

#include <deque>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora {

/// A copy: its name is the moment at which it was made, "2026-03-31_18-05-09".
struct DatedCopy {
  std::string name;
  std::size_t words = 0; ///< in its list
};

/// Whether a name is one that the program gives a copy; a second copy of one second has a number.
[[nodiscard]] bool isCopyName(std::string_view name);

/// The copies that stay, of copies from the oldest to the newest: all of the newest day, then one
/// of each of seven days, four weeks and twelve months on which there are any. Of several the one
/// with the most words stays, so that what was deleted is to be had again.
[[nodiscard]] std::vector<DatedCopy> thinned(const std::vector<DatedCopy>& copies);

class DatedCopies {
 public:
  DatedCopies(std::string learner, FileSystem& files, const Calendar& calendar)
      : learner_(std::move(learner)), files_(files), calendar_(calendar) {}

  /// All copies, the oldest first.
  [[nodiscard]] std::vector<DatedCopy> all() const;
  /// Makes a copy of what is there now, unless the newest copy is the same or there is no word, and
  /// thins the copies out; what has a name of somebody's own stays. Returns what went wrong, or
  /// nothing; what is there and cannot be read is wrong.
  std::optional<std::string> keep();
  /// A file of a copy.
  [[nodiscard]] std::optional<std::string> read(std::string_view copy, std::string_view file) const;

 private:
  [[nodiscard]] std::string folderOfCopies() const;
  [[nodiscard]] std::string pathOf(std::string_view copy, std::string_view file) const;
  [[nodiscard]] std::optional<std::string> readOwn(std::string_view file,
                                                   std::error_code& error) const;
  [[nodiscard]] bool newestIsTheSame(const std::string& words) const;
  [[nodiscard]] std::string freshName() const;
  std::error_code make(const std::string& name);
  void thinOut();
  void remove(const std::string& name);

  std::string learner_;
  FileSystem& files_;
  const Calendar& calendar_;
  std::deque<std::string> lastMade_; ///< names of this run's last copies
};

} // namespace talvora
