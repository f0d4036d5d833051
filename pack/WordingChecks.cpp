// Tables of twin words, and the search for them.
#include "pack/WordingChecks.h"

#include "pack/Message.h"
#include "pack/SmallLetters.h"
#include "text/CharClass.h"
#include "text/Text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

namespace talvora::pack {

namespace {

/// What the course writes, and what it does not; several are parted by "/".
struct Twin {
  std::string_view ours;
  std::string_view theirs;
};

// British words and spellings, as the lessons teach them; "learned" and its like go by the rule
// that a learner knows.
constexpr std::array english = {
    Twin{"lorry", "truck/trucks"},
    Twin{"flat", "apartment/apartments"},
    Twin{"lift", "elevator/elevators"},
    Twin{"pavement", "sidewalk/sidewalks"},
    Twin{"film", "movie/movies"},
    Twin{"biscuit", "cookie/cookies"},
    Twin{"sweets", "candy/candies"},
    Twin{"holiday", "vacation/vacations"},
    Twin{"rubbish", "garbage/trash"},
    Twin{"trousers", "pants"},
    Twin{"trainers", "sneakers"},
    Twin{"football", "soccer"},
    Twin{"mum", "mom/moms"},
    Twin{"maths", "math"},
    Twin{"tap", "faucet/faucets"},
    Twin{"torch", "flashlight/flashlights"},
    Twin{"petrol", "gasoline"},
    Twin{"plane", "airplane/airplanes/aeroplane/aeroplanes"},
    Twin{"mobile phone", "cellphone/cellphones/cell phone/cell phones"},
    Twin{"wardrobe", "closet/closets"},
    Twin{"chemist's", "drugstore/drugstores"},
    Twin{"motorway", "freeway/freeways"},
    Twin{"postman", "mailman"},
    Twin{"letter box", "mailbox/mailboxes"},
    Twin{"nappy", "diaper/diapers"},
    Twin{"got", "gotten"},
    Twin{"railway", "railroad/railroads"},
    Twin{"aubergine", "eggplant/eggplants"},
    Twin{"coriander", "cilantro"},
    Twin{"favourite", "favorite/favorites"},
    Twin{"colour", "color/colors/colored/colorful"},
    Twin{"neighbour", "neighbor/neighbors/neighborhood"},
    Twin{"honour", "honor/honors"},
    Twin{"humour", "humor"},
    Twin{"labour", "labor"},
    Twin{"rumour", "rumor/rumors"},
    Twin{"behaviour", "behavior"},
    Twin{"flavour", "flavor/flavors"},
    Twin{"harbour", "harbor/harbors"},
    Twin{"centre", "center/centers"},
    Twin{"theatre", "theater/theaters"},
    Twin{"metre", "kilometer/kilometers/centimeter/centimeters/millimeter/millimeters"},
    Twin{"litre", "liter/liters"},
    Twin{"fibre", "fiber/fibers"},
    Twin{"organise", "organize/organizes/organized/organizing"},
    Twin{"realise", "realize/realizes/realized/realizing"},
    Twin{"recognise", "recognize/recognizes/recognized/recognizing"},
    Twin{"apologise", "apologize/apologizes/apologized/apologizing"},
    Twin{"travelled", "traveled/traveling/traveler/travelers"},
    Twin{"cancelled", "canceled/canceling"},
    Twin{"jewellery", "jewelry"},
    Twin{"catalogue", "catalog/catalogs"},
    Twin{"moustache", "mustache/mustaches"},
    Twin{"pyjamas", "pajamas"},
    Twin{"plough", "plow/plows/plowed"},
    Twin{"mould", "mold"},
    Twin{"grey", "gray"},
    Twin{"towards", "toward"},
    Twin{"learned", "learnt"},
    Twin{"dreamed", "dreamt"},
    Twin{"smelled", "smelt"},
    Twin{"spelled", "spelt"},
    Twin{"leaned", "leant"},
    Twin{"spilled", "spilt"},
};

// In translations one spelling of a word.
constexpr std::array vietnamese = {
    Twin{"súp", "xúp"},
    Twin{"tivi", "ti vi/ti-vi"},
    Twin{"cảm ơn", "cám ơn"},
    Twin{"giông", "dông"},
    Twin{"va li", "vali/va-li"},
    Twin{"sô cô la", "sô-cô-la/socola"},
    Twin{"bác sĩ", "bác sỹ"},
    Twin{"ca sĩ", "ca sỹ"},
    Twin{"kỹ", "kĩ"},
    Twin{"lý", "lí"},
    Twin{"rô bốt", "rô-bốt/robot"},
    Twin{"phô mai", "pho mát/phó mát"},
    Twin{"xăng-ti-mét", "xăng ti mét/xentimét"},
    Twin{"ki-lô-mét", "ki lô mét/kilômét"},
    Twin{"ô tô", "ôtô/ô-tô"},
};

// Words of the north, and of the south. Only words that mean nothing else stand here.
constexpr std::array regional = {
    Twin{"thìa", "muỗng"},
    Twin{"lợn", "thịt heo/con heo/heo con/heo nái/bầy heo"},
    Twin{"củ lạc/hạt lạc/lạc rang/kẹo lạc", "đậu phộng/đậu phọng"},
    Twin{"xà phòng", "xà bông"},
    Twin{"nghìn", "ngàn"},
    Twin{"rẽ", "quẹo"},
    Twin{"chăn", "mền"},
    Twin{"đôi tất/chiếc tất/bít tất", "đôi vớ/chiếc vớ"},
    Twin{"bố tôi/bố mẹ/bố con", "ba tôi/ba má/ba mẹ"},
    Twin{"mẹ tôi/bố mẹ", "má tôi/ba má"},
    Twin{"tàu hỏa", "xe lửa"},
    Twin{"tầng hai/tầng ba/tầng bốn/tầng trên", "lầu hai/lầu ba/lầu bốn/trên lầu"},
    Twin{"ngõ", "hẻm/con hẻm"},
    Twin{"nhé", "nghen"},
    Twin{"lốp", "vỏ xe"},
    Twin{"bắp ngô/ngô luộc/ngô nướng/hạt ngô", "trái bắp/bắp luộc/bắp nướng/hạt bắp"},
    Twin{"quả dứa", "trái thơm/trái khóm"},
    Twin{"quả cam/quả chuối/quả dừa/quả xoài/quả táo/quả bưởi/quả bí/quả cà",
         "trái cam/trái chuối/trái dừa/trái xoài/trái táo/trái bưởi/trái bí/trái cà"},
    Twin{"chiếc ô/cái ô", "chiếc dù/cái dù/cây dù"},
    Twin{"mũ bảo hiểm", "nón bảo hiểm"},
    Twin{"xe máy", "xe gắn máy"},
    Twin{"xe khách", "xe đò"},
    Twin{"kính", "kiếng"},
    Twin{"mướp đắng", "khổ qua"},
    Twin{"nem rán", "chả giò"},
    Twin{"vừng", "mè"},
};

constexpr std::array<std::pair<std::string_view, std::string_view>, 7> weekdays = {
    {{"monday", "thứ hai"},
     {"tuesday", "thứ ba"},
     {"wednesday", "thứ tư"},
     {"thursday", "thứ năm"},
     {"friday", "thứ sáu"},
     {"saturday", "thứ bảy"},
     {"sunday", "chủ nhật"}}};
// "may" and "march" are also verbs.
constexpr std::array<std::string_view, 10> months = {"january",  "february", "april",     "june",
                                                     "july",     "august",   "september", "october",
                                                     "november", "december"};
constexpr std::array<std::string_view, 8> tens = {"twenty", "thirty",  "forty",  "fifty",
                                                  "sixty",  "seventy", "eighty", "ninety"};
constexpr std::array<std::string_view, 18> units = {
    "one",   "two",    "three", "four",   "five",  "six",   "seven",   "eight",  "nine",
    "first", "second", "third", "fourth", "fifth", "sixth", "seventh", "eighth", "ninth"};

template <typename List>
bool has(const List& list, std::string_view word) {
  return std::find(list.begin(), list.end(), word) != list.end();
}

// Outside ASCII a text has Vietnamese letters and typographic marks.
constexpr std::array<std::string_view, 7> marks = {"“", "”", "‘", "’", "–", "—", "…"};

bool endsWithLetter(std::string_view text) {
  if (text.empty()) return false;
  const auto isEnd = [text](std::string_view mark) { return text.ends_with(mark); };
  if (static_cast<unsigned char>(text.back()) < 0x80) return Letters.has(text.back());
  return std::none_of(marks.begin(), marks.end(), isEnd);
}

bool beginsWithLetter(std::string_view text) {
  if (text.empty()) return false;
  const auto isStart = [text](std::string_view mark) { return text.starts_with(mark); };
  if (static_cast<unsigned char>(text.front()) < 0x80) return Letters.has(text.front());
  return std::none_of(marks.begin(), marks.end(), isStart);
}

/// Where a phrase stands as whole words.
std::optional<std::size_t> placeOf(std::string_view phrase, std::string_view text) {
  for (std::size_t at = text.find(phrase); at != std::string_view::npos;
       at = text.find(phrase, at + 1)) {
    const bool opens = !endsWithLetter(text.substr(0, at));
    if (opens && !beginsWithLetter(text.substr(at + phrase.size()))) return at;
  }
  return std::nullopt;
}

struct Found {
  std::size_t at = 0;
  std::string_view phrase;
};

/// The first phrase of a list parted by "/" that stands in a text.
std::optional<Found> anyOf(std::string_view phrases, std::string_view text) {
  while (!phrases.empty()) {
    const std::string_view phrase = phrases.substr(0, phrases.find('/'));
    if (const auto at = placeOf(phrase, text)) return Found{*at, phrase};
    phrases.remove_prefix(std::min(phrases.size(), phrase.size() + 1));
  }
  return std::nullopt;
}

template <typename Table>
void findTwins(const Table& table, std::string_view small, std::vector<OddWording>& odd) {
  for (const Twin& twin : table) {
    const auto found = anyOf(twin.theirs, small);
    if (!found) continue;
    odd.push_back(
        {found->at, said("the course writes \"{}\" for \"{}\"", twin.ours, found->phrase)});
  }
}

struct Word {
  std::size_t at = 0;
  std::string_view text;
};

std::vector<Word> wordsOf(std::string_view sentence) {
  std::vector<Word> words;
  for (std::size_t at = 0; at < sentence.size(); ++at) {
    if (!Letters.has(sentence[at])) continue;
    std::size_t end = at;
    while (end < sentence.size() && Letters.has(sentence[end]))
      ++end;
    words.push_back({at, sentence.substr(at, end - at)});
    at = end;
  }
  return words;
}

/// "thirty five", but not the "twenty" of the year "twenty twenty-five".
void findPartedNumbers(std::string_view sentence, std::vector<OddWording>& odd) {
  const auto words = wordsOf(sentence);
  for (std::size_t at = 0; at + 1 < words.size(); ++at) {
    const Word& ten = words[at];
    const Word& unit = words[at + 1];
    const bool beside = unit.at == ten.at + ten.text.size() + 1 && sentence[unit.at - 1] == ' ';
    if (!beside || !has(tens, lower(ten.text)) || !has(units, lower(unit.text))) continue;
    odd.push_back({ten.at, said("a number has a hyphen: \"{}-{}\"", ten.text, unit.text)});
  }
}

void findSmallDays(std::string_view sentence, std::vector<OddWording>& odd) {
  for (const Word& word : wordsOf(sentence)) {
    std::string_view day = word.text;
    if (day.ends_with("days")) day.remove_suffix(1);
    const bool isDay = std::any_of(weekdays.begin(), weekdays.end(),
                                   [day](const auto& each) { return each.first == day; });
    if (isDay || has(months, word.text))
      odd.push_back({word.at, said("\"{}\" begins with a capital", word.text)});
  }
}

} // namespace

std::vector<OddWording> oddWordings(std::string_view sentence) {
  std::vector<OddWording> odd;
  findPartedNumbers(sentence, odd);
  findSmallDays(sentence, odd);
  // "Mrs Gray" and "Center Street" are names: the twins are looked for as they stand, and at the
  // start of a sentence in small letters.
  std::string small(sentence);
  if (!small.empty()) small.front() = lower(small.front());
  findTwins(english, small, odd);
  return odd;
}

void WordingChecker::report(int line, std::size_t at, const std::string& message) {
  problems_.add({file_, line, static_cast<int>(at) + 1}, message);
}

void WordingChecker::readSentence(const SourceLine& line) {
  sentence_ = lower(line.text);
  for (const OddWording& odd : oddWordings(line.text))
    report(line.number, odd.at, odd.message);
}

void WordingChecker::readTranslation(const SourceLine& line) {
  const std::string small = smallUtf8(line.text);
  std::vector<OddWording> odd;
  findTwins(vietnamese, small, odd);
  for (const OddWording& each : odd)
    report(line.number, 0, each.message);
  checkAgainstSentence(line, small);
  collectRegional(line, small);
}

void WordingChecker::checkAgainstSentence(const SourceLine& line, std::string_view small) {
  const bool asks = sentence_.find('?') != std::string::npos;
  const bool asked = small.find('?') != std::string_view::npos;
  if (asks != asked) {
    report(line.number, 0,
           asks ? said("the sentence asks and its translation does not")
                : said("the translation asks and its sentence does not"));
  }
  for (const auto& [day, name] : weekdays) {
    const bool named = placeOf(day, sentence_) || placeOf(std::string(day) + "s", sentence_);
    if (named && !placeOf(name, small))
      report(line.number, 0, said("the translation has no \"{}\"", name));
  }
}

void WordingChecker::collectRegional(const SourceLine& line, std::string_view small) {
  north_.resize(regional.size());
  south_.resize(regional.size());
  for (std::size_t row = 0; row < regional.size(); ++row) {
    const auto note = [&](Regional& first, std::string_view phrases) {
      if (!first.word.empty()) return;
      if (const auto found = anyOf(phrases, small))
        first = {std::string(found->phrase), line.number};
    };
    note(north_[row], regional[row].ours);
    note(south_[row], regional[row].theirs);
  }
}

void WordingChecker::finish() {
  for (std::size_t row = 0; row < north_.size(); ++row) {
    const Regional& north = north_[row];
    const Regional& south = south_[row];
    if (north.word.empty() || south.word.empty()) continue;
    report(
        std::max(north.line, south.line), 0,
        said("\"{}\" of the north and \"{}\" of the south stand in one text, here and in line {}",
             north.word, south.word, std::min(north.line, south.line)));
  }
}

} // namespace talvora::pack
