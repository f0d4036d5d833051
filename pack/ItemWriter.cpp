// Writing of exercise items.
#include "pack/ItemHeadings.h"
#include "pack/ItemNotation.h"
#include "pack/ItemSource.h"
#include "pack/ItemText.h"
#include "pack/StreamText.h"
#include "pack/kinds/ItemKind.h"
#include "text/Text.h"

#include <algorithm>

namespace talvora::pack {

namespace {

std::string writtenLines(const ExplanationLines& lines) {
  std::string source;
  for (const ExplanationLine& line : lines) {
    source += line.refersTo ? std::string(referenceOpener) + utf8Of(line.text.text)
                            : writeMarkedLine(line.text);
    source += "\n";
  }
  return source;
}

std::string writtenSentences(const Item& item) {
  std::string source;
  std::string_view rest = item.question;
  for (const std::string& translation : item.translations) {
    rest.remove_prefix(std::min<std::size_t>(1, rest.size()));
    const std::size_t end = std::min(rest.find('_'), rest.size());
    source += utf8Of(trim(rest.substr(0, end))) + "\n";
    source += std::string(translationOpener) + utf8Of(translation) + "\n";
    rest.remove_prefix(end);
  }
  return source;
}

std::string writeItem(const Item& item, ItemPlace place) {
  std::string source = std::string(itemOpener) + std::string(item.kind->name());
  if (item.kind->hasHeading()) source += ", " + headingName(item.heading, place);
  source += "\n";
  if (!item.id.empty()) source += std::string(idOpener) + item.id + "\n";
  if (!item.about.title.empty())
    source += std::string(aboutOpener) + utf8Of(item.about.title) + "\n";
  if (item.kind->hasSentences()) return source + "\n" + writtenSentences(item);
  for (std::size_t at = 0; at < item.hints.size(); ++at)
    source += (at == 0 ? std::string(hintsOpener) : ", ") + utf8Of(item.hints[at]);
  if (!item.hints.empty()) source += "\n";
  const BraceUse braces = item.kind->braces();
  const int marked = braces == BraceUse::Candidate ? item.key : 0;
  source += "\n" + writeItemText(item.question, braces, marked) + "\n";
  if (!item.options.empty()) source += "\n";
  for (std::size_t at = 0; at < item.options.size(); ++at) {
    const bool right = static_cast<int>(at) + 1 == item.key;
    source += std::string(right ? rightOpener : wrongOpener) + utf8Of(item.options[at]) + "\n";
  }
  if (!item.general.empty()) source += "\nexplain:\n" + writtenLines(item.general);
  for (const auto& [number, lines] : item.explanations)
    source += "\nexplain " + std::to_string(number) + ":\n" + writtenLines(lines);
  return source;
}

} // namespace

std::string writeItems(const std::vector<Item>& items, ItemPlace place) {
  std::string source;
  for (const Item& item : items)
    source += (source.empty() ? "" : "\n") + writeItem(item, place);
  return source;
}

} // namespace talvora::pack
