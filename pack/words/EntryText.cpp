#include "pack/words/EntryText.h"

#include "learner/WordRows.h"
#include "pack/StreamText.h"
#include "text/Text.h"

namespace talvora::pack {

namespace {

/// " của " in the text font: what stands between a relation and the word that it leads to.
const std::string& ofWord() {
  static const std::string of = ownText(" của ");
  return of;
}

bool isSense(std::string_view line) {
  const bool isNumbered = !line.empty() && line.front() >= '1' && line.front() <= '9';
  return line.starts_with('#') || isNumbered;
}

/// "#danh từ #con chó: walk the dog" without its marks. What stands behind a dash of the source's
/// own stays as it is.
std::string plainSense(std::string_view line) {
  std::string plain;
  for (const char character : line) {
    if (character != '#' && character != '^') plain += character;
  }
  return readableText(trim(plain));
}

std::string pronunciationIn(std::string_view head) {
  const std::size_t end = head.find('/', 1);
  if (!head.starts_with('/') || end == std::string_view::npos) return {};
  return readableText(head.substr(0, end + 1));
}

/// The word that a line such as "quá khứ của go" leads to.
std::string baseIn(std::string_view line) {
  const std::size_t of = line.rfind(ofWord());
  return of == std::string_view::npos ? "" : readableText(trim(line.substr(of + ofWord().size())));
}

} // namespace

EntryText entryTextOf(std::string_view entry, std::size_t mostSenses) {
  EntryText text;
  const auto lines = split(entry, '_');
  text.pronunciation = pronunciationIn(lines.front());
  // A word that is first of all a form opens with what it is to another one.
  if (lines.size() > 1 && !isSense(lines[1])) text.base = baseIn(lines[1]);
  for (std::size_t at = 1; at < lines.size() && text.senses.size() < mostSenses; ++at) {
    if (isSense(lines[at])) text.senses.push_back(plainSense(lines[at]));
  }
  return text;
}

} // namespace talvora::pack
