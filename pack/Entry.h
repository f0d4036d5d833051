// Senses of a word and the notation of dictionary entries.
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

/// The senses of one class, in the text font's bytes.
struct Sense {
  WordClass wordClass = WordClass::Noun;
  Language language = Language::Vietnamese;
  std::string text;
  std::string example; ///< "English = Vietnamese"; empty without one
};

enum class Examples { With, Without };

/// Senses in entry notation: each on a line of its own, the class blue ahead of it.
[[nodiscard]] std::string entryLines(const std::vector<Sense>& senses, Examples examples);

/// The Vietnamese senses that entry notation holds; the lines that are none are passed over.
[[nodiscard]] std::vector<Sense> sensesOfEntry(std::string_view entry);

/// True when the entry opens with a Vietnamese sense, so that it is the word's own.
[[nodiscard]] bool opensWithVietnamese(std::string_view entry);

/// The marks that entry notation or a stream gives a meaning; no sense may hold them.
inline constexpr std::string_view EntryMarks = "_`@|*#^~<>{}[]\\";

} // namespace talvora::pack
