#include "writing/Analysis.h"

#include "formats/AnalysisLabels.h"
#include "platform/FatalFailure.h"
#include "text/CharClass.h"
#include "text/Text.h"

#include <algorithm>
#include <utility>

namespace talvora {

namespace {

constexpr char StretchEnd = '|';
constexpr CharClass EndingPoints("[:.,!\"]");

[[noreturn]] void failOverrun(const std::string& where, const std::string& what) {
  throw FatalFailure(where + " has more than " + std::to_string(MostStretches) + " " + what);
}

char at(std::string_view text, int position) {
  return position >= 1 && position <= static_cast<int>(text.size())
             ? text[static_cast<std::size_t>(position - 1)]
             : '\0';
}

} // namespace

std::vector<AnalysedStretch> LapOTuPT(std::string_view VanBanGoc, int titleEnd,
                                      const std::string& where) {
  std::vector<AnalysedStretch> stretches;
  int start = titleEnd - 2;
  for (int i = std::max(titleEnd, 1); i <= static_cast<int>(VanBanGoc.size()); ++i) {
    if (at(VanBanGoc, i) != StretchEnd) continue;
    if (stretches.size() == MostStretches) failOverrun(where, "stretches");
    stretches.push_back({start, i, std::string()});
    start = i + 1;
  }
  return stretches;
}

std::vector<std::string> GanGiaiPT(std::string_view PhanTich, const std::string& where) {
  std::vector<std::string> entries;
  std::string entry;
  bool firstLine = true;
  std::size_t field = 0;
  for (const char c : PhanTich) {
    if (c == '^') {
      field = 0;
      firstLine = true;
      // The text behind the mark needs a place too.
      if (entries.size() + 1 == MostStretches) failOverrun(where, "explanations");
      entries.push_back(std::exchange(entry, std::string()));
      continue;
    }
    if (c == '\r') firstLine = false;
    if (c == '|') {
      if (!firstLine) entry += AnalysisLabels[field];
      field = (field + 1) % AnalysisLabels.size();
    } else if (!firstLine) {
      entry += c;
    }
  }
  entries.push_back(std::move(entry));
  return entries;
}

WordMark markAt(std::string_view VanBanGoc, int position) {
  if (position < 1) return {};
  int v = position;
  while (v > 1 && at(VanBanGoc, v - 1) != StretchEnd && at(VanBanGoc, v - 1) != '\t')
    --v;
  // The very first character is the title's mark.
  if (v == 1) v = 2;
  if (v > static_cast<int>(VanBanGoc.size())) return {};
  const std::string_view rest = VanBanGoc.substr(static_cast<std::size_t>(v - 1));
  std::string_view word = trim(rest.substr(0, rest.find(StretchEnd)));
  WordMark mark{v - 1, static_cast<int>(word.size())};
  for (int point = 0; point < 2 && !word.empty() && EndingPoints.has(word.back()); ++point) {
    word.remove_suffix(1);
    --mark.SelLength;
  }
  // The mark keeps its length there and so reaches one character farther to the right.
  if (word.starts_with('"')) ++mark.SelStart;
  return mark;
}

} // namespace talvora
