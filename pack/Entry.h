// Senses of a word, as dictionary entries tell them.
#pragma once

#include <array>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace talvora::pack {

enum class WordClass : std::uint8_t {
  Noun,
  Verb,
  Adjective,
  Adverb,
  Preposition,
  Conjunction,
  Pronoun,
  Determiner,
  Number,
  Interjection,
  Modal,
  Abbreviation,
  Phrase
};

/// How a word class is written in sources and how entries name it, in either language.
struct ClassName {
  WordClass wordClass;
  std::string_view source;
  std::string_view vietnamese;
  std::string_view english;
};

inline constexpr std::array<ClassName, 13> ClassNames = {{
    {WordClass::Noun, "n.", "danh từ", "noun"},
    {WordClass::Verb, "v.", "động từ", "verb"},
    {WordClass::Adjective, "adj.", "tính từ", "adjective"},
    {WordClass::Adverb, "adv.", "trạng từ", "adverb"},
    {WordClass::Preposition, "prep.", "giới từ", "preposition"},
    {WordClass::Conjunction, "conj.", "liên từ", "conjunction"},
    {WordClass::Pronoun, "pron.", "đại từ", "pronoun"},
    {WordClass::Determiner, "det.", "từ hạn định", "determiner"},
    {WordClass::Number, "num.", "số từ", "number"},
    {WordClass::Interjection, "int.", "thán từ", "interjection"},
    {WordClass::Modal, "modal.", "trợ động từ", "modal verb"},
    {WordClass::Abbreviation, "abbr.", "viết tắt", "abbreviation"},
    {WordClass::Phrase, "phr.", "cụm từ", "phrase"},
}};

/// A set of word classes.
class ClassSet {
 public:
  constexpr ClassSet() = default;
  constexpr ClassSet(std::initializer_list<WordClass> classes) {
    for (const WordClass each : classes)
      add(each);
  }
  constexpr void add(WordClass each) noexcept { bits_ |= bit(each); }
  constexpr void add(ClassSet others) noexcept { bits_ |= others.bits_; }
  [[nodiscard]] constexpr bool has(WordClass each) const noexcept {
    return (bits_ & bit(each)) != 0;
  }
  [[nodiscard]] constexpr bool meets(ClassSet other) const noexcept {
    return (bits_ & other.bits_) != 0;
  }
  [[nodiscard]] constexpr bool empty() const noexcept { return bits_ == 0; }

 private:
  static constexpr unsigned bit(WordClass each) { return 1U << static_cast<unsigned>(each); }
  unsigned bits_ = 0;
};

/// The language in which a sense is explained; the class is named in the same one.
enum class Language { Vietnamese, English };

/// How a sense of a noun is counted.
enum class NounUse : std::uint8_t { None, Uncountable, Countable, Both, Singular, Plural };

/// How a noun's use is written in sources and how entries name it.
struct NounUseName {
  NounUse use;
  std::string_view source;
  std::string_view vietnamese;
};

inline constexpr std::array<NounUseName, 6> NounUseNames = {{
    {NounUse::None, "", ""},
    {NounUse::Uncountable, "[u]", "không đếm được"},
    {NounUse::Countable, "[c]", "đếm được"},
    {NounUse::Both, "[u c]", "đếm được và không đếm được"},
    {NounUse::Singular, "[sg]", "số ít"},
    {NounUse::Plural, "[pl]", "số nhiều"},
}};

/// A sense of one class, in the text font's bytes. Without a number it may hold several glosses.
struct Sense {
  WordClass wordClass = WordClass::Noun;
  Language language = Language::Vietnamese;
  std::string text;
  std::string example = {}; ///< "English = Vietnamese"; empty without one
  std::string pattern = {}; ///< English words that go with the sense; empty without any
  int number = 0;           ///< among the senses of its class, from 1; 0 without one
  NounUse use = NounUse::None;
  std::string pronunciation =
      {}; ///< of the class that begins here, where it differs from the head's
};

/// A phrase that is more than its words: "go on", with what it means.
struct FixedPhrase {
  std::string english;
  std::string vietnamese;
};

/// What an entry says of one word of its spelling; "lie" has two of these.
struct EntryBlock {
  std::vector<Sense> senses;
  std::vector<std::string> forms = {}; ///< irregular ones, as the source lists them
  std::string level = {};              ///< "A1" to "C1"; empty without one
  std::vector<FixedPhrase> phrases = {};
  std::string pronunciation = {}; ///< "/gou/"; empty without one
};

/// The levels that a head word can have.
inline constexpr std::array<std::string_view, 5> Levels = {"A1", "A2", "B1", "B2", "C1"};

/// The marks that entry notation or a stream gives a meaning; no sense may hold them.
inline constexpr std::string_view EntryMarks = "_`@|*#^~<>{}[]\\";

} // namespace talvora::pack
