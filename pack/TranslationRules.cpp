// Comparing word by word.
#include "pack/TranslationRules.h"

#include "pack/Message.h"
#include "pack/SmallLetters.h"
#include "pack/Weekdays.h"
#include "sound/Pronunciations.h"
#include "text/CharClass.h"
#include "text/Contains.h"
#include "text/Text.h"

#include <algorithm>
#include <array>

namespace talvora::pack {

namespace {

constexpr CharClass digits("[0-9]");

/// A number word and what stands for it in Vietnamese: a word, or digits.
struct NumberWord {
  std::string_view english;
  std::array<std::string_view, 4> vietnamese; ///< in small letters; an empty one stands for none
  std::string_view digits;                    ///< in a number written in digits
};

// "Ba giờ rưỡi" is half past three, "mùng năm" is the fifth, "một tạ" is a hundred kilos, and of
// money "sáu chục" is sixty thousand. Years and large numbers have their digits in translations:
// the "forty" of 1945.
constexpr std::array<NumberWord, 15> numberWords = {
    {{"two", {"hai", "đôi"}, "2"},
     {"three", {"ba"}, "3"},
     {"four", {"bốn", "tư"}, "4"},
     {"five", {"năm", "lăm"}, "5"},
     {"six", {"sáu"}, "6"},
     {"seven", {"bảy"}, "7"},
     {"eight", {"tám"}, "8"},
     {"nine", {"chín"}, "9"},
     {"ten", {"mười", "chục"}, "10"},
     {"eleven", {"mười một", "nghìn một"}, "11"},
     {"twelve", {"mười hai", "nghìn hai"}, "12"},
     {"hundred", {"trăm", "tạ"}, ""},
     {"thousand", {"ngàn", "nghìn", "vạn", "chục"}, ""},
     {"million", {"triệu"}, "000"},
     {"billion", {"tỉ"}, "000"}}};

/// The tens by the number that they are ten times of.
constexpr std::array<NumberWord, 8> tens = {{{"twenty", {"hai"}, "2"},
                                             {"thirty", {"ba", "rưỡi"}, "3"},
                                             {"forty", {"bốn"}, "4"},
                                             {"fifty", {"năm", "rưỡi"}, "5"},
                                             {"sixty", {"sáu"}, "6"},
                                             {"seventy", {"bảy"}, "7"},
                                             {"eighty", {"tám"}, "8"},
                                             {"ninety", {"chín"}, "9"}}};

/// What makes a ten of the number ahead: "bốn mươi", "bốn chục", the "bốn lăm" of a time, "hai, ba
/// mươi", and in "chín vạn" its ten thousands.
constexpr std::array<std::string_view, 14> behindTen = {" mươi", " chục", " vạn", ",",    " một",
                                                        " hai",  " ba",   " bốn", " tư",  " lăm",
                                                        " sáu",  " bảy",  " tám", " chín"};

/// The longest number in digits, without the points that part thousands: "1.200" has four.
std::string longestNumber(std::string_view text) {
  std::string longest;
  std::string number;
  for (const char character : text) {
    if (digits.has(character)) number += character;
    if (number.size() > longest.size()) longest = number;
    if (!digits.has(character) && character != '.') number.clear();
  }
  return longest;
}

bool saysInDigits(std::string_view vietnamese, const NumberWord& number) {
  const std::string longest = longestNumber(vietnamese);
  if (number.english == "hundred") return longest.size() > 2;
  if (number.english == "thousand") return longest.size() > 3;
  return std::ranges::any_of(vietnamese, [](char each) { return digits.has(each); }) &&
         vietnamese.find(number.digits) != std::string_view::npos;
}

bool says(std::string_view small, const NumberWord& number) {
  return saysInDigits(small, number) ||
         std::ranges::any_of(number.vietnamese, [small](std::string_view each) {
           return !each.empty() && small.find(each) != std::string_view::npos;
         });
}

bool saysTen(std::string_view small, const NumberWord& ten) {
  const std::string times(ten.vietnamese[0]);
  const std::string_view other = ten.vietnamese[1];
  if (saysInDigits(small, ten)) return true;
  if (!other.empty() && small.find(other) != std::string_view::npos) return true;
  return std::ranges::any_of(behindTen, [&](std::string_view behind) {
    return small.find(times + std::string(behind)) != std::string_view::npos;
  });
}

/// Whether a word is no number, or a number that the translation says.
bool isSaid(std::string_view word, std::string_view small) {
  const auto* const number = std::ranges::find(numberWords, word, &NumberWord::english);
  if (number != numberWords.end()) return says(small, *number);
  const auto* const ten = std::ranges::find(tens, word, &NumberWord::english);
  return ten == tens.end() || saysTen(small, *ten);
}

bool asks(std::string_view sentence) {
  return sentence.find('?') != std::string_view::npos;
}

/// Words that may stand twice in a row; a telephone has "five five".
bool mayRepeat(std::string_view word) {
  static constexpr std::array<std::string_view, 9> words = {"had", "that", "no",    "bye", "nil",
                                                            "ha",  "very", "great", "one"};
  return contains(words, word) ||
         std::ranges::find(numberWords, word, &NumberWord::english) != numberWords.end() ||
         std::ranges::find(tens, word, &NumberWord::english) != tens.end();
}

/// Whether a word stands twice with no more than a blank between.
bool standsTwice(const std::string& word, std::string_view small) {
  return small.find(word + " " + word) != std::string_view::npos;
}

/// "Your cake" that became "bánh của chị ấy".
void addOwner(std::vector<std::string>& faults, const std::vector<std::string>& words,
              std::string_view small) {
  constexpr std::array<std::string_view, 2> yours = {"your", "yours"};
  constexpr std::array<std::string_view, 10> others = {"his", "her",  "hers", "their", "theirs",
                                                       "him", "them", "he",   "she",   "they"};
  constexpr std::array<std::string_view, 6> theirs = {"của anh ấy", "của chị ấy", "của cô ấy",
                                                      "của ông ấy", "của bà ấy",  "của họ"};
  const auto isAmong = [&words](std::string_view word) { return contains(words, word); };
  if (std::ranges::none_of(yours, isAmong) || std::ranges::any_of(others, isAmong)) return;
  for (const std::string_view owner : theirs) {
    if (small.find(owner) != std::string_view::npos)
      faults.push_back(said("the translation gives \"{}\" what the sentence calls yours", owner));
  }
}

/// "By Friday", which Friday itself still is, and "Friday" without its day.
void addDay(std::vector<std::string>& faults, const Weekday& day, std::string_view ahead,
            std::string_view small) {
  const std::string name = smallUtf8(day.vietnamese);
  if (small.find(name) == std::string_view::npos)
    faults.push_back(said("the translation has no \"{}\"", day.vietnamese));
  if (ahead == "by" && small.find("trước " + name) != std::string_view::npos)
    faults.push_back(
        said("\"{}\" leaves the day out, \"by\" does not", "trước " + std::string(day.vietnamese)));
}

/// "On Fridays" that became "thứ Sáu".
void addHabit(std::vector<std::string>& faults, const std::vector<std::string>& words,
              std::string_view small) {
  constexpr std::array<std::string_view, 7> everyWeek = {"nào", "hằng", "các",   "mỗi",
                                                         "mọi", "cứ",   "thường"};
  const bool saysEveryWeek = std::ranges::any_of(everyWeek, [small](std::string_view each) {
    return small.find(each) != std::string_view::npos;
  });
  if (saysEveryWeek) return;
  for (const std::string& word : words) {
    if (word.ends_with("days") && weekdayNamed(word) != nullptr)
      faults.push_back(said("\"{}\" is every week, and its translation one day", word));
  }
}

void addAsking(std::vector<std::string>& faults, std::string_view english,
               std::string_view vietnamese) {
  if (asks(english) && !asks(vietnamese))
    faults.push_back(said("the sentence asks and its translation does not"));
  if (!asks(english) && asks(vietnamese))
    faults.push_back(said("the translation asks and its sentence does not"));
}

} // namespace

std::vector<std::string> translationFaults(std::string_view english, std::string_view vietnamese,
                                           Surroundings surroundings) {
  std::vector<std::string> faults;
  addAsking(faults, english, vietnamese);
  const std::string smallEnglish = lower(english);
  const std::string small = smallUtf8(vietnamese);
  const std::vector<std::string> words = spokenWordsOf(english);
  addOwner(faults, words, small);
  std::string_view before;
  for (const std::string& word : words) {
    if (word == before && !mayRepeat(word) && standsTwice(word, smallEnglish))
      faults.push_back(said("\"{}\" stands twice in a row", word));
    if (!isSaid(word, small)) faults.push_back(said("\"{}\" is not in the translation", word));
    if (const Weekday* const day = weekdayNamed(word)) addDay(faults, *day, before, small);
    before = word;
  }
  if (surroundings == Surroundings::None) addHabit(faults, words, small);
  return faults;
}

} // namespace talvora::pack
