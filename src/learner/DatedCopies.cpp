#include "learner/DatedCopies.h"

#include "formats/LearnerFiles.h"
#include "learner/VocabularyFile.h"
#include "platform/Files.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdio>
#include <functional>
#include <set>

namespace talvora {

namespace {

constexpr std::size_t DaysKept = 7;
constexpr std::size_t WeeksKept = 4;
constexpr std::size_t MonthsKept = 12;
constexpr int DaysOfWeek = 7;
// A moment of which there are more copies than this is no moment.
constexpr int MostOfAMoment = 100;
/// So many of a run's own copies stay whatever their dates say: a clock may be set back.
constexpr std::size_t LastMadeKept = 5;

// The list comes last: a copy that has it is whole.
constexpr std::array copiedFiles = {learnerfile::Settings, learnerfile::Lists, learnerfile::Rows,
                                    learnerfile::Words};

std::string nameOf(const Moment& moment) {
  std::array<char, 64> name{};
  std::snprintf(name.data(), name.size(), "%04d-%02d-%02d_%02d-%02d-%02d", moment.year,
                moment.month, moment.day, moment.hour, moment.minute, moment.second);
  return name.data();
}

/// The day of a copy's name, counted from some fixed one; nothing when it is no copy's name.
std::optional<int> dayOf(const std::string& name) {
  int year = 0;
  unsigned month = 0;
  unsigned day = 0;
  if (std::sscanf(name.c_str(), "%4d-%2u-%2u_", &year, &month, &day) != 3) return std::nullopt;
  const std::chrono::year_month_day date{std::chrono::year(year), std::chrono::month(month),
                                         std::chrono::day(day)};
  if (!date.ok()) return std::nullopt;
  return std::chrono::sys_days(date).time_since_epoch().count();
}

int weekOf(const std::string& name) {
  return dayOf(name).value_or(0) / DaysOfWeek;
}

int monthOf(const std::string& name) {
  constexpr int MonthsOfYear = 12;
  int year = 0;
  int month = 0;
  return std::sscanf(name.c_str(), "%4d-%2d-", &year, &month) == 2 ? year * MonthsOfYear + month
                                                                   : 0;
}

/// Takes the best copy of each of the newest so many periods off the copies, and drops those that
/// lie in the same periods. Copies are in order, the newest last.
std::vector<DatedCopy> takeBest(std::vector<DatedCopy>& copies, std::size_t periods,
                                const std::function<int(const std::string&)>& periodOf) {
  std::vector<DatedCopy> best;
  for (std::size_t taken = 0; taken < periods && !copies.empty(); ++taken) {
    const int period = periodOf(copies.back().name);
    DatedCopy chosen = copies.back();
    while (!copies.empty() && periodOf(copies.back().name) == period) {
      if (copies.back().words > chosen.words) chosen = copies.back();
      copies.pop_back();
    }
    best.push_back(std::move(chosen));
  }
  return best;
}

} // namespace

bool isCopyName(std::string_view name) {
  return fits(name, "####-##-##_##-##-##") || fits(name, "####-##-##_##-##-##-##");
}

std::vector<DatedCopy> thinned(const std::vector<DatedCopy>& copies) {
  std::vector<DatedCopy> rest = copies;
  std::vector<DatedCopy> staying;
  const auto day = [](const std::string& name) { return dayOf(name).value_or(0); };
  const auto stay = [&](std::vector<DatedCopy> best) {
    staying.insert(staying.end(), best.begin(), best.end());
  };
  if (!rest.empty()) {
    const int newest = day(rest.back().name);
    while (!rest.empty() && day(rest.back().name) == newest) {
      staying.push_back(rest.back());
      rest.pop_back();
    }
  }
  stay(takeBest(rest, DaysKept - 1, day));
  stay(takeBest(rest, WeeksKept, weekOf));
  stay(takeBest(rest, MonthsKept, monthOf));
  std::sort(staying.begin(), staying.end(),
            [](const DatedCopy& one, const DatedCopy& other) { return one.name < other.name; });
  return staying;
}

std::string DatedCopies::folderOfCopies() const {
  return learner_ + "/" + std::string(learnerfile::Copies);
}

std::string DatedCopies::pathOf(std::string_view copy, std::string_view file) const {
  return folderOfCopies() + "/" + std::string(copy) + "/" + std::string(file);
}

std::optional<std::string> DatedCopies::read(std::string_view copy, std::string_view file) const {
  std::error_code error;
  const auto content = readWhole(files_, pathOf(copy, file), error);
  if (!content) return std::nullopt;
  return textOfBytes(*content);
}

/// Nothing, and no error, when there is none.
std::optional<std::string> DatedCopies::readOwn(std::string_view file,
                                                std::error_code& error) const {
  const auto content = readWhole(files_, learner_ + "/" + std::string(file), error);
  if (error == std::errc::no_such_file_or_directory) error.clear();
  if (!content) return std::nullopt;
  return textOfBytes(*content);
}

std::vector<DatedCopy> DatedCopies::all() const {
  std::vector<DatedCopy> copies;
  std::error_code error;
  for (const std::string& name : files_.list(folderOfCopies(), error)) {
    if (!dayOf(name)) continue;
    const FileStatus status = files_.status(pathOf(name, learnerfile::Words), error);
    if (status.kind != FileStatus::Kind::File) continue;
    copies.push_back({name, status.size / VocabularyWord::RecordSize});
  }
  return copies;
}

bool DatedCopies::newestIsTheSame(const std::string& words) const {
  const auto copies = all();
  if (copies.empty()) return false;
  const std::string& newest = copies.back().name;
  std::error_code error;
  const auto rows = readOwn(learnerfile::Rows, error);
  return !error && read(newest, learnerfile::Words) == words &&
         read(newest, learnerfile::Rows) == rows;
}

std::string DatedCopies::freshName() const {
  const std::string moment = nameOf(calendar_.now());
  std::string name = moment;
  std::error_code error;
  for (int copy = 2; copy < MostOfAMoment; ++copy) {
    const FileStatus status = files_.status(pathOf(name, learnerfile::Words), error);
    if (status.kind == FileStatus::Kind::Missing && !error) break;
    name = moment + (copy < 10 ? "-0" : "-") + std::to_string(copy);
  }
  return name;
}

std::optional<std::string> DatedCopies::keep() {
  std::error_code unread;
  const auto words = readOwn(learnerfile::Words, unread);
  if (unread) {
    return fileProblem(learner_ + "/" + std::string(learnerfile::Words), "cannot be read", unread);
  }
  if (!words || words->empty() || newestIsTheSame(*words)) return std::nullopt;
  const std::string name = freshName();
  if (const auto error = make(name)) {
    remove(name);
    return fileProblem(folderOfCopies() + "/" + name, "cannot be written", error);
  }
  lastMade_.push_back(name);
  if (lastMade_.size() > LastMadeKept) lastMade_.pop_front();
  thinOut();
  return std::nullopt;
}

// What somebody has put beside the copies under a name of their own is not the program's to remove.
void DatedCopies::thinOut() {
  const auto copies = all();
  std::set<std::string> staying(lastMade_.begin(), lastMade_.end());
  for (const DatedCopy& each : thinned(copies))
    staying.insert(each.name);
  for (const DatedCopy& each : copies) {
    if (isCopyName(each.name) && !staying.contains(each.name)) remove(each.name);
  }
}

std::error_code DatedCopies::make(const std::string& name) {
  const std::string folder = folderOfCopies() + "/" + name;
  if (const auto error = files_.makeFolder(folder)) return error;
  for (const std::string_view each : copiedFiles) {
    std::error_code error;
    const auto content = readOwn(each, error);
    if (error) return error;
    if (!content) continue;
    const auto file = files_.open(pathOf(name, each), OpenFor::Writing, error);
    if (file == nullptr) return error;
    error = file->truncate(0);
    if (!error) error = file->write(0, bytesOfText(*content));
    if (!error) error = file->sync();
    if (error) return error;
  }
  if (const auto error = files_.syncFolder(folder)) return error;
  return files_.syncFolder(folderOfCopies());
}

// The list goes first, so that half a copy is none. What cannot be removed stays.
void DatedCopies::remove(const std::string& name) {
  for (auto each = copiedFiles.rbegin(); each != copiedFiles.rend(); ++each)
    static_cast<void>(files_.remove(pathOf(name, *each)));
  static_cast<void>(files_.remove(folderOfCopies() + "/" + name));
}

} // namespace talvora
