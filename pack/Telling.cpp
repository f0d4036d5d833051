#include "pack/Telling.h"

#include "pack/LooseText.h"
#include "pack/Message.h"

#include <ostream>

namespace talvora::pack {

namespace {

constexpr std::size_t mostLostLetters = 12;

} // namespace

ListResult tellUnreadable(const std::string& learner, std::ostream& out) {
  out << said("The vocabulary in {} cannot be read.", learner) << "\n";
  return ListResult::Impossible;
}

ListResult tellRunning(std::ostream& out) {
  out << said("Talvora is running.") << "\n";
  return ListResult::Impossible;
}

ListResult tellUnwritten(const std::string& problem, std::ostream& out) {
  out << said("Nothing could be written: {}", translatedFileProblem(problem)) << "\n";
  return ListResult::Impossible;
}

ListResult tellProblems(const Problems& problems, std::ostream& out) {
  for (const Problem& problem : problems.all())
    out << describe(problem) << "\n";
  return tellUnchanged(out);
}

ListResult tellUnchanged(std::ostream& out) {
  out << said("Nothing has changed.") << "\n";
  return ListResult::Impossible;
}

void tellLost(const std::map<char32_t, std::size_t>& lost, std::ostream& out) {
  if (lost.empty()) return;
  out << said("Letters that the text font has not got were left out: {}",
              lostLetters(lost, mostLostLetters))
      << "\n";
}

} // namespace talvora::pack
