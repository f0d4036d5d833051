// The sounds of the endings.
#include "pack/FormPhones.h"

#include "pack/Inflection.h"
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

template <typename List>
bool isIn(const List& list, std::string_view phone) {
  return std::find(list.begin(), list.end(), phone) != list.end();
}

/// The ending that a form of a kind is spelled with; none when it is irregular.
std::optional<SpokenEnding> endingOf(std::string_view form, FormKind kind) {
  switch (kind) {
  case FormKind::Plural:
  case FormKind::ThirdPerson:
    return form.ends_with('s') ? std::optional(SpokenEnding::S) : std::nullopt;
  case FormKind::Past:
  case FormKind::Participle:
  case FormKind::PastAndParticiple:
    return form.ends_with("ed") ? std::optional(SpokenEnding::Ed) : std::nullopt;
  case FormKind::Ing:
    return SpokenEnding::Ing;
  default:
    return std::nullopt;
  }
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
        const auto ending = endingOf(form.text, kind);
        // "fed" is no longer than "feed" and has no ending.
        if (!ending || form.text.size() <= entry.head.size()) continue;
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
    sounds = isIn(hisses, last) ? "ih0 z" : isIn(voiceless, last) ? "s" : "z";
  if (ending == SpokenEnding::Ed) {
    const bool soft = !isIn(voiceless, last) && last != "s" && last != "sh" && last != "ch";
    sounds = isIn(stops, last) ? "ih0 d" : soft ? "d" : "t";
  }
  for (std::string& phone : phonesOf(sounds))
    base.push_back(std::move(phone));
  return base;
}

} // namespace talvora::pack
