// The word list while it is being filled: every word once by its normal form, with what its entry
// will say.
#pragma once

#include "pack/Entry.h"
#include "pack/FormIndex.h"
#include "pack/Message.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

/// What kind of word a line is; the earlier kinds are preferred.
enum class WordKind : std::uint8_t {
  Letter,
  Own,
  OwnForm,
  WordNet,
  Form,
  PhraseForm,
  Spelling,
  Derivation,
  PhrasePlural,
  Possessive,
  PhrasePossessive
};

struct WordKindName {
  WordKind kind;
  std::string_view name;
};

inline constexpr std::array<WordKindName, 11> WordKindNames = {{
    {WordKind::Letter, toSay("letters that open a section")},
    {WordKind::Own, toSay("entries of our own")},
    {WordKind::OwnForm, toSay("forms of our own entries")},
    {WordKind::WordNet, toSay("WordNet words")},
    {WordKind::Form, toSay("forms of WordNet words")},
    {WordKind::PhraseForm, toSay("forms of verbs of several words")},
    {WordKind::Spelling, toSay("other spellings")},
    {WordKind::Derivation, toSay("words built from known ones")},
    {WordKind::PhrasePlural, toSay("plurals of nouns of several words")},
    {WordKind::Possessive, toSay("possessives")},
    {WordKind::PhrasePossessive, toSay("possessives of nouns of several words")},
}};

/// Says what a word is to another one: "dạng -ing của go".
struct Origin {
  std::string relation;
  std::size_t base = 0;
  ClassSet classes = {};                 ///< whose senses the entry borrows; none means all
  std::optional<std::size_t> block = {}; ///< of the base that the word belongs to; none means all
  std::string_view affix = {};           ///< that builds the word from the base; empty for a form
};

/// Which of its two halves an entry shows first.
enum class Order : std::uint8_t { OwnFirst, OriginsFirst };

struct Word {
  std::string head;
  WordKind kind = WordKind::Own;
  ClassSet classes;
  std::vector<EntryBlock> blocks; ///< what is said of the word itself
  std::vector<Origin> origins;
  Order order = Order::OwnFirst;
  std::string note = {}; ///< a last line of the entry; empty without one
  std::string form = {}; ///< the normal form; the list fills it in

  [[nodiscard]] bool hasSenses() const noexcept { return !blocks.empty(); }
  /// True for a word whose entry opens with the words that it comes from; one without any opens
  /// with its own senses in either order.
  [[nodiscard]] bool opensWithOrigins() const noexcept {
    return order == Order::OriginsFirst && !origins.empty();
  }
  /// True for a word whose entry opens with how it is built.
  [[nodiscard]] bool isBuilt() const noexcept {
    return opensWithOrigins() && !origins.front().affix.empty();
  }
};

class WordList {
 public:
  /// `limit` is the number of lines that the list holds at most.
  explicit WordList(std::size_t limit) : limit_(limit), byForm_(limit) {}

  [[nodiscard]] bool full() const noexcept { return words_.size() >= limit_; }
  [[nodiscard]] std::size_t size() const noexcept { return words_.size(); }
  /// The word of a normal form.
  [[nodiscard]] std::optional<std::size_t> find(const std::string& form) const;
  /// Adds a word and gives its number; nothing when the list is full, when the normal form is
  /// taken, or when it does not begin with a letter from a to z.
  std::optional<std::size_t> add(Word word);

  [[nodiscard]] const Word& at(std::size_t number) const { return words_.at(number); }
  [[nodiscard]] Word& at(std::size_t number) { return words_.at(number); }
  [[nodiscard]] const std::vector<Word>& words() const noexcept { return words_; }

  /// Numbers of all words in the order of the list: by normal form, in binary order.
  [[nodiscard]] std::vector<std::size_t> sorted() const;
  /// The senses that a word borrows by an origin, the first three at most: those of the classes it
  /// asks for, or of all when there are none of these. A base that has no senses, or is built from
  /// another word, passes on what it borrows itself.
  [[nodiscard]] std::vector<Sense> borrowedSenses(const Origin& origin) const;
  /// True when the entry of the word gives a Vietnamese sense.
  [[nodiscard]] bool hasVietnamese(const Word& word) const;
  /// The whole entry of a word in entry notation, without the character 13 that ends it.
  [[nodiscard]] std::string entryOf(const Word& word) const;

 private:
  /// The origins from a word to the one whose senses stand for it, the first being the word's own.
  [[nodiscard]] std::vector<const Origin*> pathOf(const Origin& origin) const;

  std::size_t limit_;
  std::vector<Word> words_;
  FormIndex byForm_;
};

} // namespace talvora::pack
