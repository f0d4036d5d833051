// Choice of the entries and of their senses, and their layout.
#include "pack/VietnameseSide.h"

#include "formats/Integers.h"
#include "formats/PackFiles.h"
#include "pack/StreamText.h"
#include "text/Text.h"
#include "text/WordForm.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <unordered_set>

namespace talvora::pack {

namespace {

constexpr char entryEnd = '\r';
constexpr std::string_view possessiveEnding = "'s";

/// An affix that changes the sense of an adjective in one way, and the Vietnamese for that.
struct PlainAffix {
  std::string_view affix;
  std::string_view opening;
};

constexpr std::array<PlainAffix, 3> plainAffixes = {
    {{"un-", "không "}, {"-ly", "một cách "}, {"-ness", "sự "}}};

bool isSingleWord(std::string_view head) {
  return head.find(' ') == std::string_view::npos;
}

bool hasCapital(std::string_view head) {
  return lower(head) != head;
}

/// The first of the meanings that semicolons part; those within brackets part nothing.
std::string_view firstMeaning(std::string_view sense) {
  int depth = 0;
  for (std::size_t at = 0; at < sense.size(); ++at) {
    if (sense[at] == '(') ++depth;
    if (sense[at] == ')') --depth;
    if (sense[at] == ';' && depth <= 0) return trim(sense.substr(0, at));
  }
  return trim(sense);
}

/// A meaning as the bar shows it: one that is long goes without the remark in brackets at its end.
std::string shownMeaning(std::string_view sense) {
  std::string_view meaning = firstMeaning(sense);
  const std::size_t remark = meaning.rfind(" (");
  if (meaning.size() > LongestSideMeaning && meaning.ends_with(')') &&
      remark != std::string_view::npos) {
    meaning = trim(meaning.substr(0, remark));
  }
  return std::string(meaning);
}

/// The meaning of a word of ours in one of the classes, or, when it has none of these, its first.
// Senses stand with the commonest first: one further down would mislead.
std::string meaningOf(const Word& word, ClassSet classes) {
  const Sense* first = &word.blocks.front().senses.front();
  for (const EntryBlock& block : word.blocks) {
    const auto found =
        std::find_if(block.senses.begin(), block.senses.end(),
                     [classes](const Sense& sense) { return classes.has(sense.wordClass); });
    if (found == block.senses.end()) continue;
    first = &*found;
    break;
  }
  return shownMeaning(first->text);
}

/// True when all that the adjective says is one gloss without a remark, and one that can take a
/// word ahead of it: "thuộc văn hóa" cannot.
bool hasOneMeaning(const Word& word) {
  static const std::string belonging = ownText("thuộc ");
  std::size_t senses = 0;
  for (const EntryBlock& block : word.blocks) {
    for (const Sense& sense : block.senses) {
      if (sense.wordClass != WordClass::Adjective) continue;
      ++senses;
      if (sense.text.find_first_of(";(,") != std::string::npos) return false;
      if (sense.text.starts_with(belonging)) return false;
    }
  }
  return senses == 1;
}

class SideFiller {
 public:
  SideFiller(const WordList& list, const std::vector<std::string>& listed)
      : list_(list), listed_(listed) {}

  // A click picks single words, so that phrases come behind them.
  void addOwn() {
    for (const Word& word : list_.words())
      if (isSingleWord(word.head)) addOwnWord(word);
    for (const Word& word : list_.words())
      if (word.kind == WordKind::OwnForm) addForm(word);
    for (const Word& word : list_.words())
      if (!isSingleWord(word.head)) addOwnWord(word);
  }

  void addFurtherWords() {
    for (const Word& word : list_.words())
      if (word.kind == WordKind::WordNet) addBuilt(word);
    addPossessives();
    // What only the word lists know is seldom met.
    for (const Word& word : list_.words())
      if (word.kind == WordKind::Derivation) addBuilt(word);
  }

  [[nodiscard]] std::vector<SideEntry> takeSorted() {
    std::sort(entries_.begin(), entries_.end(),
              [](const SideEntry& left, const SideEntry& right) { return left.form < right.form; });
    return std::move(entries_);
  }

 private:
  // A head word that is met more often as a form of another one has the meaning of that form.
  void addOwnWord(const Word& word) {
    const bool own = word.kind == WordKind::Own || word.kind == WordKind::Letter;
    if (!own || !word.hasSenses()) return;
    if (word.opensWithOrigins()) {
      addForm(word);
    } else {
      add(word.head, meaningOf(word, {}), {}, word.kind);
    }
  }

  void addForm(const Word& word) {
    const Origin& origin = word.origins.front();
    const std::vector<Sense> senses = list_.borrowedSenses(origin);
    if (senses.empty()) return;
    add(word.head, shownMeaning(senses.front().text), list_.at(origin.base).head, word.kind);
  }

  void addBuilt(const Word& word) {
    if (!word.isBuilt()) return;
    const Origin& origin = word.origins.front();
    const auto affix =
        std::find_if(plainAffixes.begin(), plainAffixes.end(),
                     [&origin](const PlainAffix& each) { return each.affix == origin.affix; });
    if (affix == plainAffixes.end()) return;
    const Word& base = list_.at(origin.base);
    if (base.kind != WordKind::Own || !base.classes.has(WordClass::Adjective)) return;
    // The word may take up any of the adjective's senses, so that the first one would mislead.
    if (!hasOneMeaning(base)) return;
    add(word.head, ownText(affix->opening) + meaningOf(base, {WordClass::Adjective}), base.head,
        WordKind::Derivation);
  }

  // There may be more of them than room: short words are met more often than long ones.
  void addPossessives() {
    std::vector<std::string> possessives;
    std::copy_if(listed_.begin(), listed_.end(), std::back_inserter(possessives),
                 [](const std::string& listed) { return listed.ends_with(possessiveEnding); });
    std::sort(possessives.begin(), possessives.end(), [](const auto& left, const auto& right) {
      return left.size() != right.size() ? left.size() < right.size() : left < right;
    });
    const std::string opening = ownText("của ");
    for (const std::string& head : possessives) {
      const Word* base =
          ownWord(ChuanHoaTu(std::string_view(head).substr(0, head.size() - 2)), WordClass::Noun);
      // "Baker's" belongs to a name, not to the word "baker".
      if (base == nullptr || hasCapital(head) != hasCapital(base->head)) continue;
      add(head, opening + meaningOf(*base, {WordClass::Noun}), base->head, WordKind::Possessive);
    }
  }

  /// The word of our own with a normal form, when it has the class.
  [[nodiscard]] const Word* ownWord(const std::string& form, WordClass wordClass) const {
    const auto number = list_.find(form);
    if (!number) return nullptr;
    const Word& word = list_.at(*number);
    return word.kind == WordKind::Own && word.classes.has(wordClass) ? &word : nullptr;
  }

  void add(const std::string& head, const std::string& meaning, const std::string& base,
           WordKind kind) {
    if (entries_.size() == VietnameseSideCount) return;
    std::string form = ChuanHoaTu(head);
    if (!forms_.insert(form).second) return;
    std::string text = head + "~" + meaning;
    if (!base.empty()) text += " <" + base + ">";
    entries_.push_back({head, std::move(form), std::move(text), kind});
  }

  const WordList& list_;
  const std::vector<std::string>& listed_;
  std::vector<SideEntry> entries_;
  std::unordered_set<std::string> forms_;
};

} // namespace

std::vector<SideEntry> vietnameseSideOf(const WordList& list,
                                        const std::vector<std::string>& listed) {
  SideFiller filler(list, listed);
  filler.addOwn();
  filler.addFurtherWords();
  return filler.takeSorted();
}

std::vector<PackFile> compileVietnameseSide(const std::vector<SideEntry>& entries) {
  std::string words;
  std::string positions;
  std::string stream;
  for (const SideEntry& entry : entries) {
    words += entry.head + "\n";
    appendInteger(positions, stream.size() + 1);
    appendStored(stream, entry.text + entryEnd);
  }
  return {{std::string(packfile::SideWords), std::move(words)},
          {std::string(packfile::SidePositions), std::move(positions)},
          {std::string(packfile::SideEntries), std::move(stream)}};
}

} // namespace talvora::pack
