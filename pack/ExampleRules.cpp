// Comparing word by word.
#include "pack/ExampleRules.h"

#include "pack/Message.h"
#include "sound/Pronunciations.h"
#include "text/Text.h"

#include <algorithm>
#include <array>

namespace talvora::pack {

namespace {

/// An English word and what stands for it in Vietnamese: one of these at least.
struct Meaning {
  std::string_view english;
  std::array<std::string_view, 3> vietnamese; ///< empty ones stand for none
};

// "Ba giờ rưỡi" is half past three, "hai chục" is twenty, "mùng năm" is the fifth.
constexpr std::array<Meaning, 30> meanings = {{{"monday", {"thứ Hai", "Thứ Hai"}},
                                               {"tuesday", {"thứ Ba", "Thứ Ba"}},
                                               {"wednesday", {"thứ Tư", "Thứ Tư"}},
                                               {"thursday", {"thứ Năm", "Thứ Năm"}},
                                               {"friday", {"thứ Sáu", "Thứ Sáu"}},
                                               {"saturday", {"thứ Bảy", "Thứ Bảy"}},
                                               {"sunday", {"Chủ nhật"}},
                                               {"two", {"ai", "đôi", "2"}},
                                               {"three", {"a", "3"}},
                                               {"four", {"ốn", "tư", "4"}},
                                               {"five", {"ăm", "5"}},
                                               {"six", {"áu", "6"}},
                                               {"seven", {"ảy", "7"}},
                                               {"eight", {"ám", "8"}},
                                               {"nine", {"hín", "9"}},
                                               {"ten", {"ười", "chục", "10"}},
                                               {"eleven", {"ười một", "11"}},
                                               {"twelve", {"ười hai", "12"}},
                                               {"twenty", {"ai mươi", "hai chục", "20"}},
                                               {"thirty", {"a mươi", "rưỡi", "30"}},
                                               {"forty", {"ốn mươi", "40"}},
                                               {"fifty", {"ăm mươi", "50"}},
                                               {"sixty", {"áu mươi", "60"}},
                                               {"seventy", {"ảy mươi", "70"}},
                                               {"eighty", {"ám mươi", "80"}},
                                               {"ninety", {"hín mươi", "90"}},
                                               {"hundred", {"trăm", "Trăm", "00"}},
                                               {"thousand", {"ngàn", "nghìn", "000"}},
                                               {"million", {"riệu", "000"}},
                                               {"billion", {"tỉ", "Tỉ", "000"}}}};

bool says(std::string_view vietnamese, const Meaning& meaning) {
  return std::ranges::any_of(meaning.vietnamese, [vietnamese](std::string_view each) {
    return !each.empty() && vietnamese.find(each) != std::string_view::npos;
  });
}

bool asks(std::string_view sentence) {
  return sentence.find('?') != std::string_view::npos;
}

/// Words that may stand twice in a row.
bool mayRepeat(std::string_view word) {
  static constexpr std::array<std::string_view, 6> words = {"had", "that", "no",
                                                            "bye", "ha",   "very"};
  return std::ranges::find(words, word) != words.end();
}

} // namespace

std::vector<std::string> exampleFaults(std::string_view english, std::string_view vietnamese) {
  std::vector<std::string> faults;
  if (asks(english) != asks(vietnamese)) faults.push_back(said("only one of the two asks"));
  std::string before;
  for (std::string& word : spokenWordsOf(english)) {
    if (word == before && !mayRepeat(word))
      faults.push_back(said("\"{}\" stands twice in a row", word));
    const auto meaning = std::ranges::find(meanings, std::string_view(word), &Meaning::english);
    if (meaning != meanings.end() && !says(vietnamese, *meaning))
      faults.push_back(said("\"{}\" is not in the translation", word));
    before = std::move(word);
  }
  return faults;
}

} // namespace talvora::pack
