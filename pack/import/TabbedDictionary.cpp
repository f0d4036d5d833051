#include "pack/import/TabbedDictionary.h"

#include "pack/Message.h"
#include "pack/PlainMarkup.h"
#include "pack/SourceFile.h"

#include <algorithm>

namespace talvora::pack {

namespace {

constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
constexpr std::string_view writtenLineEnd = "\\n";

std::string withLineEnds(std::string_view text) {
  std::string lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(writtenLineEnd), text.size());
    lines += text.substr(0, end);
    if (end == text.size()) break;
    lines += '\n';
    text.remove_prefix(end + writtenLineEnd.size());
  }
  return lines;
}

} // namespace

ImportedDictionary readTabbed(std::string_view text, const std::string& file, Problems& problems) {
  if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
  EntryCollector collector(file, problems);
  for (const SourceLine& line : linesOf(text)) {
    if (line.text.empty() || line.text.starts_with('#')) continue;
    const std::size_t tab = line.text.find('\t');
    if (tab == std::string_view::npos || tab == 0) {
      problems.add({file, line.number, 1}, said("a line must be a word, a tab and its entry"));
      break;
    }
    const auto entry = line.text.substr(tab + 1, LongestImportedEntry);
    if (!collector.add(std::string(line.text.substr(0, tab)), withoutMarkup(withLineEnds(entry))))
      break;
  }
  return std::move(collector.dictionary);
}

} // namespace talvora::pack
