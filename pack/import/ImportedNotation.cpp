#include "pack/import/ImportedNotation.h"

#include "pack/Entry.h"
#include "pack/SourceFile.h"
#include "text/Text.h"

namespace talvora::pack {

namespace {

constexpr std::size_t longestName = 40;

/// Without runs of blanks.
std::string tidied(std::string_view text) {
  std::string tidy;
  for (const char character : trim(text)) {
    if (character != ' ' || !tidy.ends_with(' ')) tidy += character;
  }
  return tidy;
}

/// As much of a line as there is room for, to the end of a word.
std::string_view cutTo(std::string_view line, std::size_t room) {
  if (line.size() <= room) return line;
  const std::size_t blank = line.substr(0, room).rfind(' ');
  return line.substr(0, blank == std::string_view::npos ? room : blank);
}

} // namespace

NotationWriter::NotationWriter(const std::string& name) : letters_(EntryMarks) {
  const std::string written = tidied(letters_.bytesOf(name));
  opener_ = "_#" + std::string(cutTo(written, longestName)) + " #";
}

std::string NotationWriter::headOf(std::string_view head) {
  return tidied(letters_.bytesOf(head));
}

ImportedNotation NotationWriter::notationOf(std::string_view head, std::string_view text) {
  ImportedNotation notation;
  std::size_t room = LongestImportedText;
  for (const SourceLine& each : linesOf(text)) {
    const std::string line = tidied(letters_.bytesOf(each.text));
    const bool isHead = notation.text.empty() && lower(line) == lower(head);
    if (line.empty() || isHead) continue;
    const std::string_view part = cutTo(line, room);
    if (!part.empty()) notation.text += (notation.text.empty() ? opener_ : "_") + std::string(part);
    room -= part.size();
    if (part.size() == line.size()) continue;
    notation.text += " ...";
    notation.cut = true;
    break;
  }
  return notation;
}

} // namespace talvora::pack
