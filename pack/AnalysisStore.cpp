// Layout of analyses in a stream.
#include "pack/AnalysisStore.h"

#include "formats/Integers.h"
#include "formats/PackFiles.h"
#include "pack/Message.h"
#include "pack/StreamText.h"

#include <algorithm>
#include <charconv>
#include <optional>
#include <string>
#include <vector>

namespace talvora::pack {

namespace {

constexpr char lineEnd = '\r';
constexpr char entryEnd = '^';
constexpr char recordEnd = '@';
constexpr char lessonMark = '?';
constexpr std::string_view fieldMark = "| ";
/// The last two fields read as one sentence and share a line.
constexpr std::string_view inSentence = " | ";
constexpr std::size_t fieldLines = AnalysisFieldCount - 1;

/// An entry begins behind the line of its mark, which the program passes over.
std::string layOut(const AnalysisEntry& entry) {
  std::string plain;
  for (std::size_t field = 0; field < fieldLines; ++field) {
    plain += lineEnd;
    plain += fieldMark;
    plain += entry.fields[field];
  }
  plain += inSentence;
  plain += entry.field(AnalysisField::Because) + lineEnd;
  for (const int lesson : entry.lessons) {
    plain += lessonMark + std::to_string(lesson) + lineEnd;
  }
  return plain;
}

std::string layOut(const Analysis& analysis) {
  std::string plain;
  for (const AnalysisEntry& entry : analysis) {
    if (!plain.empty()) plain += entryEnd;
    plain += layOut(entry);
  }
  return plain + recordEnd;
}

std::vector<std::string_view> split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  while (true) {
    const std::size_t end = text.find(separator);
    parts.push_back(text.substr(0, end));
    if (end == std::string_view::npos) return parts;
    text.remove_prefix(end + 1);
  }
}

bool readFields(AnalysisEntry& entry, const std::vector<std::string_view>& lines) {
  for (std::size_t field = 0; field < fieldLines; ++field) {
    const std::string_view line = lines[field + 1];
    if (!line.starts_with(fieldMark)) return false;
    entry.fields[field] = line.substr(fieldMark.size());
  }
  std::string& needed = entry.fields[fieldLines - 1];
  const std::size_t end = needed.find(inSentence);
  if (end == std::string::npos) return false;
  entry.fields[fieldLines] = needed.substr(end + inSentence.size());
  needed.resize(end);
  return true;
}

std::optional<AnalysisEntry> entryFrom(std::string_view plain) {
  const auto lines = split(plain, lineEnd);
  AnalysisEntry entry;
  if (lines.size() < fieldLines + 2 || !readFields(entry, lines)) return std::nullopt;
  for (std::size_t line = fieldLines + 1; line + 1 < lines.size(); ++line) {
    std::string_view digits = lines[line];
    if (!digits.starts_with(lessonMark)) return std::nullopt;
    digits.remove_prefix(1);
    int& lesson = entry.lessons.emplace_back();
    const auto [end, failure] =
        std::from_chars(digits.data(), digits.data() + digits.size(), lesson);
    if (failure != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  }
  return entry;
}

std::optional<Analysis> analysisFrom(std::string_view plain) {
  Analysis analysis;
  if (plain.empty()) return analysis;
  for (const std::string_view part : split(plain, entryEnd)) {
    auto entry = entryFrom(part);
    if (!entry) return std::nullopt;
    analysis.push_back(std::move(*entry));
  }
  return analysis;
}

} // namespace

TextStore compileAnalysisTexts(const AnalysisSource& source) {
  TextStore store;
  for (int slot = 1; slot <= AnalysisSlots; ++slot) {
    const auto found = source.analyses.find(slot);
    appendInteger(store.positions, store.stream.size());
    appendStored(store.stream, layOut(found == source.analyses.end() ? Analysis() : found->second));
  }
  return store;
}

AnalysisSource decodeAnalyses(std::string_view positions, std::string_view stream,
                              Problems& problems) {
  AnalysisSource source;
  for (int slot = 1; slot <= AnalysisSlots; ++slot) {
    const auto plain =
        storedUntil(stream, integerAt(positions, static_cast<std::size_t>(slot)), recordEnd);
    auto analysis = plain ? analysisFrom(*plain) : std::nullopt;
    if (!analysis) {
      problems.add({std::string(packfile::Analyses)}, said("analysis {} cannot be read", slot));
    } else if (!analysis->empty()) {
      source.analyses.emplace(slot, std::move(*analysis));
    }
  }
  return source;
}

} // namespace talvora::pack
