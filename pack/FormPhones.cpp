// The sounds of the endings.
#include "pack/FormPhones.h"

#include "pack/Inflection.h"
#include "text/Contains.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace talvora::pack {

namespace {

constexpr std::array<std::string_view, 6> hisses = {"s", "z", "sh", "zh", "ch", "jh"};
constexpr std::array<std::string_view, 5> voiceless = {"p", "t", "k", "f", "th"};
constexpr std::array<std::string_view, 2> stops = {"t", "d"};

/// Whether a form is its base with an ending: behind the base as it is, with its last letter
/// doubled, or without its "e"; "y" and "ie" become another letter.
bool isSpelled(const std::string& form, const std::string& base, const std::string& ending) {
  const std::string shorter = base.substr(0, base.size() - 1);
  if (form == base + ending || form == base + base.back() + ending) return true;
  if (ending == "s") return form == base + "es" || (base.ends_with('y') && form == shorter + "ies");
  if (base.ends_with('e') && form == shorter + ending) return true;
  if (ending == "ed") return base.ends_with('y') && form == shorter + "ied";
  return base.ends_with("ie") && form == base.substr(0, base.size() - 2) + "ying";
}

struct EndingName {
  SpokenEnding ending;
  std::string_view letters;
};

constexpr std::array<EndingName, 3> endingNames = {
    {{SpokenEnding::S, "s"}, {SpokenEnding::Ed, "ed"}, {SpokenEnding::Ing, "ing"}}};

/// The ending that a form is spelled with; none when it is irregular.
std::optional<SpokenEnding> endingOf(const std::string& form, const std::string& base) {
  const auto found =
      std::find_if(endingNames.begin(), endingNames.end(), [&](const EndingName& each) {
        return isSpelled(form, base, std::string(each.letters));
      });
  return found != endingNames.end() ? std::optional(found->ending) : std::nullopt;
}

} // namespace

std::vector<SpokenForm> spokenFormsOf(const WordSources& words) {
  std::vector<SpokenForm> spoken;
  const Inflections inflections(words.own, words.wordNet, words.known);
  for (const OwnEntry& entry : words.own) {
    if (entry.head.find_first_of(" -'") != std::string::npos) continue;
    ClassSet classes;
    for (const Sense& sense : entry.block.senses)
      classes.add(sense.wordClass);
    for (const Form& form : inflections.formsOf(entry.head, classes)) {
      for (const FormKind kind : form.kinds) {
        const auto ending = endingOf(lower(form.text), lower(entry.head));
        if (!ending) continue;
        const WordClass wordClass = kind == FormKind::Plural ? WordClass::Noun : WordClass::Verb;
        spoken.push_back({lower(form.text), entry.head, *ending, wordClass});
      }
    }
  }
  return spoken;
}

Phones withEnding(Phones base, SpokenEnding ending) {
  if (base.empty()) return base;
  const std::string last = base.back();
  std::string_view sounds = "ih0 ng";
  if (ending == SpokenEnding::S)
    sounds = contains(hisses, last) ? "ih0 z" : contains(voiceless, last) ? "s" : "z";
  if (ending == SpokenEnding::Ed) {
    const bool soft = !contains(voiceless, last) && last != "s" && last != "sh" && last != "ch";
    sounds = contains(stops, last) ? "ih0 d" : soft ? "d" : "t";
  }
  for (std::string& phone : phonesOf(sounds))
    base.push_back(std::move(phone));
  return base;
}

} // namespace talvora::pack
