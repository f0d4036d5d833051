#include "pack/EntryLines.h"

#include "pack/EntryNotation.h"
#include "pack/StreamText.h"

#include <algorithm>

namespace talvora::pack {

namespace {

// A span that its own mark closes ends one character short, hence the blank ahead of the mark.
std::string blueText(const std::string& text) {
  return "#" + text + " #";
}

std::string useName(NounUse use) {
  return ownText(NounUseNames[static_cast<std::size_t>(use)].vietnamese);
}

bool numberedWith(const Sense& sense, const Sense& next) {
  return sense.wordClass == next.wordClass && sense.language == next.language && sense.number > 0 &&
         next.number > 0;
}

/// The end of the senses that share the name of their class with the one at `first`.
std::size_t endOfGroup(const std::vector<Sense>& senses, std::size_t first) {
  std::size_t end = first + 1;
  while (end < senses.size() && numberedWith(senses[end - 1], senses[end]))
    ++end;
  return end;
}

/// "cụm: go on ..., go out ..." on a line of its own.
std::string phraseLine(const std::vector<FixedPhrase>& phrases) {
  std::string line;
  for (const FixedPhrase& phrase : phrases) {
    line += line.empty() ? notation::phraseOpener() : "; ";
    line += blueText(phrase.english) + phrase.vietnamese;
  }
  return line;
}

std::string exampleLine(const Sense& sense) {
  return sense.example.empty() ? "" : std::string(notation::exampleOpener) + sense.example;
}

/// The senses of one group, with the phrases below the last one and ahead of its example.
std::string groupLines(const std::vector<Sense>& senses, std::size_t first, std::size_t end,
                       Examples examples, const std::vector<FixedPhrase>& phrases) {
  const Sense& opening = senses[first];
  const bool sameUse =
      std::all_of(senses.begin() + static_cast<std::ptrdiff_t>(first),
                  senses.begin() + static_cast<std::ptrdiff_t>(end),
                  [&opening](const Sense& sense) { return sense.use == opening.use; });
  std::string lines = "_" + blueText(notation::label(opening.wordClass, opening.language,
                                                     sameUse ? opening.use : NounUse::None));
  if (examples == Examples::With && !opening.pronunciation.empty())
    lines += opening.pronunciation + " ";
  for (std::size_t place = first; place < end; ++place) {
    const Sense& sense = senses[place];
    if (place > first) lines += "_";
    if (sense.number > 0 && end - first > 1) lines += std::to_string(sense.number) + " ";
    if (!sameUse && sense.use != NounUse::None) lines += blueText(useName(sense.use));
    lines += sense.text;
    if (examples == Examples::Without) continue;
    if (!sense.pattern.empty()) lines += ": " + sense.pattern;
    if (place + 1 == end) lines += phraseLine(phrases);
    lines += exampleLine(sense);
  }
  return lines;
}

std::string linesOf(const std::vector<Sense>& senses, Examples examples,
                    const std::vector<FixedPhrase>& phrases) {
  std::string lines;
  for (std::size_t first = 0; first < senses.size();) {
    const std::size_t end = endOfGroup(senses, first);
    // The phrases belong to the class that comes first, whether its senses are numbered or not.
    const bool classEnds =
        end == senses.size() || senses[end].wordClass != senses.front().wordClass;
    const bool classOpen = std::all_of(
        senses.begin(), senses.begin() + static_cast<std::ptrdiff_t>(end),
        [&senses](const Sense& sense) { return sense.wordClass == senses.front().wordClass; });
    lines += groupLines(senses, first, end, examples,
                        classOpen && classEnds ? phrases : std::vector<FixedPhrase>{});
    first = end;
  }
  return lines;
}

} // namespace

std::string entryLines(const std::vector<Sense>& senses, Examples examples) {
  return linesOf(senses, examples, {});
}

std::string blockLines(const EntryBlock& block) {
  return linesOf(block.senses, Examples::With, block.phrases);
}

std::string headDetails(const EntryBlock& block) {
  std::string details = block.pronunciation;
  std::string forms;
  for (const std::string& form : block.forms)
    forms += (forms.empty() ? "" : ", ") + form;
  for (const std::string& part : {forms.empty() ? forms : "(" + forms + ")", block.level}) {
    if (part.empty()) continue;
    if (!details.empty()) details += " ";
    details += part;
  }
  return details;
}

} // namespace talvora::pack
