// The notation of pronunciations.
#include "pack/Phonetics.h"

#include "pack/Message.h"
#include "pack/PhoneticTables.h"
#include "pack/VowelGroups.h"

#include "text/Contains.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <optional>

namespace talvora::pack {

namespace {

template <typename Names>
std::optional<std::string_view> lettersOf(std::string_view phone, const Names& names) {
  const auto found =
      std::find_if(names.begin(), names.end(),
                   [phone](const phonetics::PhoneName& each) { return each.phone == phone; });
  return found != names.end() ? std::optional(found->letters) : std::nullopt;
}

bool endsInStress(std::string_view phone) {
  return phone.ends_with('0') || phone.ends_with('1') || phone.ends_with('2');
}

/// Writes the phones of one word.
class PhoneticWriter {
 public:
  PhoneticWriter(const Phones& phones, std::string_view spelling) : spelling_(lower(spelling)) {
    for (const std::string& each : phones) {
      const bool vowel = endsInStress(each);
      const bool stressed = vowel && !each.ends_with('0');
      sounds_.push_back(
          {vowel ? each.substr(0, each.size() - 1) : each, vowel, stressed, stressed});
    }
    groups_ = vowelGroupsOf(spelling_);
    const auto count =
        std::count_if(sounds_.begin(), sounds_.end(), [](const Sound& each) { return each.vowel; });
    aligned_ = static_cast<std::size_t>(count) == groups_.size();
    manySyllables_ = count > 1;
    keepMainStress();
  }

  std::string write() {
    for (at_ = 0; at_ < sounds_.size(); ++at_) {
      if (manySyllables_ && opensStressedSyllable()) text_ += "'";
      if (sounds_[at_].vowel) {
        writeVowel();
      } else {
        writeConsonant();
      }
    }
    return text_;
  }

 private:
  struct Sound {
    std::string phone;
    bool vowel;
    bool stressed;
    bool main; ///< has the stress that is marked
  };

  // The lexicon marks a word's lesser stress as it marks the main one. That is the last, but for
  // one on the word's end, which only verbs and some endings have, and but for "-ary" and "-ory".
  void keepMainStress() {
    std::vector<std::size_t> stressed;
    for (std::size_t place = 0; place < sounds_.size(); ++place)
      if (sounds_[place].stressed) stressed.push_back(place);
    if (stressed.size() < 2) return;
    const bool letters = spelling_.size() < stressed.size() + 2;
    const bool endHasIt = letters || spellingEndsIn(phonetics::stressedEndings) ||
                          spellingOpensWith(phonetics::verbOpenings);
    const bool onLast = std::none_of(sounds_.begin() + static_cast<long>(stressed.back()) + 1,
                                     sounds_.end(), [](const Sound& each) { return each.vowel; });
    const bool lesser = (onLast && !endHasIt) || spellingEndsIn(phonetics::lightEndings);
    const std::size_t main = lesser ? stressed[stressed.size() - 2] : stressed.back();
    for (const std::size_t place : stressed)
      sounds_[place].main = place == main;
  }

  template <typename Endings>
  [[nodiscard]] bool spellingEndsIn(const Endings& endings) const {
    return std::any_of(endings.begin(), endings.end(),
                       [this](std::string_view each) { return spelling_.ends_with(each); });
  }
  template <typename Openings>
  [[nodiscard]] bool spellingOpensWith(const Openings& all) const {
    return std::any_of(all.begin(), all.end(),
                       [this](std::string_view each) { return spelling_.starts_with(each); });
  }

  [[nodiscard]] bool is(std::size_t place, std::string_view phone) const {
    return place < sounds_.size() && sounds_[place].phone == phone;
  }
  [[nodiscard]] bool isVowel(std::size_t place) const {
    return place < sounds_.size() && sounds_[place].vowel;
  }

  /// How many consonants ahead of a vowel belong to its syllable: as many as may open one.
  [[nodiscard]] std::size_t openingAhead(std::size_t vowel) const {
    std::size_t first = vowel;
    while (first > 0 && !sounds_[first - 1].vowel)
      --first;
    if (first == 0) return vowel;
    for (std::size_t from = first; from < vowel; ++from) {
      if (mayOpen(from, vowel)) return vowel - from;
    }
    return 0;
  }

  [[nodiscard]] bool mayOpen(std::size_t from, std::size_t end) const {
    if (end - from == 1) return sounds_[from].phone != "ng";
    std::string joined = sounds_[from].phone;
    for (std::size_t place = from + 1; place < end; ++place)
      joined += " " + sounds_[place].phone;
    return contains(phonetics::openings, joined);
  }

  [[nodiscard]] bool opensStressedSyllable() const {
    std::size_t vowel = at_;
    while (vowel < sounds_.size() && !sounds_[vowel].vowel)
      ++vowel;
    return vowel < sounds_.size() && sounds_[vowel].main && openingAhead(vowel) == vowel - at_;
  }

  // The accent of school dictionaries keeps an r ahead of a vowel only.
  void writeConsonant() {
    const Sound& sound = sounds_[at_];
    if (sound.phone == "r" && !isVowel(at_ + 1)) return;
    text_ += lettersOf(sound.phone, phonetics::consonants).value_or("");
  }

  /// The letters that spell the vowel here; empty when spelling and phones do not match.
  [[nodiscard]] std::string_view group() const {
    if (!aligned_) return {};
    const auto before = std::count_if(sounds_.begin(), sounds_.begin() + static_cast<long>(at_),
                                      [](const Sound& each) { return each.vowel; });
    return groups_[static_cast<std::size_t>(before)];
  }

  /// Whether the vowel here is spelled with an "o" alone, as "hot" and "dog" are.
  [[nodiscard]] bool speltO() const {
    if (aligned_) return group() == "o";
    return spelling_.find('o') != std::string::npos && spelling_.find('a') == std::string::npos;
  }

  /// Whether the vowel here is the short one of "hot", which "watch" has too behind its "w".
  [[nodiscard]] bool isShortO() const {
    const std::string& phone = sounds_[at_].phone;
    if ((phone == "aa" || phone == "ao") && speltO()) return true;
    return phone == "aa" && group().ends_with('a') && afterW();
  }

  void writeVowel() {
    const Sound& sound = sounds_[at_];
    if (is(at_ + 1, "r") && writeVowelAheadOfR()) return;
    if (sound.phone == "iy" && (is(at_ + 1, "ax") || is(at_ + 1, "er")) && sound.stressed) {
      text_ += "iə";
      ++at_;
      if (sounds_[at_].phone == "er" && isVowel(at_ + 1)) text_ += "r";
    } else if (sound.phone == "er") {
      writeEr();
    } else if (isShortO()) {
      text_ += "o";
    } else if (sound.phone == "aa" && (spelling_.find("ough") != std::string::npos ||
                                       group() == "au" || group() == "ou")) {
      text_ += "o:";
    } else if (sound.phone == "ax" || (sound.phone == "ah" && !sound.stressed)) {
      writeWeakVowel();
    } else if (sound.phone == "iy" && !sound.stressed) {
      text_ += "i";
    } else if (sound.phone == "ih" && !sound.stressed && followsWeakI()) {
      text_ += "ə";
    } else if (sound.phone == "uw" && !sound.stressed && isVowel(at_ + 1)) {
      text_ += takesJ() ? "ju" : "u";
    } else {
      if (sound.phone == "uw" && takesJ()) text_ += "j";
      text_ += lettersOf(sound.phone, phonetics::vowels).value_or("");
    }
  }

  // The voice has one weak vowel; school dictionaries write the "i" of "visit", "wanted" and
  // "language", and no vowel at all in "table".
  void writeWeakVowel() {
    const bool first = std::none_of(sounds_.begin(), sounds_.begin() + static_cast<long>(at_),
                                    [](const Sound& each) { return each.vowel; });
    if (opensWithUn()) {
      text_ += "ʌ";
      return;
    }
    // "casual" has a "u" where the voice says two sounds.
    if (is(at_ + 1, "w") && isVowel(at_ + 2) && spelling_.find('w') == std::string::npos &&
        spelling_.find('u') != std::string::npos) {
      text_ += "u";
      ++at_;
      return;
    }
    if (lCarriesSyllable()) return;
    static constexpr std::array<std::string_view, 4> sonorants = {"l", "m", "n", "r"};
    const bool sonorant = at_ + 1 >= sounds_.size() || contains(sonorants, sounds_[at_ + 1].phone);
    const bool speltI =
        group() == "i" && !spelling_.ends_with("ible") && !spelling_.ends_with("ibly");
    const bool speltE = group() == "e" && (first || !sonorant);
    text_ += speltI || speltE || hasEndingWithI() ? "i" : "ə";
  }

  // Spelling and phones need not match for these: the "e" of "care" is mute in "careless" too.
  [[nodiscard]] bool hasEndingWithI() const {
    return std::ranges::any_of(phonetics::endingsWithI,
                               [this](const phonetics::WeakEnding& each) { return endsIn(each); });
  }

  /// "table", "puzzled", "cycling", but not "counselling".
  [[nodiscard]] bool lCarriesSyllable() const {
    return std::ranges::any_of(phonetics::endingsWithL, [this](const phonetics::WeakEnding& each) {
      if (!endsIn(each) || spelling_.size() == each.spelling.size()) return false;
      const char ahead = spelling_[spelling_.size() - each.spelling.size() - 1];
      return ahead != 'l' && !isVowelLetter(ahead);
    });
  }

  /// Whether the word ends so from the weak vowel here on.
  [[nodiscard]] bool endsIn(const phonetics::WeakEnding& ending) const {
    std::string behind;
    for (std::size_t place = at_ + 1; place < sounds_.size(); ++place)
      behind += sounds_[place].phone;
    return ending.behind == behind && spelling_.ends_with(ending.spelling);
  }

  /// "immediate": behind a weak "i" there is no second one, but in "worrying".
  [[nodiscard]] bool followsWeakI() const {
    return at_ > 0 && is(at_ - 1, "iy") && !sounds_[at_ - 1].stressed && !is(at_ + 1, "ng");
  }

  /// "unjust", "until": the beginning keeps the vowel of "cup".
  [[nodiscard]] bool opensWithUn() const {
    return at_ == 0 && is(1, "n") && spelling_.starts_with("un");
  }

  /// "watch", "quality": an "a" behind w has the vowel of "hot".
  [[nodiscard]] bool afterW() const { return at_ > 0 && is(at_ - 1, "w"); }

  /// "new" and "student" have a j that the voice's accent drops.
  [[nodiscard]] bool takesJ() const {
    if (at_ == 0 || !aligned_) return false;
    const bool behind = is(at_ - 1, "t") || is(at_ - 1, "d") || is(at_ - 1, "n");
    return behind && (group().starts_with('u') || group() == "e" || group().starts_with("eu") ||
                      group().starts_with("ew"));
  }

  // Ahead of a further vowel the r is heard, and a stressed one is often that of "cup".
  void writeEr() {
    const Sound& sound = sounds_[at_];
    const bool vowelFollows = isVowel(at_ + 1);
    const bool doubled = spelling_.find("urr") != std::string::npos ||
                         spelling_.find("our") != std::string::npos ||
                         spelling_.find("orr") != std::string::npos;
    if (sound.stressed && vowelFollows && doubled) {
      text_ += "ʌr";
      return;
    }
    text_ += sound.stressed ? "ə:" : "ə";
    if (vowelFollows) text_ += "r";
  }

  /// Writes a vowel with the r behind it when the two make one sound; the r stays to be written
  /// when a vowel follows it.
  bool writeVowelAheadOfR() {
    const Sound& sound = sounds_[at_];
    const bool vowelFollows = isVowel(at_ + 2);
    const bool doubled = spelling_.find("rr") != std::string::npos;
    // "January", "history": nothing is left of the vowel in an ending without the main stress.
    const bool ending =
        spellingEndsIn(phonetics::weakEndings) && is(at_ + 2, "iy") && at_ + 3 == sounds_.size();
    if (ending && !sound.main) {
      text_ += "ə";
      return true;
    }
    // "erase": ahead of the stress the sound is as short as in "enough".
    const bool light = !sound.stressed && group() == "e";
    const bool shortOne = vowelFollows && (doubled || light || isShortGroup());
    if (sound.phone == "ih" || sound.phone == "iy") {
      text_ += shortOne ? "i" : "iə";
    } else if (sound.phone == "eh") {
      text_ += !shortOne ? "eə" : group() == "a" ? "æ" : "e";
    } else if (sound.phone == "uh") {
      text_ += takesJ() ? "juə" : "uə";
    } else if (sound.phone == "ao" || (sound.phone == "aa" && speltO())) {
      text_ += vowelFollows && (doubled || hasShortOr()) ? "o" : "o:";
    } else {
      return false;
    }
    return true;
  }

  /// "very", "spirit": one letter, and no "a", which is long in "parent".
  [[nodiscard]] bool isShortGroup() const {
    return group() == "e" ? !spelling_.ends_with("ere") && !is(at_, "ih") : group() == "i";
  }

  [[nodiscard]] bool hasShortOr() const {
    static constexpr std::array<std::string_view, 9> spellings = {
        "foreign", "forest", "orange", "origin", "ority", "oric", "moral", "coral", "florist"};
    return std::any_of(spellings.begin(), spellings.end(), [this](std::string_view each) {
      return spelling_.find(each) != std::string::npos;
    });
  }

  std::string spelling_;
  std::vector<Sound> sounds_;
  std::vector<std::string> groups_;
  bool aligned_ = false;
  bool manySyllables_ = false;
  std::size_t at_ = 0;
  std::string text_;
};

} // namespace

Phones phonesOf(std::string_view text) {
  Phones phones;
  for (std::string& each : split(text, ' ')) {
    if (!each.empty()) phones.push_back(std::move(each));
  }
  return phones;
}

std::string joined(const Phones& phones) {
  std::string text;
  for (const std::string& phone : phones)
    text += (text.empty() ? "" : " ") + phone;
  return text;
}

std::string faultOf(const Phones& phones) {
  bool vowel = false;
  for (const std::string& phone : phones) {
    const bool named =
        endsInStress(phone)
            ? lettersOf(phone.substr(0, phone.size() - 1), phonetics::vowels).has_value() &&
                  !phone.ends_with('2')
            : lettersOf(phone, phonetics::consonants).has_value();
    if (!named) return said("\"{}\" is no phone", phone);
    vowel = vowel || endsInStress(phone);
  }
  return vowel ? "" : said("a word needs a vowel");
}

std::string phoneticOf(const Phones& phones, std::string_view spelling) {
  return "/" + PhoneticWriter(phones, spelling).write() + "/";
}

} // namespace talvora::pack
