// What the notation of pronunciations is written by: the letters of phones, and spellings that tell
// what the phones do not.
#pragma once

#include <array>
#include <string_view>

namespace talvora::pack::phonetics {

struct PhoneName {
  std::string_view phone;
  std::string_view letters;
};

inline constexpr std::array<PhoneName, 24> consonants = {
    {{"b", "b"},  {"ch", "tʃ"}, {"d", "d"}, {"dh", "ð"}, {"f", "f"},  {"g", "g"},
     {"hh", "h"}, {"jh", "dʒ"}, {"k", "k"}, {"l", "l"},  {"m", "m"},  {"n", "n"},
     {"ng", "ŋ"}, {"p", "p"},   {"r", "r"}, {"s", "s"},  {"sh", "ʃ"}, {"t", "t"},
     {"th", "θ"}, {"v", "v"},   {"w", "w"}, {"y", "j"},  {"z", "z"},  {"zh", "ʒ"}}};

/// The vowels as they are written when nothing around them matters.
inline constexpr std::array<PhoneName, 16> vowels = {{{"aa", "a:"},
                                                      {"ae", "æ"},
                                                      {"ah", "ʌ"},
                                                      {"ao", "o:"},
                                                      {"aw", "au"},
                                                      {"ax", "ə"},
                                                      {"ay", "ai"},
                                                      {"eh", "e"},
                                                      {"er", "ə:"},
                                                      {"ey", "ei"},
                                                      {"ih", "i"},
                                                      {"iy", "i:"},
                                                      {"ow", "ou"},
                                                      {"oy", "oi"},
                                                      {"uh", "u"},
                                                      {"uw", "u:"}}};

/// The consonants that may open a syllable together.
inline constexpr std::array<std::string_view, 41> openings = {
    "p l", "p r",  "p y",   "b l",   "b r",   "b y",   "t r",   "t w", "t y", "d r", "d w",
    "d y", "k l",  "k r",   "k w",   "k y",   "g l",   "g r",   "g w", "f l", "f r", "f y",
    "v y", "th r", "th w",  "sh r",  "s p",   "s t",   "s k",   "s m", "s n", "s l", "s w",
    "m y", "hh y", "s p r", "s p l", "s t r", "s k r", "s k w", "n y"};

/// Endings that take the stress themselves, and openings of verbs that leave it to the end.
inline constexpr std::array<std::string_view, 15> stressedEndings = {
    "ese",  "ee",   "eer",  "oon",  "ette", "ique",  "esque", "duce",
    "mend", "tain", "pear", "zine", "gree", "lieve", "sent"};
inline constexpr std::array<std::string_view, 3> verbOpenings = {"under", "over", "with"};
/// Endings whose vowel is full and yet never has the main stress.
inline constexpr std::array<std::string_view, 7> lightEndings = {"ary",  "ory",   "mony", "arily",
                                                                 "ator", "ative", "paper"};

inline constexpr std::array<std::string_view, 2> weakEndings = {"ary", "ory"};

/// An ending of a spelling, and the phones behind its weak vowel.
struct WeakEnding {
  std::string_view spelling;
  std::string_view behind;
};

/// The weak vowel is written "i".
inline constexpr std::array<WeakEnding, 14> endingsWithI = {{{"age", "jh"},
                                                             {"aged", "jhd"},
                                                             {"agement", "jhmaxnt"},
                                                             {"ager", "jher"},
                                                             {"ed", "d"},
                                                             {"es", "z"},
                                                             {"ically", "kliy"},
                                                             {"icle", "kaxl"},
                                                             {"ist", "st"},
                                                             {"ity", "tiy"},
                                                             {"less", "s"},
                                                             {"lessness", "snaxs"},
                                                             {"ness", "s"},
                                                             {"sis", "s"}}};
/// Behind a consonant nothing is written for it: the l carries the syllable by itself.
inline constexpr std::array<WeakEnding, 3> endingsWithL = {
    {{"le", "l"}, {"led", "ld"}, {"ling", "lihng"}}};

} // namespace talvora::pack::phonetics
