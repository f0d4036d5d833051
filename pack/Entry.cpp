// Writing and reading of entry notation.
#include "pack/Entry.h"

#include "pack/StreamText.h"

#include <algorithm>

namespace talvora::pack {

namespace {

constexpr std::string_view exampleOpener = "_^vd: ";

/// The class names of both languages in the text font, ready for entries.
struct ClassLabel {
  std::string vietnamese;
  std::string english;
};

// A span that its own mark closes ends one character short, hence the blank ahead of the mark.
std::string labelOf(std::string_view name) {
  return "_#" + ownText(name) + " #";
}

const std::array<ClassLabel, ClassNames.size()>& classLabels() {
  static const auto labels = [] {
    std::array<ClassLabel, ClassNames.size()> all;
    for (const ClassName& name : ClassNames) {
      all[static_cast<std::size_t>(name.wordClass)] = {labelOf(name.vietnamese),
                                                       labelOf(name.english)};
    }
    return all;
  }();
  return labels;
}

/// The class that a line names in Vietnamese.
std::optional<WordClass> vietnameseClassOf(std::string_view line) {
  for (const ClassName& name : ClassNames) {
    const auto place = static_cast<std::size_t>(name.wordClass);
    if (line.starts_with(classLabels()[place].vietnamese)) return name.wordClass;
  }
  return std::nullopt;
}

} // namespace

std::string entryLines(const std::vector<Sense>& senses, Examples examples) {
  std::string lines;
  for (const Sense& sense : senses) {
    const ClassLabel& label = classLabels()[static_cast<std::size_t>(sense.wordClass)];
    lines += sense.language == Language::Vietnamese ? label.vietnamese : label.english;
    lines += sense.text;
    if (examples == Examples::Without || sense.example.empty()) continue;
    lines += exampleOpener;
    lines += sense.example;
  }
  return lines;
}

std::vector<Sense> sensesOfEntry(std::string_view entry) {
  std::vector<Sense> senses;
  while (!entry.empty()) {
    const std::size_t end = std::min(entry.find('_', 1), entry.size());
    const std::string_view line = entry.substr(0, end);
    entry.remove_prefix(end);
    if (line.starts_with(exampleOpener)) {
      if (!senses.empty()) senses.back().example = line.substr(exampleOpener.size());
      continue;
    }
    const auto wordClass = vietnameseClassOf(line);
    if (!wordClass) continue;
    const auto& label = classLabels()[static_cast<std::size_t>(*wordClass)].vietnamese;
    senses.push_back(
        {*wordClass, Language::Vietnamese, std::string(line.substr(label.size())), ""});
  }
  return senses;
}

bool opensWithVietnamese(std::string_view entry) {
  return vietnameseClassOf(entry).has_value();
}

} // namespace talvora::pack
